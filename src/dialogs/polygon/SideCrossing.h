#pragma once
// Whether a closed polygon's sides cross: side i runs from vertex i to vertex i + 1, the last
// back to vertex 1, and every pair of sides is put to Intersect, adjacent ones too (sharing a
// vertex is not crossing; touching and overlapping are).

#include "host/RPoly.h"

namespace seisplot {

bool SidesCross(const RPoly& poly);

} // namespace seisplot
