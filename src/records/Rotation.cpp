// Rotation of horizontal components to any direction.

#include "records/Accelerogram.h"

#include "platform/core/UserInterface.h"

#include <cmath>
#include <optional>

int Accelerogram::Convert(Accelerogram* ax, Accelerogram* ay, double angle) {
    if (!ax && !ay) {
        AfxMessageBox("Error no accelerograms to be converted");
        return 1;
    }
    if (ax && ay && ax->AngleWE > ay->AngleWE) {
        AfxMessageBox("Error anglex must be < angley");
        return 1;
    }
    if (ax && ay && std::fabs(std::fabs(ax->AngleWE - ay->AngleWE) - 90.0) > 0.001) {
        AfxMessageBox("Error the two accelerograms used as reference must have 90? angle "
                      "difference");
        return 1;
    }
    // A source that is this record itself is read from a copy, as the result overwrites it.
    std::optional<Accelerogram> xCopy;
    std::optional<Accelerogram> yCopy;
    if (ax == this) {
        ax = &xCopy.emplace(*this);
    }
    if (ay == this) {
        ay = &yCopy.emplace(*this);
    }
    const Accelerogram& source = ax ? *ax : *ay;
    const double theta = (angle - source.AngleWE) * std::asin(1.0) / 90.0;
    const int n =
        ax && ay ? std::min(ax->Record.GetNP(), ay->Record.GetNP()) : source.Record.GetNP();
    if (Record.GetNP() != n) {
        Record.GetPColl().IncreaseStruct(n);
    }

    Mw = source.Mw;
    Ml = source.Ml;
    EpicentralDistance = source.EpicentralDistance;
    HypocentralDepth = source.HypocentralDepth;
    Strike = source.Strike;
    Dip = source.Dip;
    Rake = source.Rake;
    Latitude = source.Latitude;
    Longitude = source.Longitude;
    IsVertical = source.IsVertical;
    IsSynthetic = source.IsSynthetic;
    SyntheticKind = source.SyntheticKind;
    EventName = source.EventName;
    EventId = source.EventId;
    EventDate = source.EventDate;
    EventTime = source.EventTime;
    AngleWE = angle;

    if (ax && ay) {
        Identifier = ax->Identifier + "\"+\"" + ay->Identifier;
        FileIdentifier = ax->FileIdentifier + "\"+\"" + ay->FileIdentifier;
    } else {
        Identifier = source.Identifier + "\"converted\"";
        FileIdentifier = source.FileIdentifier + "\"converted\"";
    }

    const double c = std::cos(theta);
    const double s = std::sin(theta);
    int hint = 0;
    for (int i = 0; i < n; ++i) {
        const RPoint2D& p = source.Record[i];
        double value = c * p.GetY();
        if (ax && ay) {
            value += s * ay->Record.GetY(p.GetX(), &hint);
        }
        Record[i].SetX(p.GetX());
        Record[i].SetY(value);
    }
    return 0;
}
