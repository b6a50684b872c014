#include "CommandLine.h"

#include <string>

namespace seisplot::cli {

void AddFormatFlags(CLI::App& command, FormatFlags& flags, bool withCsv) {
    CLI::Option* json = command.add_flag("--json", flags.json, "Print the data as JSON");
    if (withCsv) {
        CLI::Option* csv =
            command.add_flag("--csv", flags.csv, "Print the table as CSV (comma separated)");
        json->excludes(csv);
    }
}

namespace {

std::string CheckNumber(const std::string& text, bool (*accept)(double), const char* what) {
    try {
        size_t used = 0;
        const double value = std::stod(text, &used);
        if (used == text.size() && accept(value)) {
            return {};
        }
    } catch (const std::exception&) {
    }
    return "'" + text + "' is not " + what;
}

} // namespace

const CLI::Validator kDampingRatio(
    [](std::string& text) {
        return CheckNumber(
            text, [](double v) { return v > 0.0 && v < 1.0; },
            "a damping ratio (more than 0, less than 1; 0.05 for 5%)");
    },
    "RATIO in (0,1)");

const CLI::Validator kDampingRatioOrZero(
    [](std::string& text) {
        return CheckNumber(
            text, [](double v) { return v >= 0.0 && v < 1.0; },
            "a damping ratio (0 or more, less than 1; 0.05 for 5%)");
    },
    "RATIO in [0,1)");

const CLI::Validator kPositive(
    [](std::string& text) {
        return CheckNumber(
            text, [](double v) { return v > 0.0; }, "a number greater than 0");
    },
    "POSITIVE");

} // namespace seisplot::cli
