#pragma once
// What every subcommand declaration shares: the action a parsed command line runs, and the
// output format flags.

#include "Output.h"

// GCC 12 sees a null dereference inside CLI11's string splitting that cannot happen.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnull-dereference"
#include <CLI/CLI.hpp>
#pragma GCC diagnostic pop

#include <functional>
#include <memory>

namespace seisplot::cli {

// Set by the subcommand that the command line selected; run once parsing has succeeded.
using Action = std::function<void()>;

struct FormatFlags {
    bool json = false;
    bool csv = false;
    OutputFormat Format() const {
        return json ? OutputFormat::Json : csv ? OutputFormat::Csv : OutputFormat::Text;
    }
};

// --json, and --csv when `withCsv` (the two exclude each other).
void AddFormatFlags(CLI::App& command, FormatFlags& flags, bool withCsv);

// Declares that `command`, once selected, runs `run` on its options (kept alive by the action).
template <class Options, class Run>
void SetAction(CLI::App& command, Action& action, std::shared_ptr<Options> options, Run run) {
    command.callback([&action, options, run] { action = [options, run] { run(*options); }; });
}

// Checks for numbers: a damping ratio in 0 < D < 1 (or 0 <= D < 1), a value > 0.
extern const CLI::Validator kDampingRatio;
extern const CLI::Validator kDampingRatioOrZero;
extern const CLI::Validator kPositive;

} // namespace seisplot::cli
