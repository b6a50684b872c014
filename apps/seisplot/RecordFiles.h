#pragma once
// Which reader a record file needs, told by the end of its name as the library's multi-file
// import tells it: ITACA ASCII (.ASC, .RA, .TR, .UP, .SEW, .SNS) or two columns (.txt, .plt).

#include <string>

namespace seisplot::cli {

enum class RecordFileKind { Itaca, TwoColumn, Unknown };

// `name` is a file name or a path; letter case does not matter.
RecordFileKind RecordFileKindOf(const std::string& name);

} // namespace seisplot::cli
