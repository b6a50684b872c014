#pragma once
// The modes file of a structure: one line "period X Y Z" per mode (period in s, then the
// mode's participation fractions along X, Y and Z); blank lines and everything after a '#'
// are ignored. Every mode read is checked. The command line and the studio read the same
// files.

#include "spectra/Envelope.h"

#include <string>

namespace seisplot {

// The modes of the file at `path`; false, with `error` naming the file (and the line of the
// first line that is not a mode), for a file that cannot be read, a line that is not four
// finite numbers, a period that is not positive, or a file without modes.
bool ReadModesFile(const std::string& path, EnvelopeModes& modes, std::string& error);

} // namespace seisplot
