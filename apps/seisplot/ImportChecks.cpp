#include "ImportChecks.h"

#include "Errors.h"
#include "Output.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>
#include <unistd.h>

namespace seisplot::cli {
namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

// The first point of `curve` (from 0) whose time or value is not finite, or whose time does
// not come after the time before it; with the reason.
struct Fault {
    int index;
    bool notFinite;
};
std::optional<Fault> FirstFault(const PCurve& curve) {
    for (int i = 0; i < curve.GetNP(); ++i) {
        if (!std::isfinite(curve[i].GetX()) || !std::isfinite(curve[i].GetY())) {
            return Fault{i, true};
        }
        if (i > 0 && !(curve[i].GetX() > curve[i - 1].GetX())) {
            return Fault{i, false};
        }
    }
    return std::nullopt;
}

std::string Quoted(std::string line) {
    while (!line.empty() && (line.back() == '\r' || line.back() == '\n')) {
        line.pop_back();
    }
    return "'" + (line.size() > 40 ? line.substr(0, 40) + "..." : line) + "'";
}

bool Blank(const std::string& line) {
    for (unsigned char c : line) {
        if (!std::isspace(c)) {
            return false;
        }
    }
    return true;
}

// A line the two-column reader takes: not a comment, and two numbers first ("%le %le").
bool TwoNumbers(const std::string& line) {
    if (line.empty() || std::strchr("$%\\&#\n", line[0]) != nullptr) {
        return false;
    }
    char* end = nullptr;
    std::strtod(line.c_str(), &end);
    if (end == line.c_str()) {
        return false;
    }
    const char* second = end;
    std::strtod(second, &end);
    return end != second;
}

bool Comment(const std::string& line) {
    return !line.empty() && std::strchr("$%\\&#", line[0]) != nullptr;
}

void CheckTwoColumn(const std::string& file, const std::string& path, const PCurve& curve,
                    std::vector<std::string>& warnings) {
    const std::optional<Fault> fault = FirstFault(curve);
    std::ifstream in(path, std::ios::binary);
    std::string line;
    long row = 0;
    long points = 0;
    long faultRow = 0;
    long previousRow = 0;
    long lastDataRow = 0;
    long skipped = 0;
    long firstSkipped = 0;
    std::string skippedLine;
    bool commas = false;
    for (; std::getline(in, line); ++row) {
        if (TwoNumbers(line)) {
            if (fault && points == fault->index) {
                faultRow = row + 1;
                previousRow = lastDataRow;
            }
            lastDataRow = row + 1;
            ++points;
        } else if (!Blank(line) && !Comment(line)) {
            if (skipped++ == 0) {
                firstSkipped = row + 1;
                skippedLine = line;
            }
            commas = commas || line.find(',') != std::string::npos;
        }
    }
    if (points == 0) {
        Fail(file + ": no line holds two numbers, a time and an acceleration" +
             (commas ? " (the values must be separated by blanks, not commas)" : ""));
    }
    if (fault) {
        const int i = fault->index;
        if (fault->notFinite) {
            Fail(file + ": row " + std::to_string(faultRow) + ": the time and acceleration must " +
                 "be finite numbers, not " +
                 Quoted(NumberText(curve[i].GetX()) + " " + NumberText(curve[i].GetY())));
        }
        Fail(file + ": row " + std::to_string(faultRow) + ": the time " +
             NumberText(curve[i].GetX()) + " s does not come after " +
             NumberText(curve[i - 1].GetX()) + " s of row " + std::to_string(previousRow) +
             "; the times must increase");
    }
    if (skipped > 0) {
        warnings.push_back(
            file + ": row " + std::to_string(firstSkipped) + " " + Quoted(skippedLine) +
            " is not two numbers and was skipped" +
            (skipped > 1 ? " (" + std::to_string(skipped - 1) + " more such rows were skipped)"
                         : ""));
    }
    const double start = curve[0].GetX();
    if (start != 0.0) {
        warnings.push_back(file + ": the record starts at t = " + NumberText(start) +
                           " s, not at 0; its spectra would miss its start (--rebase-time "
                           "starts it at 0)");
    }
}

// The value of an ITACA header line "KEY: value" when `line` is that key's line.
bool HeaderValue(const std::string& line, const char* key, std::string& value) {
    const size_t length = std::strlen(key);
    if (line.compare(0, length, key) != 0) {
        return false;
    }
    value = line.substr(length);
    return true;
}

// A line of the form "WORD:" opening an ITACA header line, not a datum.
bool LooksLikeHeader(const std::string& line) {
    size_t i = 0;
    while (i < line.size() && (std::isupper(static_cast<unsigned char>(line[i])) ||
                               std::isdigit(static_cast<unsigned char>(line[i])) ||
                               std::strchr("_/^", line[i]) != nullptr)) {
        ++i;
    }
    return i > 0 && i < line.size() && line[i] == ':';
}

void CheckItaca(const std::string& file, const std::string& path, const PCurve& curve,
                std::vector<std::string>& warnings) {
    std::ifstream in(path, std::ios::binary);
    std::string line;
    std::string value;
    long row = 0;
    long ndataRow = 0;
    long stepRow = 0;
    long dataRow = 0;
    long ndata = 0;
    bool units = false;
    bool afterUser5 = false;
    while (dataRow == 0 && std::getline(in, line)) {
        ++row;
        if (HeaderValue(line, "NDATA:", value)) {
            ndataRow = row;
            ndata = std::strtol(value.c_str(), nullptr, 10);
        } else if (HeaderValue(line, "SAMPLING_INTERVAL_S:", value)) {
            stepRow = row;
        } else if (HeaderValue(line, "UNITS:", value)) {
            units = true;
        } else if (HeaderValue(line, "USER5:", value)) {
            afterUser5 = true;
        } else if (!LooksLikeHeader(line) && (line.compare(0, 5, "0.000") == 0 || afterUser5)) {
            dataRow = row;
        }
    }
    if (ndataRow != 0 && ndata <= 0) {
        Fail(file + ": row " + std::to_string(ndataRow) + ": NDATA is " + std::to_string(ndata) +
             "; the number of data must be positive");
    }
    if (const std::optional<Fault> fault = FirstFault(curve)) {
        const int i = fault->index;
        if (fault->notFinite && std::isfinite(curve[i].GetX())) {
            Fail(file + ": row " + std::to_string(dataRow + i) +
                 ": the datum must be a finite number, not " + NumberText(curve[i].GetY()));
        }
        if (stepRow == 0) {
            Fail(file + ": no SAMPLING_INTERVAL_S line before the data");
        }
        Fail(file + ": row " + std::to_string(stepRow) +
             ": the sampling interval must be a positive number");
    }
    if (!units) {
        warnings.push_back(file + ": no UNITS line; the data are taken as m/s^2");
    }
}

} // namespace

