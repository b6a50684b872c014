#pragma once
// Accelerogram: one ground-acceleration record with the seismological data of its event and
// station. Times are in seconds, accelerations in mm/s² (1 g = 9810 mm/s²); magnitudes,
// distances and angles are kept as the source gives them.

#include "host/CSelObject.h"
#include "host/CVector.h"
#include "host/PCurve.h"
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
};
