// import: record files (ITACA ASCII and two-column text) into a record set.

#include "Archives.h"
#include "Commands.h"
#include "ConsoleProgress.h"
#include "Errors.h"
#include "FileChecks.h"
#include "ImportChecks.h"

#include "host/Units.h"
#include "platform/core/ConsoleUserInterface.h"
#include "records/ImportFiles.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <unistd.h>

namespace seisplot::cli {
namespace {

const char* const kUnitsHint = "give them with --units mm|cm|m|in";

// The units of the two-column files: the length unit of --units, or the user's answer at the
// terminal. Fails when there is neither.
Units TwoColumnUnits(const ImportOptions& options, const std::string& firstFile, int fileCount) {
    Units units;
    int cancelled = 0;
    if (!options.units.empty()) {
        seisplot::ConsoleUserInterface preset(std::cin, std::cerr, false);
        preset.PresetUnit(options.units.c_str());
        seisplot::ScopedUserInterface scope(preset);
        cancelled = units.Reset(nullptr, 1, 0, 1, 0);
        if (cancelled == 0 && options.units != units.GetLString()) {
            Fail("the length unit '" + options.units + "' was not taken; " + kUnitsHint);
        }
    } else {
        if (::isatty(STDIN_FILENO)) {
            AfxMessageBox(14840);
            if (fileCount > 1) {
                std::cerr << "seisplot: the units chosen serve all " << fileCount
                          << " two-column files\n";
            }
        }
        cancelled = units.Reset(nullptr, 1, 0, 1, 0);
    }
    if (cancelled != 0) {
        Fail("the two-column file " + firstFile + " needs its units: " + kUnitsHint);
    }
    return units;
}

} // namespace

void RunImport(const ImportOptions& options, std::ostream& out) {
    std::vector<seisplot::RecordFileKind> kinds;
    std::vector<InputFile> inputs;
    std::string firstTwoColumn;
    int twoColumnCount = 0;
    for (const std::string& file : options.files) {
        const seisplot::RecordFileKind kind = seisplot::RecordFileKindOf(file.c_str());
        if (kind == seisplot::RecordFileKind::Unknown) {
            Fail("cannot import " + file +
                 ": unrecognized file extension (known: .ASC .RA .TR .UP .SEW .SNS .txt .plt)");
        }
        if (kind == seisplot::RecordFileKind::TwoColumn && twoColumnCount++ == 0) {
            firstTwoColumn = file;
        }
        kinds.push_back(kind);
        inputs.push_back({file, "a record file"});
    }
    RefuseOverwritingInput("-o", options.output, inputs);
    for (const std::string& file : options.files) {
        const std::string problem = InputProblem(file);
        if (!problem.empty()) {
            Fail("cannot import " + file + ": " + problem + "; " + options.output +
                 (options.append ? " left as it was" : " not written"));
        }
    }

    AccelerogramColl records;
    if (options.append && std::filesystem::exists(options.output)) {
        LoadRecordSet(options.output, records);
    }
    Units units =
        twoColumnCount > 0 ? TwoColumnUnits(options, firstTwoColumn, twoColumnCount) : Units();

    JsonValue imported = JsonValue::array();
    JsonValue skipped = JsonValue::array();
    std::vector<std::pair<std::string, std::string>> summaries;
    std::vector<std::string> warnings;
    {
        ConsoleProgress progress("import");
        progress.SetRange32(0, static_cast<int>(options.files.size()));
        progress.SetStep(1);
        for (size_t i = 0; i < options.files.size(); ++i) {
            progress.StepIt();
            const std::string& file = options.files[i];
            const CString name = seisplot::FileNameOf(file.c_str());
            if (records.FindAccelerogramFileId(name) != 0) {
                std::cerr << "seisplot: The accelerogram " << name.GetString()
                          << " is already in the set and will NOT be added.\n";
                skipped.push_back(file);
                continue;
            }
            const std::unique_ptr<UnmarkedCopy> unmarked = UnmarkedCopy::Of(file);
            const std::string read = unmarked ? unmarked->Path() : file;
            // Read in place in the set: a long record is not copied.
            records.AddAccelerogram(Accelerogram());
            Accelerogram& record = records.GetAccelerogram(records.GetAccelerogramNum());
            const CString path(read.c_str());
            const int failed = kinds[i] == seisplot::RecordFileKind::Itaca
                                   ? record.ReadASC(1, name, path)
                                   : record.ReadTXTPLT(1, name, path, units);
            const std::string untouched =
                options.output + (options.append ? " left as it was" : " not written");
            if (failed != 0) {
                Fail("unable to read " + file + "; " + untouched);
            }
            try {
                CheckImportedRecord(file, read, kinds[i], record, warnings);
            } catch (const CommandError& e) {
                Fail(std::string("cannot import ") + e.what() + "; " + untouched);
            }
            if (options.rebaseTime) {
                RebaseTime(record);
            }
            summaries.emplace_back(name.GetString(), record.Explanation.GetString());
            imported.push_back({{"file", file},
                                {"identifier", record.Identifier.GetString()},
                                {"number", records.GetAccelerogramNum()},
                                {"summary", record.Explanation.GetString()},
                                {"pga_g", record.GetPga()},
                                {"points", record.Record.GetNP()}});
        }
    }
    for (std::string& warning : warnings) {
        if (!(options.rebaseTime && warning.find("--rebase-time") != std::string::npos)) {
            std::cerr << "seisplot: warning: " << warning << '\n';
        }
    }
    SaveRecordSet(options.output, records);

    if (options.quiet) {
        return;
    }
    if (options.format.Format() == OutputFormat::Json) {
        PrintJson(out, {{"output", options.output},
                        {"records", records.GetAccelerogramNum()},
                        {"imported", imported},
                        {"skipped", skipped}});
        return;
    }
    size_t width = 0;
    for (const auto& summary : summaries) {
        width = std::max(width, summary.first.size());
    }
    for (const auto& [name, explanation] : summaries) {
        out << name << std::string(width - name.size() + 2, ' ') << explanation << '\n';
    }
    const unsigned long count = records.GetAccelerogramNum();
    out << options.output << ": " << count << (count == 1 ? " record (" : " records (")
        << imported.size() << " imported, " << skipped.size() << " skipped)\n";
}

void AddImportCommand(CLI::App& app, Action& action) {
    auto options = std::make_shared<ImportOptions>();
    CLI::App* command = app.add_subcommand(
        "import", "Import record files (ITACA ASCII .ASC .RA .TR .UP .SEW .SNS, two-column "
                  ".txt .plt) into a record set");
    command->add_option("FILE", options->files, "Record files to import")->required();
    command->add_option("-o,--output", options->output, "Record set to write (*.acc)")->required();
    command->add_flag("--append", options->append,
                      "Add to the records already in the set (otherwise it is replaced)");
    command
        ->add_option("--units", options->units,
                     "Length unit of the two-column files (time in s); asked at the terminal "
                     "when not given")
        ->check(CLI::IsMember({"mm", "cm", "m", "in"}));
    command->add_flag("--rebase-time", options->rebaseTime,
                      "Shift the times of a record that does not start at 0 so that it does");
    command->add_flag("-q,--quiet", options->quiet, "Print nothing on success");
    AddFormatFlags(*command, options->format, false);
    command->footer(
        "Files whose name is already a record's file name in the set are skipped. Nothing is "
        "written when a file cannot be read, or holds a value that is not a finite number, "
        "times that do not increase, an NDATA below 1 or no data line. Skipped lines, a "
        "missing UNITS line and a record that does not start at 0 are warned of.");
    SetAction(*command, action, options, [](const ImportOptions& o) { RunImport(o, std::cout); });
}

} // namespace seisplot::cli