std::unique_ptr<UnmarkedCopy> UnmarkedCopy::Of(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    char head[3] = {};
    if (!in.read(head, 3) || std::memcmp(head, kByteOrderMark, 3) != 0) {
        return nullptr;
    }
    std::string copy = (std::filesystem::temp_directory_path() / "seisplot-import-XXXXXX").string();
    const int fd = ::mkstemp(copy.data());
    if (fd < 0) {
        Fail("cannot read " + path + " without its byte-order mark: no temporary file");
    }
    ::close(fd);
    std::unique_ptr<UnmarkedCopy> unmarked(new UnmarkedCopy(copy));
    std::ofstream out(copy, std::ios::binary);
    out << in.rdbuf();
    if (!out.flush()) {
        Fail("cannot read " + path + " without its byte-order mark: the copy failed");
    }
    return unmarked;
}

UnmarkedCopy::~UnmarkedCopy() {
    std::remove(m_path.c_str());
}

void CheckImportedRecord(const std::string& file, const std::string& path, RecordFileKind kind,
                         const Accelerogram& record, std::vector<std::string>& warnings) {
    if (kind == RecordFileKind::TwoColumn) {
        CheckTwoColumn(file, path, record.Record, warnings);
    } else {
        CheckItaca(file, path, record.Record, warnings);
    }
}

void RebaseTime(Accelerogram& record) {
    PCurve& curve = record.Record;
    if (curve.GetNP() == 0 || curve[0].GetX() == 0.0) {
        return;
    }
    const double start = curve[0].GetX();
    for (int i = 0; i < curve.GetNP(); ++i) {
        curve[i].SetX(curve[i].GetX() - start);
    }
    // The summary line ends with the record's first and last time.
    std::string summary = record.Explanation.GetString();
    const size_t at = summary.find("Tmin = ");
    if (at != std::string::npos) {
        summary = summary.substr(0, at) +
                  Printf("Tmin = %7.3lf  Tmax= %7.3lf", curve.GetMinX(), curve.GetMaxX());
        record.Explanation = summary.c_str();
    }
}

} // namespace seisplot::cli
