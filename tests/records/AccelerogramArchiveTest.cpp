#include "records/Accelerogram.h"
#include "support/ArchiveBytes.h"
#include "support/SampledRecord.h"

#include <gtest/gtest.h>

#include <vector>

using namespace seisplot::test;

namespace {

// The record curve (three samples at 0.005 s) in its archive form.
Bytes CurveBytes() {
    PCurve curve = RecordOf({0.0, -12.75, 3.5}, 0.005).Record;
    return StoreObject(curve);
}

// A version-104 record written by hand, field by field, with a value in every field.
Bytes Stream104() {
    StreamBuilder s;
    s.Text("IT.AQV").Word(0).Word(104); // selectable part (no views), version
    s.Text("IT.AQV..HNE").Text("20090406_013239_AQV_HNE.ASC").Text("3 points, pga 0.0013 g");
    for (double v : {6.1, 5.9, 4.8, 8.3, 133.0, 54.0, -102.0, 42.342, 13.38, 90.0, 271.5}) {
        s.Double(v);
    }
    s.Int(1).Int(0).Int(1).Text("IT-2009-0009").Text("L'Aquila");
    s.Date(0, 39909.0).Date(0, (1 * 3600 + 32 * 60 + 39) / 86400.0); // 6 April 2009, 01:32:39
    s.Text("one").Text("two").Text("").Text("four").Text("five").Append(CurveBytes());
    return s.bytes();
}

// A record whose fields differ from those the streams carry, to see which a read replaces.
Accelerogram Prior() {
    Accelerogram r;
    r.FileIdentifier = "prior file";
    r.Backazimuth = -1.0;
    r.EventName = "prior event";
    r.User1 = "p1";
    r.User3 = "p3";
    r.Mw = -9.0;
    r.EventId = "prior id";
    r.AnalysisId = 99;
    return r;
}

Accelerogram Filled() {
    Accelerogram r = Prior();
    EXPECT_EQ(LoadObject(Stream104(), r), 0u);
    return r;
}

} // namespace

TEST(AccelerogramArchiveTest, Version104IsLaidOutFieldByField) {
    Accelerogram r = Filled();
    EXPECT_EQ(r.GetName(), "IT.AQV");
    EXPECT_EQ((std::vector<CString>{r.Identifier, r.FileIdentifier, r.Explanation, r.EventId,
                                    r.EventName, r.User1, r.User2, r.User3, r.User4, r.User5}),
              (std::vector<CString>{"IT.AQV..HNE", "20090406_013239_AQV_HNE.ASC",
                                    "3 points, pga 0.0013 g", "IT-2009-0009", "L'Aquila", "one",
                                    "two", "", "four", "five"}));
    EXPECT_EQ(
        (std::vector<double>{r.Mw, r.Ml, r.EpicentralDistance, r.HypocentralDepth, r.Strike, r.Dip,
                             r.Rake, r.Latitude, r.Longitude, r.AngleWE, r.Backazimuth}),
        (std::vector<double>{6.1, 5.9, 4.8, 8.3, 133.0, 54.0, -102.0, 42.342, 13.38, 90.0, 271.5}));
    EXPECT_EQ((std::vector<int>{r.IsVertical, r.IsSynthetic, r.SyntheticKind}),
              (std::vector<int>{1, 0, 1}));
    EXPECT_EQ(r.EventDate, COleDateTime(2009, 4, 6, 0, 0, 0));
    EXPECT_EQ(r.EventTime, COleDateTime(1899, 12, 30, 1, 32, 39));
    EXPECT_EQ(r.Record.GetNP(), 3);
    EXPECT_EQ(r.AnalysisId, 99); // never archived
    // Written again, the record gives the same bytes.
    EXPECT_EQ(StoreObject(r), Stream104());
}

