#pragma once
// What the single-file and the multi-file import share: the file dialog's filter and
// default extension, how a file name is taken from a path, and which reader a file needs.

#include "platform/core/CString.h"

namespace seisplot {

inline constexpr const char* kRecordFileFilter =
    "ITACA Ascii ASC (*.asc)|*.asc|Ascii TXT (*.txt)|*.txt|ITACA Ascii ASC (*.RA)|*.RA|"
    "ITACA Ascii ASC (*.TR)|*.TR|ITACA Ascii ASC (*.UP)|*.UP|Ascii PLT (*.plt)|*.plt|"
    "All file extensions (*.*)|*.*||";
inline constexpr const char* kRecordDefaultExtension = "*.txt; *.plt";

// The part of a path after its last folder separator ('/' or '\').
CString FileNameOf(const CString& path);

enum class RecordFileKind { Itaca, TwoColumn, Unknown };

// The reader a file needs by the end of its name, in any letter case: ITACA ASCII for
// "ASC", "RA", "TR", "UP", "SEW", "SNS", two columns for "PLT" and "TXT". The three-letter
// endings are tested first, so "X.TXT" is a two-column file although it ends in "XT".
RecordFileKind RecordFileKindOf(const CString& name);
// The reader a file needs by its extension alone (no dot), in any letter case: the same
// endings, matched whole.
RecordFileKind RecordFileKindOfExtension(const CString& extension);

} // namespace seisplot
