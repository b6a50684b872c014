#pragma once
// What the tool checks around the library's importers. The importers take what they can read
// and say nothing of what they skip; a careful user needs to hear of it, and some records are
// not fit to be stored at all:
//
// - refused, naming the file and row: a value that is not a finite number, times that do not
//   increase, an NDATA that is not positive, a two-column file with no line of two numbers;
// - warned of, naming the file and row: a line of a two-column file that was skipped although
//   it is neither blank nor a comment, an ITACA file without a UNITS line (its data are then
//   taken in the default unit, m/s²), a record that does not start at time 0.
//
// A file that begins with a UTF-8 byte-order mark is read from a copy without it.

#include "records/Accelerogram.h"
#include "records/ImportFiles.h"

#include <memory>
#include <string>
#include <vector>

namespace seisplot::cli {

// A copy of a file without its byte-order mark, removed with this object.
class UnmarkedCopy {
public:
    // Null when `path` has no byte-order mark.
    static std::unique_ptr<UnmarkedCopy> Of(const std::string& path);
    ~UnmarkedCopy();
    UnmarkedCopy(const UnmarkedCopy&) = delete;
    UnmarkedCopy& operator=(const UnmarkedCopy&) = delete;
    const std::string& Path() const { return m_path; }

private:
    explicit UnmarkedCopy(std::string path) : m_path(std::move(path)) {}
    std::string m_path;
};

// Checks `record`, just read by the library from `path` (shown to the user as `file`). Fails
// (CommandError) with "FILE: row R: ..." for a record that must not be stored; adds the
// warnings to `warnings`.
void CheckImportedRecord(const std::string& file, const std::string& path, RecordFileKind kind,
                         const Accelerogram& record, std::vector<std::string>& warnings);

// Shifts the times of `record` so that it starts at 0, and its summary line with them.
void RebaseTime(Accelerogram& record);

} // namespace seisplot::cli
