#pragma once
// What the single-file and the multi-file import share: the file dialog's filter and
// default extension, and how a file name is taken from a path.

#include "platform/core/CString.h"

namespace seisplot {

inline constexpr const char* kRecordFileFilter =
    "ITACA Ascii ASC (*.asc)|*.asc|Ascii TXT (*.txt)|*.txt|ITACA Ascii ASC (*.RA)|*.RA|"
    "ITACA Ascii ASC (*.TR)|*.TR|ITACA Ascii ASC (*.UP)|*.UP|Ascii PLT (*.plt)|*.plt|"
    "All file extensions (*.*)|*.*||";
inline constexpr const char* kRecordDefaultExtension = "*.txt; *.plt";

// The part of a path after its last folder separator ('/' or '\').
CString FileNameOf(const CString& path);

} // namespace seisplot
