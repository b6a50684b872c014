#include "ModesFile.h"

#include "Errors.h"
#include "FileChecks.h"

#include "spectra/ModesFile.h"

namespace seisplot::cli {

EnvelopeModes ReadModesFile(const std::string& path) {
    CheckInput("the modes file", path);
    EnvelopeModes modes;
    std::string error;
    if (!seisplot::ReadModesFile(path, modes, error)) {
        Fail(error);
    }
    return modes;
}

} // namespace seisplot::cli
