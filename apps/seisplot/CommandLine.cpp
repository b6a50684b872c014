#include "CommandLine.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>
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

bool Inside(double v, double low, double high, OpenEnds open) {
    const bool lowOpen = open == OpenEnds::Low || open == OpenEnds::Both;
    const bool highOpen = open == OpenEnds::High || open == OpenEnds::Both;
    return std::isfinite(v) && (lowOpen ? v > low : v >= low) && (highOpen ? v < high : v <= high);
}

std::string RangeText(double low, double high, OpenEnds open) {
    const bool lowOpen = open == OpenEnds::Low || open == OpenEnds::Both;
    const bool highOpen = open == OpenEnds::High || open == OpenEnds::Both;
    if (std::isinf(high)) {
        return (lowOpen ? "more than " : "at least ") + NumberText(low);
    }
    return (lowOpen ? "more than " : "") + NumberText(low) + (lowOpen ? ", " : " to ") +
           (highOpen  ? "less than "
            : lowOpen ? "at most "
                      : "") +
           NumberText(high);
}

} // namespace

CLI::Validator NumberIn(double low, double high, const std::string& what, OpenEnds open) {
    const std::string range = RangeText(low, high, open);
    return CLI::Validator(
        [=](std::string& text) {
            size_t used = 0;
            double value = 0.0;
            try {
                value = std::stod(text, &used);
            } catch (const std::exception&) {
                used = 0;
            }
            if (used != 0 && used == text.size() && Inside(value, low, high, open)) {
                return std::string();
            }
            return "'" + text + "' is not " + what + " (" + range + ")";
        },
        range);
}

const CLI::Validator kDampingRatio =
    NumberIn(0.0, 1.0, "a damping ratio (0.05 for 5%)", OpenEnds::Both);
const CLI::Validator kDampingRatioOrZero =
    NumberIn(0.0, 1.0, "a damping ratio (0.05 for 5%)", OpenEnds::High);
const CLI::Validator kPositive =
    NumberIn(0.0, std::numeric_limits<double>::infinity(), "a finite number", OpenEnds::Low);
const CLI::Validator kFinite(
    [](std::string& text) {
        size_t used = 0;
        try {
            if (std::isfinite(std::stod(text, &used)) && used == text.size()) {
                return std::string();
            }
        } catch (const std::exception&) {
        }
        return "'" + text + "' is not a finite number";
    },
    "NUMBER");

const CLI::Validator kSpectrumTmax = NumberIn(0.1, 100.0, "a last period in s");
const CLI::Validator kSpectrumDt = NumberIn(0.0001, 1.0, "a period step in s");
const CLI::Validator kEnvelopeTmax = NumberIn(0.0, 50.0, "a last period in s", OpenEnds::Low);
const CLI::Validator kEnvelopeDt = NumberIn(0.0, 10000.0, "a period step in s", OpenEnds::Low);

const CLI::Validator kNumberFromOne(
    [](std::string& text) {
        const bool digits =
            !text.empty() && text.size() <= 9 &&
            std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c); });
        if (digits && std::stoul(text) >= 1) {
            return std::string();
        }
        return "'" + text + "' is not a number from 1";
    },
    "N");

} // namespace seisplot::cli
