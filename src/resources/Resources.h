#pragma once
// The library's own resources for its dialogs: dialog templates (":/seisplot/dialogs/<id>.ui"),
// the Italian translation of their texts (":/seisplot/translations/seisplot_it.qm") and
// bitmaps (":/seisplot/bitmaps/<name>.png"), built into the library.

namespace seisplot {

// Makes the resources available (once; later calls do nothing).
void InitLibraryResources();

} // namespace seisplot
