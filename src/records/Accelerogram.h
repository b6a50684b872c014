#pragma once
// Accelerogram: one ground-acceleration record with the seismological data of its event and
// station. Times are in seconds, accelerations in mm/s² (1 g = 9810 mm/s²); magnitudes,
// distances and angles are kept as the source gives them.

#include "host/CSelObject.h"
#include "host/CVector.h"
#include "host/PCurve.h"
#include "host/Units.h"
#include "platform/core/COleDateTime.h"

class Accelerogram : public CSelObject {
public:
    Accelerogram();
    // The record of the n pairs (t[i], a[i]).
    Accelerogram(int n, double* t, double* a);
    Accelerogram(CVector& t, CVector& a);
    // Copies everything, AnalysisId included.
    Accelerogram(const Accelerogram& other);
    // Assigns every field but RecordVersion and returns a copy of the result.
    Accelerogram operator=(const Accelerogram& other);

    CRuntimeClass* GetRuntimeClass() const override;
    ~Accelerogram() override = default;
    // Writes version 104; reads every version (fields a version lacks keep their values).
    void Serialize(CArchive& ar) override;
    void AssertValid() const override;

    CString GetIdentifier() const { return Identifier; }
    CString GetFileIdentifier() const { return FileIdentifier; }
    CString GetExplanation() const { return Explanation; }
    void SetIdentifier(CString& identifier) { Identifier = identifier; }
    void SetFileIdentifier(CString& fileIdentifier) { FileIdentifier = fileIdentifier; }
    void SetExplanation(CString& explanation) { Explanation = explanation; }

    // Peak ground acceleration in g.
    double GetPga() const;
    // Where the quiet tail begins: the earliest point of the trailing run of points whose
    // |a| is at most `threshold` g. Writes its time and number (from 1); the last point when
    // the last point is above the threshold. A record without points gives time 0, number 0.
    // Returns 0.
    int GetTailStart(double threshold, double* time, int* point);

    // Import. Each returns 0 on success and 1 on failure, after showing the failure to the
    // user; quiet = 0 also shows the summary line of a successful import. `name` is stored
    // as the identifier, `path` is the file opened.
    //
    // Lets the user pick a file and reads it by its extension.
    int ReadFromFile(int quiet);
    // A two-column file (time, acceleration per line): asks for its units first, or reads it
    // in the units given.
    int ReadTXTPLT(int quiet, CString name, CString path);
    int ReadTXTPLT(int quiet, CString name, CString path, Units& units);
    // An ITACA ASCII file (.ASC, .RA, .TR, .UP, .SEW, .SNS).
    int ReadASC(int quiet, CString name, CString path);

    // Oscillator response and spectra (times in s, accelerations in mm/s², spectral
    // accelerations in g, displacements in mm).
    //
    // Response of an oscillator of mass m, period T and damping ratio xi to the ground
    // acceleration `acc`, over n steps of h by rule 2 (trapezoid) or 3 (Simpson): `resp` gets
    // the origin and then (t, u) for every step, *umax the peak |u|. Returns 1 for m = 0
    // (nothing touched) or another rule (resp then cleared to n + 1 points at the origin).
    int DuhamelSimple(double m, double T, double xi, PCurve& acc, PCurve& resp, double h, int n,
                      int rule, double* umax);
    // Spectra over the periods dT, 2·dT, ... up to Tmax (accumulated by addition). They return
    // 1 and leave `out` untouched for xi = 0 or xi >= 1, a step dT <= 0, or a record of fewer
    // than two points or without duration; GetADSpectrum then returns 0 with an empty curve.
    int GetAccSpectrum(double xi, double Tmax, double dT, PCurve& out);
    // Spectral acceleration in g at period T (the PGA at T = 0); 1 as above or for T < 0.
    int GetAccSpectrum(double xi, double T, double* sa);
    int GetDisSpectrum(double xi, double Tmax, double dT, PCurve& out);
    int GetADSpectrum(double xi, double Tmax, double dT, PMCurve& out);

    // This record becomes the component along `angle` (degrees from west-east) of the
    // horizontal components ax and ay (either may be null). 0, or 1 after a message.
    int Convert(Accelerogram* ax, Accelerogram* ay, double angle);

    PCurve Record;
    double Mw = 0.0;
    double Ml = 0.0;
    double EpicentralDistance = 0.0;
    double HypocentralDepth = 0.0;
    double Strike = 0.0;
    double Dip = 0.0;
    double Rake = 0.0;
    double Latitude = 0.0;
    double Longitude = 0.0;
    double AngleWE = 0.0;
    double Backazimuth = 0.0;
    std::int32_t IsVertical = 0;
    std::int32_t IsSynthetic = 0;
    std::int32_t SyntheticKind = 0;
    CString EventName;
    CString EventId;
    COleDateTime EventDate;
    COleDateTime EventTime;
    CString User1;
    CString User2;
    CString User3;
    CString User4;
    CString User5;
    std::int32_t AnalysisId = 0;
    CString Identifier = "Unknown";
    CString FileIdentifier;
    CString Explanation;
    WORD RecordVersion = kCurrentVersion;

    static constexpr WORD kCurrentVersion = 104;
    static constexpr double kG = 9810.0; // mm/s² in one g
    static CRuntimeClass classAccelerogram;

private:
    void SetRecordUnits();
    // Empties the record curve and gives it the unit kinds and axis names of an import.
    void PrepareImport();
};
