#include "Output.h"

#include <algorithm>
#include <charconv>
#include <cstdarg>
#include <cstdio>
#include <ostream>
#include <stdexcept>

namespace seisplot::cli {

std::string NumberText(double value) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::general).ptr;
    return std::string(text, end);
}

std::string Printf(const char* format, ...) {
    va_list args;
    va_start(args, format);
    va_list copy;
    va_copy(copy, args);
    const int length = std::vsnprintf(nullptr, 0, format, copy);
    va_end(copy);
    std::string text(static_cast<size_t>(std::max(length, 0)) + 1, '\0');
    std::vsnprintf(text.data(), text.size(), format, args);
    va_end(args);
    text.resize(text.size() - 1);
    return text;
}

void Table::AddColumn(std::string title, Align align) {
    m_columns.push_back({std::move(title), align});
}

void Table::AddRow(std::vector<std::string> cells) {
    if (cells.size() != m_columns.size()) {
        throw std::logic_error("table row with " + std::to_string(cells.size()) + " cells for " +
                               std::to_string(m_columns.size()) + " columns");
    }
    m_rows.push_back(std::move(cells));
}

void Table::PrintText(std::ostream& out, const std::string& indent) const {
    std::vector<size_t> widths;
    for (const Column& column : m_columns) {
        widths.push_back(column.title.size());
    }
    for (const auto& row : m_rows) {
        for (size_t c = 0; c < row.size(); ++c) {
            widths[c] = std::max(widths[c], row[c].size());
        }
    }
    const auto line = [&](const std::vector<std::string>& cells) {
        std::string text = indent;
        for (size_t c = 0; c < cells.size(); ++c) {
            const std::string padding(widths[c] - cells[c].size(), ' ');
            if (c > 0) {
                text += "  ";
            }
            const bool last = c + 1 == cells.size();
            if (m_columns[c].align == Align::Right) {
                text += padding + cells[c];
            } else {
                text += cells[c] + (last ? "" : padding);
            }
        }
        out << text << '\n';
    };
    std::vector<std::string> titles;
    std::vector<std::string> rules;
    for (size_t c = 0; c < m_columns.size(); ++c) {
        titles.push_back(m_columns[c].title);
        rules.emplace_back(widths[c], '-');
    }
    line(titles);
    line(rules);
    for (const auto& row : m_rows) {
        line(row);
    }
}

namespace {

std::string CsvCell(const std::string& cell) {
    if (cell.find_first_of(",\"\r\n") == std::string::npos) {
        return cell;
    }
    std::string quoted = "\"";
    for (char ch : cell) {
        quoted += ch;
        if (ch == '"') {
            quoted += '"';
        }
    }
    return quoted + '"';
}

} // namespace

void Table::PrintCsv(std::ostream& out) const {
    for (size_t c = 0; c < m_columns.size(); ++c) {
        out << (c ? "," : "") << CsvCell(m_columns[c].title);
    }
    out << '\n';
    for (const auto& row : m_rows) {
        for (size_t c = 0; c < row.size(); ++c) {
            out << (c ? "," : "") << CsvCell(row[c]);
        }
        out << '\n';
    }
}

void Table::Print(std::ostream& out, OutputFormat format) const {
    if (format == OutputFormat::Csv) {
        PrintCsv(out);
    } else {
        PrintText(out);
    }
}

void PrintJson(std::ostream& out, const JsonValue& document) {
    // Texts from record files need not be UTF-8: bytes that are not become U+FFFD.
    out << document.dump(2, ' ', false, JsonValue::error_handler_t::replace) << '\n';
}

} // namespace seisplot::cli
