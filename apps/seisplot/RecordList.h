#pragma once
// Record numbers as the user types them: "all", or numbers and ranges "1,3,5-8".

#include <optional>
#include <string>
#include <vector>

namespace seisplot::cli {

// The numbers of `text` in the order given, duplicates kept; nothing for "all". Throws
// std::invalid_argument with a message naming the faulty part.
std::optional<std::vector<unsigned long>> ParseRecordList(const std::string& text);

// The check state of each of `count` records (index i for record i + 1): the listed numbers,
// or every record for nothing. Fails (CommandError) for a number outside 1 ... count, naming
// `path`.
std::vector<bool> CheckedRecords(const std::optional<std::vector<unsigned long>>& numbers,
                                 unsigned long count, const std::string& path);

} // namespace seisplot::cli
