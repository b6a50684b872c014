#pragma once
// A list box scrolls horizontally over its widest line plus one average character.

#include "platform/ui/Controls.h"

namespace seisplot {

// Measures the list's lines on a context of the list and sets its horizontal extent; false,
// after "Error getting DC. Too many commands?", when no context can be had.
bool FitListExtent(CListBox& list);

} // namespace seisplot
