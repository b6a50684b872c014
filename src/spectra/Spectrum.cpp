#include "spectra/Spectrum.h"

#include <cassert>

CRuntimeClass Spectrum::classSpectrum{"Spectrum", sizeof(Spectrum), 0,
                                      &seisplot::CreateObjectOf<Spectrum>,
                                      RUNTIME_CLASS(CSelObject)};

CRuntimeClass* Spectrum::GetRuntimeClass() const {
    return &classSpectrum;
}

namespace {

void SetSpectrumUnits(PCurve& curve) {
    curve.XUnit = seisplot::UnitKind::PureNumber;
    curve.YUnit = seisplot::UnitKind::PureNumber;
}

} // namespace

Spectrum::Spectrum() {
    SetSpectrumUnits(Curve);
}

Spectrum::Spectrum(int n, double* x, double* y) : Curve(n, x, y) {
    SetSpectrumUnits(Curve);
}

Spectrum::Spectrum(CVector& x, CVector& y) : Curve(x, y) {
    SetSpectrumUnits(Curve);
}

Spectrum::Spectrum(const Spectrum& other)
    : CSelObject(other), Curve(other.Curve), Type(other.Type), Damp(other.Damp),
      Behavior(other.Behavior), Explanation(other.Explanation), SpectrumVersion(kCurrentVersion) {}

Spectrum Spectrum::operator=(const Spectrum& other) {
    if (this != &other) {
        AssignSelection(other);
        Explanation = other.Explanation;
        Curve = other.Curve;
        Type = other.Type;
        Damp = other.Damp;
        Behavior = other.Behavior;
    }
    return *this;
}

Spectrum::~Spectrum() {
    Curve.Clear();
}

void Spectrum::Serialize(CArchive& ar) {
    CSelObject::Serialize(ar);
    if (ar.IsStoring()) {
        SpectrumVersion = kCurrentVersion;
        ar << SpectrumVersion << Explanation << static_cast<BYTE>(Type) << Damp << Behavior;
        Curve.Serialize(ar);
        return;
    }
    WORD version = 0;
    BYTE type = 0;
    ar >> version >> Explanation >> type >> Damp;
    Type = type;
    // Version 101 had no behaviour factor.
    if (version > 101) {
        ar >> Behavior;
    }
    Curve.Serialize(ar);
}

void Spectrum::AssertValid() const {
    CSelObject::AssertValid();
    assert(SpectrumVersion == kCurrentVersion);
}
