// sinusoids and rotate: records made from parameters or from other records.

#include "Archives.h"
#include "Commands.h"
#include "ConsoleProgress.h"
#include "Errors.h"
#include "RecordSampling.h"
#include "WorkLimits.h"

#include "records/Sinusoids.h"

#include <cmath>
#include <filesystem>
#include <iostream>
#include <optional>

namespace seisplot::cli {

namespace {

std::string StepText(const std::optional<double>& step) {
    return step ? Printf("%g s", *step) : "varying";
}

// Two records compose into one component only when they are of one event and one sampling.
void CheckComposable(const Accelerogram& x, unsigned long nx, const Accelerogram& y,
                     unsigned long ny) {
    const std::string which = "records " + std::to_string(nx) + " and " + std::to_string(ny) + " ";
    if (std::string(x.EventId.GetString()) != y.EventId.GetString()) {
        BadUsage(which + "belong to different events ('" + x.EventId.GetString() + "' and '" +
                 y.EventId.GetString() + "'); give --force to compose them anyway");
    }
    const std::optional<double> sx = ConstantStep(x.Record);
    const std::optional<double> sy = ConstantStep(y.Record);
    if (!sx || !sy || std::fabs(*sx - *sy) > 1.0e-8) {
        BadUsage(which + "are not sampled alike (steps " + StepText(sx) + " and " + StepText(sy) +
                 "); give --force to compose them anyway");
    }
    if (x.Record.GetMinX() != y.Record.GetMinX()) {
        BadUsage(which +
                 Printf("start at different times (%g s and %g s)", x.Record.GetMinX(),
                        y.Record.GetMinX()) +
                 "; give --force to compose them anyway");
    }
}

} // namespace

void RunSinusoids(const SinusoidOptions& options, std::ostream& out) {
    const double points =
        static_cast<double>(options.count) *
        (static_cast<double>(options.points - 1) * static_cast<double>(options.periods) + 1.0);
    if (points > kMostSinusoidPoints) {
        BadUsage("--count " + std::to_string(options.count) + " records of --periods " +
                 std::to_string(options.periods) + " times --points " +
                 std::to_string(options.points) + " ask for " + Printf("%.0f", points) +
                 " points; at most " + Printf("%.0f", kMostSinusoidPoints));
    }
    AccelerogramColl records;
    if (options.append && std::filesystem::exists(options.output)) {
        LoadRecordSet(options.output, records);
    }
    const unsigned long first = records.GetAccelerogramNum() + 1;
    {
        ConsoleProgress progress("sinusoids");
        GenerateSinusoids(options.count, options.step, options.periods, options.points,
                          options.amplitude, records, &progress);
    }
    SaveRecordSet(options.output, records);
    out << options.output << ": " << records.GetAccelerogramNum() << " records; added "
        << options.count << " sinusoidal records " << first << " to "
        << records.GetAccelerogramNum()
        << Printf(", periods %.4f s to %.4f s", options.step,
                  options.step * static_cast<double>(options.count))
        << '\n';
}

void RunRotate(const RotateOptions& options, std::ostream& out) {
    AccelerogramColl records;
    LoadRecordSet(options.set, records);
    Accelerogram* x = &RecordAt(records, options.x, options.set);
    Accelerogram* y = options.y ? &RecordAt(records, *options.y, options.set) : nullptr;
    if (y != nullptr && !options.force) {
        CheckComposable(*x, options.x, *y, *options.y);
    }

    Accelerogram rotated;
    if (rotated.Convert(x, y, options.angle) != 0) {
        Fail("the rotation was refused; " + options.output + " not written");
    }
    rotated.SetName(rotated.Identifier);
    rotated.Explanation.Format("Component along %.3f deg from WE: PGA= %7.3lf  NP= %d",
                               options.angle, rotated.GetPga(), rotated.Record.GetNP());
    records.AddAccelerogram(rotated);
    SaveRecordSet(options.output, records);
    out << options.output << ": record " << records.GetAccelerogramNum() << " "
        << rotated.Identifier.GetString() << Printf(", PGA %.4f g", rotated.GetPga()) << '\n';
}

void AddGenerateCommands(CLI::App& app, Action& action) {
    auto sinus = std::make_shared<SinusoidOptions>();
    CLI::App* sinusCommand = app.add_subcommand(
        "sinusoids", "Add pure sine records of growing period T = k*DT (k = 1 ... count)");
    sinusCommand->add_option("--count", sinus->count, "Number of records")
        ->check(CLI::Range(1UL, 10000UL))
        ->capture_default_str();
    sinusCommand->add_option("--dt", sinus->step, "Period interval DT (s)")
        ->check(NumberIn(1e-8, 10.0, "a period interval in s"))
        ->capture_default_str();
    sinusCommand->add_option("--periods", sinus->periods, "Periods per record")
        ->check(CLI::Range(1UL, 100UL))
        ->capture_default_str();
    sinusCommand->add_option("--points", sinus->points, "Points per period")
        ->check(CLI::Range(1UL, 10000UL))
        ->capture_default_str();
    sinusCommand->add_option("--amplitude", sinus->amplitude, "Peak acceleration (g)")
        ->check(NumberIn(1e-8, 10.0, "a peak acceleration in g"))
        ->capture_default_str();
    sinusCommand->add_option("-o,--output", sinus->output, "Record set to write (*.acc)")
        ->required();
    sinusCommand->add_flag("--append", sinus->append,
                           "Add to the records already in the set (otherwise it is replaced)");
    SetAction(*sinusCommand, action, sinus,
              [](const SinusoidOptions& o) { RunSinusoids(o, std::cout); });

    auto rotate = std::make_shared<RotateOptions>();
    CLI::App* rotateCommand = app.add_subcommand(
        "rotate", "Append the component along a direction, from one horizontal record or from "
                  "two at right angles (NX at the smaller AngleWE)");
    rotateCommand->add_option("SET", rotate->set, "Record set (*.acc)")->required();
    rotateCommand->add_option("NX", rotate->x, "First record number (from 1)")
        ->required()
        ->check(kNumberFromOne);
    rotateCommand->add_option("NY", rotate->y, "Second record number, 90 degrees from the first")
        ->check(kNumberFromOne);
    rotateCommand
        ->add_option("--angle", rotate->angle,
                     "Direction of the new component, degrees from WE counter-clockwise")
        ->required()
        ->check(kFinite);
    rotateCommand->add_flag("--force", rotate->force,
                            "Compose two records of different events or samplings");
    rotateCommand
        ->add_option("-o,--output", rotate->output,
                     "Record set to write: the records of SET and the new one")
        ->required();
    SetAction(*rotateCommand, action, rotate,
              [](const RotateOptions& o) { RunRotate(o, std::cout); });
}

} // namespace seisplot::cli
