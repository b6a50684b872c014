#pragma once
// AccData: the descriptive data of one record — identifier, the seismological parameters of
// its event, its type and origin, the event's identifier, date and time, and five user texts.
// The caller copies the record's fields into the members, runs DoModal and on IDOK copies
// them back (CopyFrom and CopyTo do both for the callers that hand over a whole record).

#include "platform/core/COleDateTime.h"
#include "platform/ui/CDialog.h"

class Accelerogram;

class AccData : public CDialogEx {
public:
    explicit AccData(CWnd* parent = nullptr);

    CString Identifier;
    double Mw = 0.0;                 // moment magnitude, 0 to 15
    double Ml = 0.0;                 // local magnitude, 0 to 15
    double EpicentralDistance = 0.0; // km, 0 to 20000
    double HypocentralDepth = 0.0;   // km, 0 to 3000
    double Strike = 0.0;             // degrees, 0 to 360
    double Dip = 0.0;                // degrees, 0 to 90
    double Rake = 0.0;               // degrees, -180 to 180
    double Latitude = 0.0;           // degrees, -90 to 90
    double Longitude = 0.0;          // degrees, -180 to 180
    double AngleWE = 0.0;            // degrees, 0 to 360
    double Backazimuth = 0.0;        // degrees, any
    int IsVertical = 0;              // the Z-direction check box
    int IsSynthetic = 0;             // 0 natural, 1 synthetic
    int SyntheticKind = 0;           // 0 NDSHA, 1 PSHA
    CString EventId;
    CString User1;
    CString User2;
    CString User3;
    CString User4;
    CString User5;
    COleDateTime EventDate;
    COleDateTime EventTime;

    // The record's fields into the members, and back; the user texts only when `userTexts`.
    void CopyFrom(const Accelerogram& record, bool userTexts = true);
    void CopyTo(Accelerogram& record, bool userTexts = true) const;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
};