TEST(AccelerogramArchiveTest, EveryVersionReadsItsOwnFields) {
    // Above 103 the file identifier follows the identifier; from 101 to 9999 the event block
    // follows the explanation, with the backazimuth above 103, the event name above 101 and
    // the user texts above 102. Other versions go straight on to the curve.
    const auto stream = [](WORD v) {
        StreamBuilder s;
        s.Text("").Word(0).Word(v).Text("ID");
        if (v > 103) {
            s.Text("file");
        }
        s.Text("ex");
        if (v > 100 && v < 10000) {
            for (int i = 1; i <= (v > 103 ? 11 : 10); ++i) {
                s.Double(i);
            }
            s.Int(1).Int(1).Int(0).Text("EV");
            if (v > 101) {
                s.Text("name");
            }
            s.Date(1, 0.0).Date(2, 0.0); // invalid, null
            if (v > 102) {
                s.Text("a").Text("b").Text("c").Text("d").Text("e");
            }
        }
        return s.Append(CurveBytes()).bytes();
    };
    const struct {
        WORD version;
        bool fileId, event, backazimuth, eventName, users;
    } cases[] = {
        {0, false, false, false, false, false},    {100, false, false, false, false, false},
        {101, false, true, false, false, false},   {102, false, true, false, true, false},
        {103, false, true, false, true, true},     {9999, true, true, true, true, true},
        {10000, true, false, false, false, false}, {65535, true, false, false, false, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.version);
        Accelerogram r = Prior();
        EXPECT_EQ(LoadObject(stream(c.version), r), 0u);
        EXPECT_EQ(r.Identifier, "ID");
        EXPECT_EQ(r.Explanation, "ex");
        EXPECT_EQ(r.Record.GetNP(), 3);
        EXPECT_EQ(r.FileIdentifier, c.fileId ? "file" : "prior file");
        EXPECT_EQ(r.Mw, c.event ? 1.0 : -9.0);
        EXPECT_EQ(r.AngleWE, c.event ? 10.0 : 0.0);
        EXPECT_EQ(r.EventId, c.event ? "EV" : "prior id");
        EXPECT_EQ(r.IsSynthetic, c.event ? 1 : 0);
        EXPECT_EQ(r.EventDate.GetStatus(), c.event ? COleDateTime::invalid : COleDateTime::valid);
        EXPECT_EQ(r.EventTime.GetStatus(), c.event ? COleDateTime::null : COleDateTime::valid);
        EXPECT_EQ(r.Backazimuth, c.backazimuth ? 11.0 : -1.0);
        EXPECT_EQ(r.EventName, c.eventName ? "name" : "prior event");
        EXPECT_EQ(r.User1, c.users ? "a" : "p1");
        EXPECT_EQ(r.User5, c.users ? "e" : "");
        EXPECT_EQ(r.RecordVersion, 104); // what the record writes, whatever it read
    }
}

TEST(AccelerogramArchiveTest, TruncatedOrCorruptStreamsRaiseTheArchiveException) {
    const Bytes full = Stream104();
    for (size_t n = 0; n < full.size(); ++n) {
        const Bytes cut(full.begin(), full.begin() + static_cast<long>(n));
        Accelerogram r;
        EXPECT_EQ(ArchiveCause([&] { LoadObject(cut, r); }), CArchiveException::endOfFile) << n;
    }
    // A date status that is none of valid, invalid and null is a damaged stream. The event
    // date's status starts two dates (12 bytes each) before the user texts (19 bytes: "one",
    // "two", "", "four", "five") and the curve.
    Bytes badDate = full;
    const size_t statusAt = full.size() - CurveBytes().size() - 19 - 24;
    ASSERT_EQ(badDate[statusAt], 0);
    badDate[statusAt] = 7;
    Accelerogram r;
    EXPECT_EQ(ArchiveCause([&] { LoadObject(badDate, r); }), CArchiveException::badIndex);
}

TEST(AccelerogramArchiveTest, CopiesCarryEveryFieldButTheVersion) {
    Accelerogram a = Filled();
    a.Select(4);
    a.AnalysisId = 12;
    a.IsSynthetic = 1; // the fields that Filled() leaves at their defaults
    a.User3 = "three";
    const Bytes expected = StoreObject(a);
    a.RecordVersion = 101; // carried by neither copy nor assignment

    Accelerogram copied(a);
    Accelerogram assigned;
    Accelerogram returned = (assigned = a);
    for (Accelerogram* b : {&copied, &assigned, &returned}) {
        EXPECT_EQ(StoreObject(*b), expected);
        EXPECT_EQ(b->AnalysisId, 12);
    }
    assigned = assigned; // self-assignment changes nothing
    EXPECT_EQ(StoreObject(assigned), expected);
}
