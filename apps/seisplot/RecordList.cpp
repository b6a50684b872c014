#include "RecordList.h"

#include "Errors.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace seisplot::cli {
namespace {

unsigned long Number(const std::string& text, const std::string& part) {
    if (text.empty() || text.size() > 9 ||
        !std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c); })) {
        throw std::invalid_argument("'" + part + "' is not a record number or a range like 5-8");
    }
    const unsigned long number = std::stoul(text);
    if (number == 0) {
        throw std::invalid_argument("record numbers start at 1, not 0");
    }
    return number;
}

} // namespace

std::optional<std::vector<unsigned long>> ParseRecordList(const std::string& text) {
    if (text == "all") {
        return std::nullopt;
    }
    std::vector<unsigned long> numbers;
    size_t start = 0;
    for (;;) {
        const size_t comma = text.find(',', start);
        const std::string part = text.substr(start, comma - start);
        const size_t dash = part.find('-');
        if (dash == std::string::npos) {
            numbers.push_back(Number(part, part));
        } else {
            const unsigned long first = Number(part.substr(0, dash), part);
            const unsigned long last = Number(part.substr(dash + 1), part);
            if (last < first) {
                throw std::invalid_argument("the range '" + part + "' runs backwards");
            }
            for (unsigned long n = first; n <= last; ++n) {
                numbers.push_back(n);
            }
        }
        if (comma == std::string::npos) {
            break;
        }
        start = comma + 1;
    }
    return numbers;
}

std::vector<bool> CheckedRecords(const std::optional<std::vector<unsigned long>>& numbers,
                                 unsigned long count, const std::string& path) {
    if (!numbers) {
        return std::vector<bool>(count, true);
    }
    std::vector<bool> checked(count, false);
    for (unsigned long n : *numbers) {
        if (n > count) {
            Fail("there is no record " + std::to_string(n) + " in " + path + " (it holds " +
                 std::to_string(count) + (count == 1 ? " record)" : " records)"));
        }
        checked[n - 1] = true;
    }
    return checked;
}

} // namespace seisplot::cli
