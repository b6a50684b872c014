// report and report-spectrum: the text reports of a record and of a spectrum.

#include "Archives.h"
#include "AtomicFile.h"
#include "Commands.h"
#include "FileChecks.h"
#include "WorkLimits.h"

#include "records/RecordReport.h"

#include <iostream>

namespace seisplot::cli {
namespace {

void Deliver(const CString& text, const ReportOptions& options, std::ostream& out,
             const std::string& what) {
    if (options.output.empty()) {
        out << text.GetString();
        return;
    }
    WriteTextFile(options.output,
                  std::string_view(text.GetString(), static_cast<size_t>(text.GetLength())));
    out << "The report of " << what << " is in " << options.output << '\n';
}

} // namespace

void RunRecordReport(const ReportOptions& options, std::ostream& out) {
    CheckPeriodCount(options.maxPeriod, options.periodStep);
    if (!options.output.empty()) {
        RefuseOverwritingInput("-o", options.output, {{options.set, "the record set"}});
    }
    AccelerogramColl records;
    LoadRecordSet(options.set, records);
    Accelerogram& record = RecordAt(records, options.number, options.set);
    const CString text = BuildRecordReport(record, GridEnd(options.maxPeriod, options.periodStep),
                                           options.periodStep);
    Deliver(text, options, out, "record " + std::to_string(options.number));
}

void RunSpectrumReport(const ReportOptions& options, std::ostream& out) {
    if (!options.output.empty()) {
        RefuseOverwritingInput("-o", options.output, {{options.set, "the spectra archive"}});
    }
    SpectrumColl spectra;
    LoadSpectrumSet(options.set, spectra);
    Spectrum& spectrum = SpectrumAt(spectra, options.number, options.set);
    CString text;
    spectrum.DoReport(text);
    Deliver(text, options, out, "spectrum " + std::to_string(options.number));
}

void AddReportCommands(CLI::App& app, Action& action) {
    auto record = std::make_shared<ReportOptions>();
    CLI::App* command = app.add_subcommand(
        "report", "Text report of one record: its data and its spectra at 5% damping");
    command->add_option("SET", record->set, "Record set (*.acc)")->required();
    command->add_option("N", record->number, "Record number (from 1)")
        ->required()
        ->check(kNumberFromOne);
    command
        ->add_option("--tmax", record->maxPeriod,
                     "Last period of the spectra (s), computed when it is a multiple of the step")
        ->check(kSpectrumTmax)
        ->capture_default_str();
    command->add_option("--dt", record->periodStep, "Period step of the spectra (s)")
        ->check(kSpectrumDt)
        ->capture_default_str();
    command->add_option("-o,--output", record->output,
                        "File to write the report to (default: the standard output)");
    SetAction(*command, action, record,
              [](const ReportOptions& o) { RunRecordReport(o, std::cout); });

    auto spectrum = std::make_shared<ReportOptions>();
    CLI::App* spectrumCommand =
        app.add_subcommand("report-spectrum", "Text report of one spectrum of a spectra archive");
    spectrumCommand->add_option("FILE", spectrum->set, "Spectra archive")->required();
    spectrumCommand->add_option("N", spectrum->number, "Spectrum number (from 1)")
        ->required()
        ->check(kNumberFromOne);
    spectrumCommand->add_option("-o,--output", spectrum->output,
                                "File to write the report to (default: the standard output)");
    SetAction(*spectrumCommand, action, spectrum,
              [](const ReportOptions& o) { RunSpectrumReport(o, std::cout); });
}

} // namespace seisplot::cli
