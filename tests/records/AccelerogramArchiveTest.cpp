#include "records/Accelerogram.h"
#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

using seisplot::test::ArchiveCause;
using seisplot::test::Bytes;
using seisplot::test::LoadObject;
using seisplot::test::StoreObject;
using seisplot::test::StreamBuilder;

namespace {

Accelerogram Filled() {
    const double t[] = {0.0, 0.005, 0.01};
    const double a[] = {0.0, -12.75, 3.5};
    Accelerogram r(3, const_cast<double*>(t), const_cast<double*>(a));
    r.SetName("IT.AQV..HNE");
    r.Identifier = "IT.AQV..HNE";
    r.FileIdentifier = "20090406_013239_AQV_HNE.ASC";
    r.Explanation = "3 points, pga 0.0013 g";
    r.Mw = 6.1;
    r.Ml = 5.9;
    r.EpicentralDistance = 4.8;
    r.HypocentralDepth = 8.3;
    r.Strike = 133.0;
    r.Dip = 54.0;
    r.Rake = -102.0;
    r.Latitude = 42.342;
    r.Longitude = 13.38;
    r.AngleWE = 0.0;
    r.Backazimuth = 271.5;
    r.IsVertical = 0;
    r.IsSynthetic = 0;
    r.SyntheticKind = 1;
    r.EventName = "L'Aquila";
    r.EventId = "IT-2009-0009";
    r.EventDate = COleDateTime(2009, 4, 6, 0, 0, 0);
    r.EventTime = COleDateTime(1899, 12, 30, 1, 32, 39);
    r.User1 = "one";
    r.User2 = "two";
    r.User3 = "";
    r.User4 = "four";
    r.User5 = "five";
    r.AnalysisId = 12;
    return r;
}

// A record whose every field differs from Filled(), to see which fields a read replaces.
Accelerogram Prior() {
    Accelerogram r;
    r.FileIdentifier = "prior file";
    r.Backazimuth = -1.0;
    r.EventName = "prior event";
    r.User1 = "p1";
    r.User5 = "p5";
    r.Mw = -9.0;
    r.EventId = "prior id";
    r.AnalysisId = 99;
    return r;
}

// The record curve of Filled() in its archive form.
Bytes CurveBytes() {
    PCurve c = Filled().Record;
    return StoreObject(c);
}

} // namespace

