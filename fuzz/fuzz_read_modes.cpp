// libFuzzer target: the modes file reader on arbitrary file contents. A file it refuses says
// why; a file it takes must give one period and three shares per mode, every period finite and
// positive, every share finite, all modes checked.

#include "ScratchFiles.h"

#include "spectra/ModesFile.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    static const std::string path = seisplot::fuzz::Prepare("modes", {".txt"}).front();
    seisplot::fuzz::WriteInput(path, data, size);
    EnvelopeModes modes;
    std::string error;
    if (!seisplot::ReadModesFile(path, modes, error)) {
        if (error.empty()) {
            std::fprintf(stderr, "fuzz_read_modes: a refused file without a reason\n");
            std::abort();
        }
        return 0;
    }
    const size_t count = modes.Periods.size();
    bool sound = count > 0 && modes.Shares.size() == 3 * count && modes.Checked.size() == count;
    for (size_t i = 0; sound && i < count; ++i) {
        sound = std::isfinite(modes.Periods[i]) && modes.Periods[i] > 0.0 &&
                std::isfinite(modes.Shares[3 * i]) && std::isfinite(modes.Shares[3 * i + 1]) &&
                std::isfinite(modes.Shares[3 * i + 2]) && modes.Checked[i];
    }
    if (!sound) {
        std::fprintf(stderr, "fuzz_read_modes: a modes file was taken with a bad mode\n");
        std::abort();
    }
    return 0;
}
