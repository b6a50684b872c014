#pragma once
// Spectrum: one response spectrum, a curve of spectral value against period with its kind,
// damping ratio and behaviour factor. Periods are in s; values in mm (displacement), mm/s
// (velocity) or g (acceleration), by Type.
//
// Archive form (Serialize): the selectable part; a 16-bit version (102); Explanation
// (string); Type (byte); Damp (double); Behavior (double, only from version 102 on); the
// curve's own archive form.

#include "host/CSelObject.h"
#include "host/CVector.h"
#include "host/PCurve.h"

class Spectrum : public CSelObject {
public:
    // Kinds of spectrum held in Type.
    static constexpr unsigned char kDisplacement = 0;
    static constexpr unsigned char kVelocity = 1;
    static constexpr unsigned char kAcceleration = 2;

    Spectrum();
    // The spectrum of the n pairs (x[i], y[i]).
    Spectrum(int n, double* x, double* y);
    // The spectrum of the pairs of two vectors (as many as the shorter has).
    Spectrum(CVector& x, CVector& y);
    // Copies name, selection, curve, Explanation, Type, Damp and Behavior; the copy's
    // SpectrumVersion is the current one.
    Spectrum(const Spectrum& other);
    // Assigns the same fields as the copy (self-assignment changes nothing) and returns a
    // copy of the result.
    Spectrum operator=(const Spectrum& other);
    ~Spectrum() override;

    CRuntimeClass* GetRuntimeClass() const override;
    // Writes version 102 (and sets SpectrumVersion to it). Reads versions 101 and 102: a
    // version-101 form has no behaviour factor, so Behavior keeps its value.
    void Serialize(CArchive& ar) override;
    void AssertValid() const override;

    CString GetExplanation() const { return Explanation; }
    void SetExplanation(CString& explanation) { Explanation = explanation; }
    unsigned char GetType() const { return Type; }
    void SetType(unsigned char type) { Type = type; }
    double GetDamp() const { return Damp; }
    void SetDamp(double damp) { Damp = damp; }
    double GetBehavior() const { return Behavior; }
    void SetBehavior(double behavior) { Behavior = behavior; }

    // Code spectra: the ordinate *se (in g) at period T (s) of the Eurocode 8 type 2 spectrum
    // or of the Italian NTC spectrum, elastic for q = 1 and design otherwise. They read no
    // field. ag is the ground acceleration in g, xi the damping ratio (corrects the elastic
    // spectrum only), soil the class 0 ... 4 for A ... E, ST the topographic factor, q the
    // behaviour factor; NTC adds the amplification F0 and the reference corner period TCs.
    // Ordinates below 0.2·ag are raised to it. Both return 0, or 1 for a soil class outside
    // 0 ... 4, leaving *se untouched.
    static int GetSpettro_EC8(double ag, double xi, int soil, double ST, double T, double q,
                              double* se);
    static int GetSpettro_NTC(double ag, double xi, int soil, double ST, double F0, double TCs,
                              double T, double q, double* se);

    // Appends the text report of the spectrum to `text` (banner, name, kind and damping, and
    // the table of periods and values); returns 0.
    int DoReport(CString& text);

    PCurve Curve;
    unsigned char Type = kDisplacement;
    double Damp = 0.05;
    double Behavior = 1.5;
    CString Explanation = "---";
    WORD SpectrumVersion = kCurrentVersion;

    static constexpr WORD kCurrentVersion = 102;
    static CRuntimeClass classSpectrum;
};
