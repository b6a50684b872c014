// seisplot: the command-line tool. Records in, spectra, envelopes and reports out.
//
// Exit status: 0 success, 1 an operation failed, 2 the command line was wrong.

#include "Commands.h"
#include "Errors.h"

#include "platform/core/ConsoleUserInterface.h"
#include "platform/core/Exceptions.h"

#include <iostream>
#include <new>

namespace {

using seisplot::cli::ExitStatus;

// The command line of the subcommand that was selected, for the hint after an error.
std::string CommandName(const CLI::App& app) {
    const auto selected = app.get_subcommands();
    return selected.empty() ? "seisplot" : "seisplot " + selected.front()->get_name();
}

int Status(ExitStatus status) {
    return static_cast<int>(status);
}

} // namespace

int main(int argc, char** argv) {
    seisplot::ConsoleUserInterface console;
    seisplot::ScopedUserInterface scope(console);

    CLI::App app("seisplot: ground-motion records, response spectra, envelope spectra and code "
                 "spectra from the command line.",
                 "seisplot");
    app.require_subcommand(1);
    app.footer("Run 'seisplot COMMAND --help' for the options of a command. Exit status: 0 "
               "success, 1 failure, 2 wrong command line.");
    seisplot::cli::Action action;
    seisplot::cli::AddImportCommand(app, action);
    seisplot::cli::AddRecordCommands(app, action);
    seisplot::cli::AddSpectrumCommands(app, action);
    seisplot::cli::AddEnvelopeCommand(app, action);
    seisplot::cli::AddReportCommands(app, action);
    seisplot::cli::AddGenerateCommands(app, action);
    seisplot::cli::AddMovieCommand(app, action);
    seisplot::cli::AddCurvesCommand(app, action);
    seisplot::cli::AddDemoCommand(app, action);

    if (argc > 1 && argv[1][0] != '-') {
        const auto known =
            app.get_subcommands([&](CLI::App* command) { return command->get_name() == argv[1]; });
        if (known.empty()) {
            std::cerr << "seisplot: unknown command '" << argv[1]
                      << "'\nRun 'seisplot --help' for the list of commands.\n";
            return Status(ExitStatus::BadUsage);
        }
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        if (e.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
            return app.exit(e); // --help
        }
        std::cerr << "seisplot: " << e.what() << "\nRun '" << CommandName(app)
                  << " --help' for more information.\n";
        return Status(ExitStatus::BadUsage);
    }

    try {
        action();
        std::cout.flush();
        if (!std::cout) {
            std::cerr << "seisplot: cannot write the standard output\n";
            return Status(ExitStatus::Failed);
        }
        return Status(ExitStatus::Success);
    } catch (const seisplot::cli::CommandError& e) {
        std::cerr << "seisplot: " << e.what() << '\n';
        if (e.Status() == ExitStatus::BadUsage) {
            std::cerr << "Run '" << CommandName(app) << " --help' for more information.\n";
        }
        return Status(e.Status());
    } catch (CException* e) {
        std::cerr << "seisplot: " << e->GetMessageText().GetString() << '\n';
        e->Delete();
    } catch (const std::bad_alloc&) {
        std::cerr << "seisplot: out of memory\n";
    } catch (const std::exception& e) {
        std::cerr << "seisplot: " << e.what() << '\n';
    }
    return Status(ExitStatus::Failed);
}
