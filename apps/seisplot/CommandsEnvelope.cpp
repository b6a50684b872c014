// envelope: the envelope (or percentile) spectrum of a set of records, its track of signals
// and its rating against the EC8 soil classes.

#include "Archives.h"
#include "Commands.h"
#include "ConsoleProgress.h"
#include "Errors.h"
#include "FileChecks.h"
#include "Interrupt.h"
#include "ModesFile.h"
#include "RecordList.h"
#include "WorkLimits.h"

#include <filesystem>
#include <iostream>
#include <map>

namespace seisplot::cli {
namespace {

EnvelopeCriteria CriteriaOf(const EnvelopeOptions& options) {
    EnvelopeCriteria criteria;
    criteria.PeriodSource =
        options.modes.empty() ? EnvelopeCriteria::RegularGrid : EnvelopeCriteria::StructuralModes;
    criteria.MaxPeriod = options.maxPeriod ? GridEnd(*options.maxPeriod, *options.periodStep) : 0.0;
    criteria.PeriodStep = options.periodStep.value_or(0.0);
    criteria.Damping = options.damping;
    criteria.SignalUse =
        options.pairs ? EnvelopeCriteria::ComposedPairs : EnvelopeCriteria::EachRecord;
    criteria.Direction = options.direction;
    criteria.Statistic = options.percentile ? EnvelopeCriteria::PercentileEnvelope
                                            : EnvelopeCriteria::CompleteEnvelope;
    criteria.Percentile = options.percentile.value_or(criteria.Percentile);
    return criteria;
}

std::string Soils(const CString& verdict) {
    // "Soil A:OK Soil B:NO ..." without the trailing blank.
    std::string text = verdict.GetString();
    while (!text.empty() && text.back() == ' ') {
        text.pop_back();
    }
    return text;
}

} // namespace

EnvelopeSummary RunEnvelope(const EnvelopeOptions& options, std::ostream& out) {
    CheckPlotOptions(options.plot);
    if (options.modes.empty() && !options.maxPeriod) {
        BadUsage("give the periods: --modes FILE, or --tmax T --dt S");
    }
    if (options.maxPeriod) {
        CheckPeriodCount(*options.maxPeriod, *options.periodStep);
    }
    std::vector<InputFile> inputs = {{options.set, "the record set"}};
    if (!options.modes.empty()) {
        inputs.push_back({options.modes, "the modes file"});
    }
    if (!options.spectra.empty()) {
        RefuseOverwritingInput("--spectra", options.spectra, inputs);
        inputs.push_back({options.spectra, "the spectra archive"});
    }
    if (options.plot.file) {
        RefuseOverwritingInput("--plot", *options.plot.file, inputs);
    }
    std::optional<std::vector<unsigned long>> numbers;
    try {
        numbers = ParseRecordList(options.records);
    } catch (const std::invalid_argument& e) {
        BadUsage(std::string("--records: ") + e.what());
    }

    AccelerogramColl records;
    LoadRecordSet(options.set, records);
    const std::vector<bool> checked =
        CheckedRecords(numbers, records.GetAccelerogramNum(), options.set);
    const EnvelopeModes modes =
        options.modes.empty() ? EnvelopeModes{} : ReadModesFile(options.modes);
    SpectrumColl spectra;
    if (!options.spectra.empty() && std::filesystem::exists(options.spectra)) {
        LoadSpectrumSet(options.spectra, spectra);
    }
    const EnvelopeCriteria criteria = CriteriaOf(options);
    PCurve track;
    {
        ConsoleProgress progress("envelope");
        InterruptGuard interrupt;
        const EnvelopeOutcome outcome = ComputeEnvelopeSpectrum(
            criteria, records, checked, modes, spectra, track, &progress, options.threads);
        if (outcome == EnvelopeOutcome::Cancelled || InterruptGuard::Interrupted()) {
            Fail("envelope cancelled; nothing written");
        }
        if (outcome != EnvelopeOutcome::Added) {
            Fail("no envelope spectrum" + (options.spectra.empty()
                                               ? std::string()
                                               : "; " + options.spectra + " not written"));
        }
    }
    const unsigned long number = spectra.GetSpectrumNum();
    Spectrum& envelope = spectra.GetSpectrum(number);
    const Ec8Rating rating = MatchEc8SoilClasses(envelope);
    if (!options.spectra.empty()) {
        SaveSpectrumSet(options.spectra, spectra);
    }

    EnvelopeSummary summary;
    summary.title = envelope.GetName().GetString();
    summary.peak = rating.Peak;
    summary.peakPeriod = rating.PeakPeriod;
    summary.verdict = Soils(rating.Verdict);
    summary.spectrumNumber = options.spectra.empty() ? 0 : number;

    // The records of each pair, by the analysis ids the run gave them.
    std::map<int, std::vector<unsigned long>> pairs;
    if (options.pairs) {
        for (unsigned long i = 1; i <= records.GetAccelerogramNum(); ++i) {
            const Accelerogram& r = records.GetAccelerogram(i);
            if (checked[i - 1] && r.IsVertical == 0 && r.AnalysisId > 0) {
                pairs[r.AnalysisId].push_back(i);
            }
        }
    }
    const bool complete = !options.percentile;
    const PCurve& curve = envelope.Curve;
    if (options.plot.file) {
        PCurve plotted = curve;
        plotted.SetName(summary.title.c_str());
        WritePlot(options.plot, plotted);
    }

    if (options.format.Format() == OutputFormat::Json) {
        JsonValue points = JsonValue::array();
        for (int i = 0; i < curve.GetNP(); ++i) {
            JsonValue point = {{"period_s", curve[i].GetX()}, {"sa_g", curve[i].GetY()}};
            if (complete && i < track.GetNP()) {
                point["signal"] = static_cast<long>(track[i].GetY());
            }
            points.push_back(point);
        }
        JsonValue pairList = JsonValue::array();
        for (const auto& [id, members] : pairs) {
            pairList.push_back({{"pair", id}, {"records", members}});
        }
        JsonValue document = {{"title", summary.title},
                              {"name", curve.GetName().GetString()},
                              {"damping", envelope.GetDamp()},
                              {"statistic", complete ? "envelope" : "percentile"},
                              {"points", points},
                              {"pairs", pairList},
                              {"ec8",
                               {{"peak_g", rating.Peak},
                                {"peak_period_s", rating.PeakPeriod},
                                {"damping", rating.Damping},
                                {"verdict", summary.verdict}}}};
        if (!complete) {
            document["percentile"] = *options.percentile;
        }
        if (!options.spectra.empty()) {
            document["spectra_file"] = options.spectra;
            document["spectrum_number"] = number;
        }
        PrintJson(out, document);
        return summary;
    }

    Table table;
    table.AddColumn("T (s)");
    table.AddColumn("Sa (g)");
    if (complete) {
        table.AddColumn(options.pairs ? "pair" : "record");
    }
    for (int i = 0; i < curve.GetNP(); ++i) {
        std::vector<std::string> cells = {NumberText(curve[i].GetX()), NumberText(curve[i].GetY())};
        if (complete) {
            cells.push_back(i < track.GetNP() ? std::to_string(static_cast<long>(track[i].GetY()))
                                              : std::string());
        }
        table.AddRow(std::move(cells));
    }
    if (options.format.Format() == OutputFormat::Csv) {
        table.PrintCsv(out);
        return summary;
    }
    out << summary.title << '\n' << curve.GetName().GetString() << " from " << options.set << '\n';
    for (const auto& [id, members] : pairs) {
        out << "  pair " << id << ":";
        for (size_t k = 0; k < members.size(); ++k) {
            out << (k ? " +" : "") << " record " << members[k] << " ("
                << records.GetAccelerogram(members[k]).Identifier.GetString() << ")";
        }
        out << '\n';
    }
    if (options.pairs) {
        out << "  composed along " << NumberText(options.direction) << " degrees from WE\n";
    }
    out << '\n';
    table.PrintText(out);
    out << '\n'
        << "EC8 rating: peak " << NumberText(rating.Peak)
        << " g at T = " << NumberText(rating.PeakPeriod) << " s, damping "
        << NumberText(rating.Damping) << '\n'
        << "  " << summary.verdict << '\n';
    if (!options.spectra.empty()) {
        out << "Added as spectrum " << number << " of " << options.spectra << '\n';
    }
    return summary;
}

void AddEnvelopeCommand(CLI::App& app, Action& action) {
    auto options = std::make_shared<EnvelopeOptions>();
    CLI::App* command = app.add_subcommand(
        "envelope", "Envelope or percentile acceleration spectrum over records or pairs of "
                    "records, with the record that gave each maximum and its EC8 rating");
    command->add_option("SET", options->set, "Record set (*.acc)")->required();
    command
        ->add_option("--records", options->records,
                     "Records to use: all, or numbers and ranges like 1,3,5-8")
        ->check(CLI::Validator(
            [](std::string& text) {
                try {
                    ParseRecordList(text);
                    return std::string();
                } catch (const std::invalid_argument& e) {
                    return std::string(e.what());
                }
            },
            "LIST"))
        ->capture_default_str();
    CLI::Option* modes = command->add_option(
        "--modes", options->modes,
        "Periods of a structure: a file of 'period X Y Z' lines, one per mode ('#' comments)");
    CLI::Option* maxPeriod =
        command
            ->add_option("--tmax", options->maxPeriod,
                         "Last period of a regular grid (s), computed when it is a multiple of "
                         "the step")
            ->check(kEnvelopeTmax);
    CLI::Option* step =
        command->add_option("--dt", options->periodStep, "Step of the regular grid (s)")
            ->check(kEnvelopeDt);
    modes->excludes(maxPeriod)->excludes(step);
    maxPeriod->needs(step);
    step->needs(maxPeriod);
    command->add_option("--damping", options->damping, "Damping ratio")
        ->check(kDampingRatioOrZero)
        ->capture_default_str();
    CLI::Option* pairs = command->add_flag(
        "--pairs", options->pairs,
        "Compose the horizontal records of each event two by two (at right angles)");
    command
        ->add_option("--direction", options->direction,
                     "Direction of the composition, degrees from WE counter-clockwise")
        ->needs(pairs)
        ->check(kFinite)
        ->capture_default_str();
    command
        ->add_option("--percentile", options->percentile,
                     "Keep this percentile of the signals instead of their maximum")
        ->check(NumberIn(50.0, 100.0, "a percentile"));
    command->add_option("--spectra", options->spectra,
                        "Spectra archive to add the result to (created when missing)");
    command->add_option("--threads", options->threads, "Threads to compute on (0: one per core)")
        ->check(CLI::Range(0u, kMostThreads))
        ->capture_default_str();
    AddPlotOptions(*command, options->plot);
    AddFormatFlags(*command, options->format, true);
    command->footer("Ctrl-C cancels the run; nothing is written then.");
    SetAction(*command, action, options,
              [](const EnvelopeOptions& o) { RunEnvelope(o, std::cout); });
}

} // namespace seisplot::cli
