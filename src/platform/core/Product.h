#pragma once
// How the library names itself where it signs its work: report banners and plots.

namespace seisplot {

inline constexpr const char* kProductLine =
    "seisplot - ground motion records, response spectra and engineering plots";
inline constexpr const char* kProductMaker = "seisplot developers";

} // namespace seisplot
