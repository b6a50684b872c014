#pragma once
// How the commands print data: aligned text tables, CSV and JSON, and printf-style number text.

#include <nlohmann/json.hpp>

#include <iosfwd>
#include <string>
#include <vector>

namespace seisplot::cli {

// JSON objects keep their keys in the order they were given.
using JsonValue = nlohmann::ordered_json;

enum class OutputFormat { Text, Csv, Json };

// The shortest text that reads back as the same double ("0.05", "1e-09", "nan").
std::string NumberText(double value);

// printf-style formatting into a std::string.
std::string Printf(const char* format, ...) __attribute__((format(printf, 1, 2)));

// A table of text cells under column titles.
class Table {
public:
    enum class Align { Left, Right };

    void AddColumn(std::string title, Align align = Align::Right);
    // One cell per column.
    void AddRow(std::vector<std::string> cells);
    size_t RowCount() const { return m_rows.size(); }

    // Columns padded to their widest cell, two blanks apart, the titles underlined.
    void PrintText(std::ostream& out, const std::string& indent = "") const;
    // RFC 4180: comma separated, a cell quoted when it holds a comma, a quote or a line break.
    void PrintCsv(std::ostream& out) const;
    // Text or CSV; JSON is built by each command from its values.
    void Print(std::ostream& out, OutputFormat format) const;

private:
    struct Column {
        std::string title;
        Align align;
    };
    std::vector<Column> m_columns;
    std::vector<std::vector<std::string>> m_rows;
};

// The JSON document, indented by two, followed by a line feed.
void PrintJson(std::ostream& out, const JsonValue& document);

} // namespace seisplot::cli
