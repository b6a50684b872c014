// The spectrum's text report.

#include "records/ReportBanner.h"
#include "spectra/Spectrum.h"

namespace {

constexpr const char* kTitleLine =
    "#                                   Spectrum data                              #";

// The heading of a kind of spectrum at damping ratio `damp`, and its column titles; false for
// a kind that has none.
bool Heading(unsigned char type, double damp, CString& heading, const char*& columns) {
    switch (type) {
    case Spectrum::kDisplacement:
        heading.Format("Displacement Response Spectrum at %6.3lf damping\n", damp);
        columns = "Period (s)    Dis. (mm)\n";
        return true;
    case Spectrum::kVelocity:
        heading.Format("Velocity Response Spectrum at %6.3lf damping\n", damp);
        columns = "Period (s)    Vel. (mm/sec)\n";
        return true;
    case Spectrum::kAcceleration:
        heading.Format("Acceleration Response Spectrum at %6.3lf damping\n", damp);
        columns = "Period (s)    Acc. (g)\n";
        return true;
    default:
        return false;
    }
}

} // namespace

int Spectrum::DoReport(CString& text) {
    const CString rule = CString('-', 49) + '\n';

    text += seisplot::ReportBanner(kTitleLine);
    text += "\n\n";
    text.AppendFormat("Identifier:     %s\n", GetName().GetString());
    text += "\n\n";
    text += rule;
    CString heading;
    const char* columns = nullptr;
    if (Heading(Type, Damp, heading, columns)) {
        text += heading;
        text += rule;
        text += "\n\n";
        text += columns;
        text += "\n";
    }
    for (int i = 0; i < Curve.GetNP(); ++i) {
        const RPoint2D& p = Curve[i];
        text.AppendFormat(" %7.3lf    %7.3lf\n", p.GetX(), p.GetY());
    }
    text += "\n\n\n";
    return 0;
}