TEST(AccelerogramArchiveTest, Version104RoundTripsEveryArchivedField) {
    Accelerogram original = Filled();
    const Bytes bytes = StoreObject(original);
    Accelerogram back = Prior();
    EXPECT_EQ(LoadObject(bytes, back), 0u);

    EXPECT_EQ(back.GetName(), original.GetName());
    EXPECT_EQ(back.Identifier, original.Identifier);
    EXPECT_EQ(back.FileIdentifier, original.FileIdentifier);
    EXPECT_EQ(back.Explanation, original.Explanation);
    EXPECT_EQ(back.Mw, 6.1);
    EXPECT_EQ(back.Ml, 5.9);
    EXPECT_EQ(back.EpicentralDistance, 4.8);
    EXPECT_EQ(back.HypocentralDepth, 8.3);
    EXPECT_EQ(back.Strike, 133.0);
    EXPECT_EQ(back.Dip, 54.0);
    EXPECT_EQ(back.Rake, -102.0);
    EXPECT_EQ(back.Latitude, 42.342);
    EXPECT_EQ(back.Longitude, 13.38);
    EXPECT_EQ(back.AngleWE, 0.0);
    EXPECT_EQ(back.Backazimuth, 271.5);
    EXPECT_EQ(back.IsVertical, 0);
    EXPECT_EQ(back.IsSynthetic, 0);
    EXPECT_EQ(back.SyntheticKind, 1);
    EXPECT_EQ(back.EventName, "L'Aquila");
    EXPECT_EQ(back.EventId, "IT-2009-0009");
    EXPECT_EQ(back.EventDate, original.EventDate);
    EXPECT_EQ(back.EventTime, original.EventTime);
    EXPECT_EQ(back.User1, "one");
    EXPECT_EQ(back.User2, "two");
    EXPECT_EQ(back.User3, "");
    EXPECT_EQ(back.User4, "four");
    EXPECT_EQ(back.User5, "five");
    ASSERT_EQ(back.Record.GetNP(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(back.Record[i].GetX(), original.Record[i].GetX());
        EXPECT_EQ(back.Record[i].GetY(), original.Record[i].GetY());
    }
    EXPECT_EQ(back.Record.XUnit, 12);
    EXPECT_EQ(back.Record.YUnit, 10);
    EXPECT_EQ(back.AnalysisId, 99); // never archived
}

TEST(AccelerogramArchiveTest, Version104IsLaidOutFieldByField) {
    Accelerogram r = Filled();
    r.SetName("");
    const Bytes expected = StreamBuilder()
                               .Text("") // selectable part: name, no views
                               .Word(0)
                               .Word(104)
                               .Text("IT.AQV..HNE")
                               .Text("20090406_013239_AQV_HNE.ASC")
                               .Text("3 points, pga 0.0013 g")
                               .Double(6.1)
                               .Double(5.9)
                               .Double(4.8)
                               .Double(8.3)
                               .Double(133.0)
                               .Double(54.0)
                               .Double(-102.0)
                               .Double(42.342)
                               .Double(13.38)
                               .Double(0.0)
                               .Double(271.5)
                               .Int(0)
                               .Int(0)
                               .Int(1)
                               .Text("IT-2009-0009")
                               .Text("L'Aquila")
                               .Date(0, 39909.0) // 6 April 2009
                               .Date(0, (1 * 3600 + 32 * 60 + 39) / 86400.0)
                               .Text("one")
                               .Text("two")
                               .Text("")
                               .Text("four")
                               .Text("five")
                               .Append(CurveBytes())
                               .bytes();
    EXPECT_EQ(StoreObject(r), expected);
}

TEST(AccelerogramArchiveTest, Version101LacksFileIdBackazimuthEventNameAndUserTexts) {
    const Bytes stream = StreamBuilder()
                             .Text("")
                             .Word(0)
                             .Word(101)
                             .Text("OLD")
                             .Text("old explanation")
                             .Double(5.0)  // Mw
                             .Double(4.0)  // Ml
                             .Double(3.0)  // epicentral distance
                             .Double(2.0)  // depth
                             .Double(1.0)  // strike
                             .Double(0.5)  // dip
                             .Double(0.25) // rake
                             .Double(45.0) // latitude
                             .Double(9.0)  // longitude
                             .Double(90.0) // angle to W-E
                             .Int(1)
                             .Int(0)
                             .Int(0)
                             .Text("EV-101")
                             .Date(1, 0.0)
                             .Date(2, 0.0)
                             .Append(CurveBytes())
                             .bytes();
    Accelerogram r = Prior();
    EXPECT_EQ(LoadObject(stream, r), 0u);
    EXPECT_EQ(r.Identifier, "OLD");
    EXPECT_EQ(r.Explanation, "old explanation");
    EXPECT_EQ(r.Mw, 5.0);
    EXPECT_EQ(r.AngleWE, 90.0);
    EXPECT_EQ(r.IsVertical, 1);
    EXPECT_EQ(r.EventId, "EV-101");
    EXPECT_EQ(r.EventDate.GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(r.EventTime.GetStatus(), COleDateTime::null);
    EXPECT_EQ(r.Record.GetNP(), 3);
    // Untouched by a version-101 read:
    EXPECT_EQ(r.FileIdentifier, "prior file");
    EXPECT_EQ(r.Backazimuth, -1.0);
    EXPECT_EQ(r.EventName, "prior event");
    EXPECT_EQ(r.User1, "p1");
    EXPECT_EQ(r.User5, "p5");
    EXPECT_EQ(r.RecordVersion, 104);
}

TEST(AccelerogramArchiveTest, Versions102And103AddEventNameThenUserTexts) {
    const auto stream = [](WORD version) {
        StreamBuilder s;
        s.Text("").Word(0).Word(version).Text("ID").Text("ex");
        for (int i = 0; i < 10; ++i) {
            s.Double(i);
        }
        s.Int(0).Int(1).Int(0).Text("EV").Text("name").Date(0, 1.0).Date(0, 0.5);
        if (version == 103) {
            s.Text("a").Text("b").Text("c").Text("d").Text("e");
        }
        return s.Append(CurveBytes()).bytes();
    };
    Accelerogram r102 = Prior();
    EXPECT_EQ(LoadObject(stream(102), r102), 0u);
    EXPECT_EQ(r102.EventName, "name");
    EXPECT_EQ(r102.User1, "p1");
    EXPECT_EQ(r102.EventTime.m_dt, 0.5);

    Accelerogram r103 = Prior();
    EXPECT_EQ(LoadObject(stream(103), r103), 0u);
    EXPECT_EQ(r103.User1, "a");
    EXPECT_EQ(r103.User5, "e");
    EXPECT_EQ(r103.FileIdentifier, "prior file");
    EXPECT_EQ(r103.Backazimuth, -1.0);
    EXPECT_EQ(r103.IsSynthetic, 1);
}

TEST(AccelerogramArchiveTest, VersionsOutsideTheRangeSkipStraightToTheCurve) {
    // Outside 101..9999 the event block is absent; the file identifier still follows the
    // identifier whenever the version is above 103.
    for (WORD version : {WORD{100}, WORD{0}, WORD{10000}, WORD{65535}}) {
        StreamBuilder s;
        s.Text("").Word(0).Word(version).Text("BARE");
        if (version > 103) {
            s.Text("bare file");
        }
        const Bytes stream = s.Text("bare explanation").Append(CurveBytes()).bytes();
        Accelerogram r = Prior();
        EXPECT_EQ(LoadObject(stream, r), 0u) << version;
        EXPECT_EQ(r.Identifier, "BARE");
        EXPECT_EQ(r.FileIdentifier, version > 103 ? "bare file" : "prior file");
        EXPECT_EQ(r.Explanation, "bare explanation");
        EXPECT_EQ(r.Record.GetNP(), 3);
        EXPECT_EQ(r.Mw, -9.0);
        EXPECT_EQ(r.EventId, "prior id");
        EXPECT_EQ(r.Backazimuth, -1.0);
        EXPECT_EQ(r.User1, "p1");
    }
}

TEST(AccelerogramArchiveTest, TruncatedOrCorruptStreamsRaiseTheArchiveException) {
    Accelerogram original = Filled();
    const Bytes full = StoreObject(original);
    for (size_t n = 0; n < full.size(); ++n) {
        const Bytes cut(full.begin(), full.begin() + static_cast<long>(n));
        Accelerogram r;
        EXPECT_EQ(ArchiveCause([&] { LoadObject(cut, r); }), CArchiveException::endOfFile) << n;
    }
    // A date status that is none of valid, invalid and null is a damaged stream.
    Bytes badDate = full;
    const size_t statusAt = full.size() - CurveBytes().size() - (4 + 3 + 1 + 5 + 5) - 24;
    ASSERT_EQ(badDate[statusAt], 0);
    badDate[statusAt] = 7;
    Accelerogram r;
    EXPECT_EQ(ArchiveCause([&] { LoadObject(badDate, r); }), CArchiveException::badIndex);
}
