// spectrum and code: response spectra of a record, and code design spectra.

#include "Archives.h"
#include "AtomicFile.h"
#include "Commands.h"
#include "Errors.h"
#include "FileChecks.h"
#include "WorkLimits.h"

#include "host/CurveKinds.h"
#include "records/SpectrumCurves.h"
#include "spectra/Spectrum.h"

#include <cctype>
#include <cmath>
#include <filesystem>
#include <iostream>

namespace seisplot::cli {
namespace {

// The dampings asked for: one, or DS, 2·DS, ... up to DMAX; at most kMostDampings.
std::vector<double> Dampings(const SpectrumOptions& options) {
    if (!options.dampingMax) {
        return {options.damping};
    }
    const double step = *options.dampingStep;
    const double count = std::floor(*options.dampingMax / step * (1.0 + 1e-12));
    if (count > static_cast<double>(kMostDampings)) {
        BadUsage("--damping-step " + NumberText(step) + " up to --damping-max " +
                 NumberText(*options.dampingMax) + " asks for " + Printf("%.0f", count) +
                 " dampings; at most " + std::to_string(kMostDampings));
    }
    std::vector<double> dampings;
    for (int k = 1; k <= static_cast<int>(count); ++k) {
        dampings.push_back(k * step);
    }
    if (dampings.empty()) {
        BadUsage("--damping-step is larger than --damping-max: no damping to compute");
    }
    return dampings;
}

// The end of the picture name of one damping's spectrum when there are several: "-xi0.050",
// or the damping's every digit when three decimals do not tell the dampings apart.
std::string DampingSuffix(const std::vector<double>& dampings, double damping) {
    if (dampings.size() < 2) {
        return "";
    }
    for (size_t i = 1; i < dampings.size(); ++i) {
        if (Printf("%.3f", dampings[i]) == Printf("%.3f", dampings[i - 1])) {
            return "-xi" + NumberText(damping);
        }
    }
    return Printf("-xi%.3f", damping);
}

struct Curve {
    double damping;
    std::vector<std::pair<double, double>> points;
};

} // namespace

void RunSpectrum(const SpectrumOptions& options, std::ostream& out) {
    CheckPlotOptions(options.plot);
    CheckPeriodCount(options.maxPeriod, options.periodStep);
    const std::vector<double> dampings = Dampings(options);
    if (options.plot.file) {
        std::vector<std::string> pictures;
        for (double damping : dampings) {
            pictures.push_back(PlotPath(options.plot, DampingSuffix(dampings, damping)));
        }
        for (const std::string& picture : pictures) {
            RefuseOverwritingInput("--plot", picture, {{options.set, "the record set"}});
        }
    }
    const bool ads = options.kind == "ads";
    if (options.curves) {
        const std::string extension = std::filesystem::path(*options.curves).extension().string();
        if (extension != (ads ? FreeCurves::kExtension : FunctionCurves::kExtension)) {
            BadUsage(ads ? "acceleration-displacement spectra are polylines: give --pmc FILE.pmc"
                         : "spectra of periods are function curves: give --pcc FILE.pcc");
        }
        RefuseOverwritingInput(ads ? "--pmc" : "--pcc", *options.curves,
                               {{options.set, "the record set"}});
    }
    AccelerogramColl records;
    LoadRecordSet(options.set, records);
    Accelerogram& record = RecordAt(records, options.record, options.set);
    const double gridEnd = GridEnd(options.maxPeriod, options.periodStep);

    const char* heading = ads                     ? "Acceleration-displacement response spectrum"
                          : options.kind == "acc" ? "Acceleration response spectrum"
                                                  : "Displacement response spectrum";
    std::vector<Curve> curves;
    // The spectra to draw, kept until every damping has one: a failing damping writes no
    // picture at all.
    std::vector<PCurve> plots;
    std::vector<PMCurve> adPlots;
    // The spectra for --pcc / --pmc, named and labelled as the record dialog shows them.
    PCurveColl functionCurves;
    PMCurveColl polylineCurves;
    for (double damping : dampings) {
        Curve curve{damping, {}};
        int failed = 0;
        if (ads) {
            PMCurve result;
            failed = record.GetADSpectrum(damping, gridEnd, options.periodStep, result);
            for (int i = 0; i < result.GetNP(); ++i) {
                curve.points.emplace_back(result[i].GetX(), result[i].GetY() / Accelerogram::kG);
            }
            if (options.plot.file) {
                adPlots.push_back(result);
            }
            LabelSpectrumCurve(result, SpectrumCurveKind::AccelerationDisplacement, damping,
                               nullptr);
            polylineCurves.AddPMCurve(result);
        } else {
            PCurve result;
            failed = options.kind == "acc"
                         ? record.GetAccSpectrum(damping, gridEnd, options.periodStep, result)
                         : record.GetDisSpectrum(damping, gridEnd, options.periodStep, result);
            for (int i = 0; i < result.GetNP(); ++i) {
                curve.points.emplace_back(result[i].GetX(), result[i].GetY());
            }
            if (options.plot.file) {
                plots.push_back(result);
            }
            LabelSpectrumCurve(result,
                               options.kind == "acc" ? SpectrumCurveKind::Acceleration
                                                     : SpectrumCurveKind::Displacement,
                               damping, nullptr);
            functionCurves.AddPCurve(result);
        }
        if (failed != 0 || curve.points.empty()) {
            const PCurve& r = record.Record;
            Fail("no spectrum for record " + std::to_string(options.record) +
                 (r.GetNP() < 2 || !(r.GetMaxX() > r.GetMinX())
                      ? ": it needs at least two points and a duration"
                      : ": the record is too long for steps of T/100 at the shortest period"));
        }
        curves.push_back(std::move(curve));
    }
    const auto writePlots = [&](auto& spectra) {
        for (size_t i = 0; i < spectra.size(); ++i) {
            const double damping = curves[i].damping;
            spectra[i].SetName((std::string(heading) + " of " + record.Identifier.GetString() +
                                Printf(", damping %.1f%%", 100.0 * damping))
                                   .c_str());
            WritePlot(options.plot, spectra[i], DampingSuffix(dampings, damping));
        }
    };
    writePlots(plots);
    writePlots(adPlots);
    if (options.curves) {
        ReplaceFile(*options.curves, [&](const std::string& temporary) {
            const int failed = ads ? polylineCurves.WriteToFile(temporary.c_str())
                                   : functionCurves.WriteToFile(temporary.c_str());
            if (failed != 0) {
                Fail("cannot write the curve collection " + *options.curves);
            }
        });
    }

    const char* xKey = ads ? "sd_mm" : "period_s";
    const char* yKey = ads ? "sa_g" : options.kind == "acc" ? "sa_g" : "sd_mm";
    if (options.format.Format() == OutputFormat::Json) {
        JsonValue list = JsonValue::array();
        for (const Curve& curve : curves) {
            JsonValue points = JsonValue::array();
            for (const auto& [x, y] : curve.points) {
                points.push_back({{xKey, x}, {yKey, y}});
            }
            list.push_back({{"damping", curve.damping}, {"points", points}});
        }
        PrintJson(out, {{"file", options.set},
                        {"record", options.record},
                        {"identifier", record.Identifier.GetString()},
                        {"kind", options.kind},
                        {"max_period_s", options.maxPeriod},
                        {"period_step_s", options.periodStep},
                        {"curves", list}});
        return;
    }

    Table table;
    size_t rows = 0;
    if (!ads) {
        table.AddColumn("T (s)");
    }
    for (const Curve& curve : curves) {
        const std::string damping = " xi=" + NumberText(curve.damping);
        if (ads) {
            table.AddColumn("Sd (mm)" + damping);
        }
        table.AddColumn((options.kind == "dis" ? "Sd (mm)" : "Sa (g)") + damping);
        rows = std::max(rows, curve.points.size());
    }
    for (size_t i = 0; i < rows; ++i) {
        std::vector<std::string> cells;
        if (!ads) {
            cells.push_back(NumberText(curves.front().points[i].first));
        }
        for (const Curve& curve : curves) {
            const bool has = i < curve.points.size();
            if (ads) {
                cells.push_back(has ? NumberText(curve.points[i].first) : "");
            }
            cells.push_back(has ? NumberText(curve.points[i].second) : "");
        }
        table.AddRow(std::move(cells));
    }
    if (options.format.Format() == OutputFormat::Text) {
        out << heading << " of record " << options.record << " (" << record.Identifier.GetString()
            << ")"
            << ", periods up to " << NumberText(options.maxPeriod) << " s by "
            << NumberText(options.periodStep) << " s\n";
    }
    table.Print(out, options.format.Format());
}

void RunCode(const CodeOptions& options, std::ostream& out) {
    CheckPlotOptions(options.plot);
    CheckPeriodCount(options.maxPeriod, options.periodStep);
    const bool ntc = options.code == "ntc";
    if (ntc && (!options.f0 || !options.tcs)) {
        BadUsage("the NTC spectrum needs --f0 and --tcs");
    }
    if (!ntc && (options.f0 || options.tcs)) {
        BadUsage("--f0 and --tcs belong to the NTC spectrum, not to EC8");
    }
    const char soilLetter = static_cast<char>(std::toupper(options.soil.front()));
    const int soil = soilLetter - 'A';

    std::vector<std::pair<double, double>> points;
    for (double period : PeriodGrid(options.maxPeriod, options.periodStep)) {
        double se = 0.0;
        const int failed =
            ntc ? Spectrum::GetSpettro_NTC(options.ag, options.xi, soil, options.st, *options.f0,
                                           *options.tcs, period, options.q, &se)
                : Spectrum::GetSpettro_EC8(options.ag, options.xi, soil, options.st, period,
                                           options.q, &se);
        if (failed != 0) {
            Fail(std::string("soil class ") + soilLetter + " refused by the code spectrum");
        }
        points.emplace_back(period, se);
    }

    const std::string kind = options.q == 1.0 ? "elastic" : "design";
    if (options.plot.file) {
        PCurve curve;
        curve.XUnit = seisplot::UnitKind::Time;
        curve.YUnit = seisplot::UnitKind::PureNumber;
        curve.XName = "T";
        curve.YName = "Se(T) [g]";
        for (const auto& [period, se] : points) {
            curve.AddPoint(period, se);
        }
        curve.SetName(
            (std::string(ntc ? "NTC " : "EC8 type 2 ") + kind +
             Printf(" spectrum, ag %.3f g, soil %c, q %.2f", options.ag, soilLetter, options.q))
                .c_str());
        WritePlot(options.plot, curve);
    }
    if (options.format.Format() == OutputFormat::Json) {
        JsonValue list = JsonValue::array();
        for (const auto& [period, se] : points) {
            list.push_back({{"period_s", period}, {"se_g", se}});
        }
        JsonValue document = {{"code", options.code}, {"kind", kind},
                              {"ag_g", options.ag},   {"soil", std::string(1, soilLetter)},
                              {"st", options.st},     {"damping", options.xi},
                              {"q", options.q},       {"points", list}};
        if (ntc) {
            document["f0"] = *options.f0;
            document["tcs_s"] = *options.tcs;
        }
        PrintJson(out, document);
        return;
    }
    if (options.format.Format() == OutputFormat::Text) {
        out << (ntc ? "NTC " : "EC8 type 2 ") << kind << " spectrum: ag " << NumberText(options.ag)
            << " g, soil " << soilLetter << ", ST " << NumberText(options.st) << ", damping "
            << NumberText(options.xi) << ", q " << NumberText(options.q);
        if (ntc) {
            out << ", F0 " << NumberText(*options.f0) << ", TC* " << NumberText(*options.tcs)
                << " s";
        }
        out << '\n';
    }
    Table table;
    table.AddColumn("T (s)");
    table.AddColumn("Se (g)");
    for (const auto& [period, se] : points) {
        table.AddRow({NumberText(period), NumberText(se)});
    }
    table.Print(out, options.format.Format());
}

void AddSpectrumCommands(CLI::App& app, Action& action) {
    auto spectrum = std::make_shared<SpectrumOptions>();
    CLI::App* command =
        app.add_subcommand("spectrum", "Response spectra of one record, one curve per damping");
    command->add_option("SET", spectrum->set, "Record set (*.acc)")->required();
    command->add_option("N", spectrum->record, "Record number (from 1)")
        ->required()
        ->check(kNumberFromOne);
    command
        ->add_option("--kind", spectrum->kind,
                     "acc: spectral acceleration (g); dis: spectral displacement (mm); ads: "
                     "acceleration against displacement")
        ->check(CLI::IsMember({"acc", "dis", "ads"}))
        ->capture_default_str();
    CLI::Option* damping = command->add_option("--damping", spectrum->damping, "Damping ratio")
                               ->check(kDampingRatio)
                               ->capture_default_str();
    CLI::Option* dampingMax = command
                                  ->add_option("--damping-max", spectrum->dampingMax,
                                               "Compute the dampings S, 2S, ... up to this one")
                                  ->check(kDampingRatio);
    CLI::Option* dampingStep =
        command->add_option("--damping-step", spectrum->dampingStep, "Damping step S")
            ->check(kDampingRatio);
    dampingMax->needs(dampingStep)->excludes(damping);
    dampingStep->needs(dampingMax);
    command
        ->add_option("--tmax", spectrum->maxPeriod,
                     "Last period (s), computed when it is a multiple of the step")
        ->check(kSpectrumTmax)
        ->capture_default_str();
    command->add_option("--dt", spectrum->periodStep, "Period step (s)")
        ->check(kSpectrumDt)
        ->capture_default_str();
    AddPlotOptions(*command, spectrum->plot);
    auto* pcc = command->add_option(
        "--pcc", spectrum->curves,
        "Also save the spectra as a curve collection (acc, dis), one curve per damping");
    command
        ->add_option("--pmc", spectrum->curves,
                     "Also save the acceleration-displacement spectra as a polyline collection")
        ->excludes(pcc);
    AddFormatFlags(*command, spectrum->format, true);
    SetAction(*command, action, spectrum,
              [](const SpectrumOptions& o) { RunSpectrum(o, std::cout); });

    auto code = std::make_shared<CodeOptions>();
    CLI::App* codeCommand = app.add_subcommand(
        "code", "A code response spectrum: Eurocode 8 (type 2) or Italian NTC; elastic for q = 1, "
                "design otherwise");
    codeCommand->add_option("CODE", code->code, "ec8 or ntc")
        ->required()
        ->check(CLI::IsMember({"ec8", "ntc"}));
    codeCommand->add_option("--ag", code->ag, "Ground acceleration (g)")
        ->required()
        ->check(kPositive);
    codeCommand->add_option("--soil", code->soil, "Soil class A, B, C, D or E")
        ->required()
        ->check(CLI::IsMember({"A", "B", "C", "D", "E"}, CLI::ignore_case));
    codeCommand->add_option("--st", code->st, "Topographic factor")
        ->check(kPositive)
        ->capture_default_str();
    codeCommand->add_option("--xi", code->xi, "Damping ratio")
        ->check(kDampingRatioOrZero)
        ->capture_default_str();
    codeCommand->add_option("--q", code->q, "Behaviour factor (1: elastic)")
        ->check(kPositive)
        ->capture_default_str();
    codeCommand->add_option("--f0", code->f0, "NTC: amplification factor F0")->check(kPositive);
    codeCommand->add_option("--tcs", code->tcs, "NTC: reference corner period TC* (s)")
        ->check(kPositive);
    codeCommand
        ->add_option("--tmax", code->maxPeriod,
                     "Last period (s), computed when it is a multiple of the step")
        ->check(kSpectrumTmax)
        ->capture_default_str();
    codeCommand->add_option("--dt", code->periodStep, "Period step (s)")
        ->check(kSpectrumDt)
        ->capture_default_str();
    AddPlotOptions(*codeCommand, code->plot);
    AddFormatFlags(*codeCommand, code->format, true);
    SetAction(*codeCommand, action, code, [](const CodeOptions& o) { RunCode(o, std::cout); });
}

} // namespace seisplot::cli
