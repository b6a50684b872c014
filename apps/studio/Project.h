#pragma once
// The studio's project: what a host holds and hands to the library — records, spectra,
// curve collections, a polygon and the units — kept in one project file.
//
// Project file (*.spj): the text "seisplot project" and a 16-bit version (1), then the
// library's own archive forms in this order: the record collection, the spectrum collection,
// the function curves, the free polylines, the polygon; last the labels of the length, force
// and time units.

#include "host/CurveColl.h"
#include "host/RPoly.h"
#include "host/Units.h"
#include "records/AccelerogramColl.h"
#include "spectra/SpectrumColl.h"

#include <string>

namespace seisplot::studio {

class Project {
public:
    AccelerogramColl records;
    SpectrumColl spectra;
    PCurveColl curves;
    PMCurveColl polylines;
    RPoly polygon;
    Units units;

    void Serialize(CArchive& ar);
    // Whole or not at all: a failed open leaves the project as it was and says why in `error`.
    bool Open(const std::string& path, std::string& error);
    // Written beside the target and renamed over it, so a failed save leaves the old file.
    bool Save(const std::string& path, std::string& error);
};

} // namespace seisplot::studio
