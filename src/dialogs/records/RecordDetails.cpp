#include "dialogs/records/RecordDetails.h"

#include "platform/ui/DataExchange.h"
#include "records/Accelerogram.h"

AccData::AccData(CWnd* parent) : CDialogEx(14508, parent) {}

void AccData::DoDataExchange(CDataExchange* pDX) {
    CDialogEx::DoDataExchange(pDX);
    DDX_Text(pDX, 14712, Identifier);
    DDX_Text(pDX, 14713, Mw);
    DDV_MinMaxDouble(pDX, Mw, 0.0, 15.0);
    DDX_Text(pDX, 14714, Ml);
    DDV_MinMaxDouble(pDX, Ml, 0.0, 15.0);
    DDX_Text(pDX, 14715, EpicentralDistance);
    DDV_MinMaxDouble(pDX, EpicentralDistance, 0.0, 20000.0);
    DDX_Text(pDX, 14716, HypocentralDepth);
    DDV_MinMaxDouble(pDX, HypocentralDepth, 0.0, 3000.0);
    DDX_Text(pDX, 14717, Strike);
    DDV_MinMaxDouble(pDX, Strike, 0.0, 360.0);
    DDX_Text(pDX, 14718, Dip);
    DDV_MinMaxDouble(pDX, Dip, 0.0, 90.0);
    DDX_Text(pDX, 14719, Rake);
    DDV_MinMaxDouble(pDX, Rake, -180.0, 180.0);
    DDX_Text(pDX, 14720, Latitude);
    DDV_MinMaxDouble(pDX, Latitude, -90.0, 90.0);
    DDX_Text(pDX, 14721, Longitude);
    DDV_MinMaxDouble(pDX, Longitude, -180.0, 180.0);
    DDX_Text(pDX, 14722, AngleWE);
    DDV_MinMaxDouble(pDX, AngleWE, 0.0, 360.0);
    DDX_Text(pDX, 14731, User1);
    DDX_Text(pDX, 14732, User2);
    DDX_Text(pDX, 14733, User3);
    DDX_Text(pDX, 14734, User4);
    DDX_Text(pDX, 14735, User5);
    DDX_Text(pDX, 14736, Backazimuth);
    DDX_Check(pDX, 14730, IsVertical);
    DDX_Radio(pDX, 14723, IsSynthetic);
    DDX_Radio(pDX, 14725, SyntheticKind);
    DDX_Text(pDX, 14729, EventId);
    DDX_DateTimeCtrl(pDX, 14727, EventDate);
    DDX_DateTimeCtrl(pDX, 14728, EventTime);
}

void AccData::CopyFrom(const Accelerogram& record, bool userTexts) {
    Identifier = record.Identifier;
    Mw = record.Mw;
    Ml = record.Ml;
    EpicentralDistance = record.EpicentralDistance;
    HypocentralDepth = record.HypocentralDepth;
    Strike = record.Strike;
    Dip = record.Dip;
    Rake = record.Rake;
    Latitude = record.Latitude;
    Longitude = record.Longitude;
    AngleWE = record.AngleWE;
    Backazimuth = record.Backazimuth;
    IsVertical = record.IsVertical;
    IsSynthetic = record.IsSynthetic;
    SyntheticKind = record.SyntheticKind;
    EventId = record.EventId;
    EventDate = record.EventDate;
    EventTime = record.EventTime;
    if (userTexts) {
        User1 = record.User1;
        User2 = record.User2;
        User3 = record.User3;
        User4 = record.User4;
        User5 = record.User5;
    }
}

void AccData::CopyTo(Accelerogram& record, bool userTexts) const {
    record.Identifier = Identifier;
    record.Mw = Mw;
    record.Ml = Ml;
    record.EpicentralDistance = EpicentralDistance;
    record.HypocentralDepth = HypocentralDepth;
    record.Strike = Strike;
    record.Dip = Dip;
    record.Rake = Rake;
    record.Latitude = Latitude;
    record.Longitude = Longitude;
    record.AngleWE = AngleWE;
    record.Backazimuth = Backazimuth;
    record.IsVertical = IsVertical;
    record.IsSynthetic = IsSynthetic;
    record.SyntheticKind = SyntheticKind;
    record.EventId = EventId;
    record.EventDate = EventDate;
    record.EventTime = EventTime;
    if (userTexts) {
        record.User1 = User1;
        record.User2 = User2;
        record.User3 = User3;
        record.User4 = User4;
        record.User5 = User5;
    }
}
