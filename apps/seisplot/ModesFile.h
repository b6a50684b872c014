#pragma once
// The modes file of a structure: one line "period X Y Z" per mode (period in s, then the
// mode's participation fractions along X, Y and Z); blank lines and everything after a '#'
// are ignored. Every mode is checked.

#include "spectra/Envelope.h"

#include <string>

namespace seisplot::cli {

// Fails (CommandError) naming the file and line of the first line that is not a mode, and for
// a file without modes.
EnvelopeModes ReadModesFile(const std::string& path);

} // namespace seisplot::cli
