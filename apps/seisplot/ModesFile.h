#pragma once
// The modes file of a structure (see spectra/ModesFile.h), as the command line reads it: the
// file checked first, so that a message names the real cause.

#include "spectra/Envelope.h"

#include <string>

namespace seisplot::cli {

// Fails (CommandError) with the reader's message.
EnvelopeModes ReadModesFile(const std::string& path);

} // namespace seisplot::cli
