#include "records/Accelerogram.h"

#include <algorithm>
#include <cassert>
#include <cmath>

CRuntimeClass Accelerogram::classAccelerogram{"Accelerogram", sizeof(Accelerogram), 0,
                                              &seisplot::CreateObjectOf<Accelerogram>,
                                              RUNTIME_CLASS(CSelObject)};

CRuntimeClass* Accelerogram::GetRuntimeClass() const {
    return &classAccelerogram;
}

namespace {} // namespace

void Accelerogram::SetRecordUnits() {
    Record.XUnit = seisplot::UnitKind::Time;
    Record.YUnit = seisplot::UnitKind::Acceleration;
}

void Accelerogram::PrepareImport() {
    Record.Clear();
    SetRecordUnits();
    Record.XName = "t";
    Record.YName = "a";
}

Accelerogram::Accelerogram() {
    SetRecordUnits();
}

Accelerogram::Accelerogram(int n, double* t, double* a) : Record(n, t, a) {
    SetRecordUnits();
}

Accelerogram::Accelerogram(CVector& t, CVector& a) : Record(t, a) {
    SetRecordUnits();
}

Accelerogram::Accelerogram(const Accelerogram& other)
    : CSelObject(other), Record(other.Record), Mw(other.Mw), Ml(other.Ml),
      EpicentralDistance(other.EpicentralDistance), HypocentralDepth(other.HypocentralDepth),
      Strike(other.Strike), Dip(other.Dip), Rake(other.Rake), Latitude(other.Latitude),
      Longitude(other.Longitude), AngleWE(other.AngleWE), Backazimuth(other.Backazimuth),
      IsVertical(other.IsVertical), IsSynthetic(other.IsSynthetic),
      SyntheticKind(other.SyntheticKind), EventName(other.EventName), EventId(other.EventId),
      EventDate(other.EventDate), EventTime(other.EventTime), User1(other.User1),
      User2(other.User2), User3(other.User3), User4(other.User4), User5(other.User5),
      AnalysisId(other.AnalysisId), Identifier(other.Identifier),
      FileIdentifier(other.FileIdentifier), Explanation(other.Explanation),
      RecordVersion(kCurrentVersion) {
    SetRecordUnits();
}

Accelerogram Accelerogram::operator=(const Accelerogram& other) {
    if (this != &other) {
        AssignSelection(other);
        Identifier = other.Identifier;
        FileIdentifier = other.FileIdentifier;
        Explanation = other.Explanation;
        Record = other.Record;
        Mw = other.Mw;
        Ml = other.Ml;
        EpicentralDistance = other.EpicentralDistance;
        HypocentralDepth = other.HypocentralDepth;
        Strike = other.Strike;
        Dip = other.Dip;
        Rake = other.Rake;
        Latitude = other.Latitude;
        Longitude = other.Longitude;
        AngleWE = other.AngleWE;
        Backazimuth = other.Backazimuth;
        IsVertical = other.IsVertical;
        IsSynthetic = other.IsSynthetic;
        SyntheticKind = other.SyntheticKind;
        EventId = other.EventId;
        EventName = other.EventName;
        EventDate = other.EventDate;
        EventTime = other.EventTime;
        User1 = other.User1;
        User2 = other.User2;
        User3 = other.User3;
        User4 = other.User4;
        User5 = other.User5;
        AnalysisId = other.AnalysisId;
    }
    return *this;
}

double Accelerogram::GetPga() const {
    const double greatest = Record.GetMaxY() / kG;
    const double least = Record.GetMinY() / kG;
    return std::max(std::fabs(greatest), std::fabs(least));
}

int Accelerogram::GetTailStart(double threshold, double* time, int* point) {
    const int n = Record.GetNP();
    if (n == 0) {
        *time = 0.0;
        *point = 0;
        return 0;
    }
    *time = Record[n - 1].GetX();
    *point = n;
    for (int k = n; k >= 1; --k) {
        const RPoint2D& p = Record[k - 1];
        if (std::fabs(p.GetY()) / kG > threshold) {
            break;
        }
        *time = p.GetX();
        *point = k;
    }
    return 0;
}

void Accelerogram::Serialize(CArchive& ar) {
    CSelObject::Serialize(ar);
    if (ar.IsStoring()) {
        ar << RecordVersion << Identifier << FileIdentifier << Explanation;
        ar << Mw << Ml << EpicentralDistance << HypocentralDepth << Strike << Dip << Rake
           << Latitude << Longitude << AngleWE << Backazimuth;
        ar << IsVertical << IsSynthetic << SyntheticKind;
        ar << EventId << EventName << EventDate << EventTime;
        ar << User1 << User2 << User3 << User4 << User5;
        Record.Serialize(ar);
        return;
    }
    WORD version = 0;
    ar >> version;
    ar >> Identifier;
    if (version > 103) {
        ar >> FileIdentifier;
    }
    ar >> Explanation;
    if (version > 100 && version < 10000) {
        ar >> Mw >> Ml >> EpicentralDistance >> HypocentralDepth >> Strike >> Dip >> Rake >>
            Latitude >> Longitude >> AngleWE;
        if (version > 103) {
            ar >> Backazimuth;
        }
        ar >> IsVertical >> IsSynthetic >> SyntheticKind;
        ar >> EventId;
        if (version > 101) {
            ar >> EventName;
        }
        ar >> EventDate >> EventTime;
        if (version > 102) {
            ar >> User1 >> User2 >> User3 >> User4 >> User5;
        }
    }
    Record.Serialize(ar);
}

void Accelerogram::AssertValid() const {
    CSelObject::AssertValid();
    assert(IsVertical == 0 || IsVertical == 1);
    assert(IsSynthetic == 0 || IsSynthetic == 1);
    assert(SyntheticKind == 0 || SyntheticKind == 1);
    assert(Record.XUnit == seisplot::UnitKind::Time &&
           Record.YUnit == seisplot::UnitKind::Acceleration);
}
