#pragma once
// The text that the record and spectrum reports open with, written out in full.

#include <string>

namespace seisplot::test {

// The 80-column banner framing a title line: a rule of hashes, five empty box lines, the
// title, six empty box lines, the two credit lines, a rule.
inline std::string Banner(const std::string& title) {
    const std::string hashes(80, '#');
    const std::string box = "#" + std::string(78, ' ') + "#\n";
    std::string banner = hashes + "\n";
    for (int k = 0; k < 5; ++k) {
        banner += box;
    }
    banner += title + "\n";
    for (int k = 0; k < 6; ++k) {
        banner += box;
    }
    banner += "#  seisplot - ground motion records, response spectra and engineering plots    #\n"
              "#  seisplot developers                                                         #\n";
    return banner + hashes + "\n";
}

} // namespace seisplot::test
