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

// Checks for numbers. Every one refuses what is not a finite number (nan, inf) and names the
// accepted range in its message.
//
// A finite number from `low` to `high`; `open` leaves out the ends it names. `what` says what
// the number is ("a last period in s").
enum class OpenEnds { None, Low, High, Both };
CLI::Validator NumberIn(double low, double high, const std::string& what,
                        OpenEnds open = OpenEnds::None);
// A damping ratio in 0 < D < 1 (or 0 <= D < 1), a finite value > 0, any finite value.
extern const CLI::Validator kDampingRatio;
extern const CLI::Validator kDampingRatioOrZero;
extern const CLI::Validator kPositive;
extern const CLI::Validator kFinite;
// Period grids as the dialogs take them. Record spectra, record reports and code spectra: last
// period 0.1 to 100 s, step 0.0001 to 1 s. Envelope runs: last period up to 50 s, step up to
// 10000 s.
extern const CLI::Validator kSpectrumTmax;
extern const CLI::Validator kSpectrumDt;
extern const CLI::Validator kEnvelopeTmax;
extern const CLI::Validator kEnvelopeDt;
// A record or spectrum number: a whole number from 1.
extern const CLI::Validator kNumberFromOne;

} // namespace seisplot::cli
