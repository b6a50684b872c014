// COleDateTime: day counts from 30 December 1899, calendar checks, parts and archive form.

#include "platform/core/COleDateTime.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

using Bytes = std::vector<BYTE>;

Bytes StoredDate(const COleDateTime& date) {
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    ar << date;
    ar.Close();
    return file.Data();
}

COleDateTime LoadedDate(const Bytes& bytes) {
    CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    COleDateTime date;
    ar >> date;
    return date;
}

} // namespace

TEST(Date, DaysCountFromThe30thOfDecember1899AndSplitBack) {
    struct Case {
        int y, mo, d, h, mi, s;
        double days;
    };
    // Day counts worked out by hand from the Gregorian calendar. Times are multiples of 675 s,
    // 1/128 day, so the values are exact: 17:48:45 is 95/128. Before day 0 the whole days are
    // negative and the time of day is subtracted.
    const Case cases[] = {
        {1899, 12, 30, 0, 0, 0, 0.0},          {1900, 1, 1, 0, 0, 0, 2.0},
        {2000, 2, 29, 0, 0, 0, 36585.0},       {2016, 10, 30, 17, 48, 45, 42673.7421875},
        {1899, 12, 30, 18, 0, 0, 0.75},        {1899, 12, 29, 6, 11, 15, -1.2578125},
        {1800, 2, 28, 22, 30, 0, -36464.9375}, {9999, 12, 31, 0, 0, 0, 2958465.0},
        {100, 1, 1, 0, 0, 0, -657434.0},
    };
    for (const Case& c : cases) {
        const COleDateTime date(c.y, c.mo, c.d, c.h, c.mi, c.s);
        SCOPED_TRACE(testing::Message() << c.y << '-' << c.mo << '-' << c.d << ' ' << c.h);
        EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
        EXPECT_EQ(date.m_dt, c.days);
        EXPECT_EQ((std::vector<int>{date.GetYear(), date.GetMonth(), date.GetDay(), date.GetHour(),
                                    date.GetMinute(), date.GetSecond()}),
                  (std::vector<int>{c.y, c.mo, c.d, c.h, c.mi, c.s}));
    }

    // A fraction a hair below midnight rounds to the next day, on both sides of day 0.
    const COleDateTime lateOctober(42673.0 + 86399.7 / 86400.0);
    EXPECT_EQ(lateOctober.GetDay(), 31);
    EXPECT_EQ(lateOctober.GetHour(), 0);
    const COleDateTime lateDecember(-1.0 - 86399.7 / 86400.0);
    EXPECT_EQ(lateDecember.GetDay(), 30);
    EXPECT_EQ(lateDecember.GetHour(), 0);

    // 30 October 2016 was a Sunday, 29 December 1899 a Friday; 1 March 2016 is 31 + 29 + 1.
    EXPECT_EQ(COleDateTime(2016, 10, 30, 0, 0, 0).GetDayOfWeek(), 1);
    EXPECT_EQ(COleDateTime(1899, 12, 29, 6, 0, 0).GetDayOfWeek(), 6);
    EXPECT_EQ(COleDateTime(2016, 3, 1, 0, 0, 0).GetDayOfYear(), 61);
    EXPECT_EQ(COleDateTime(2016, 10, 30, 13, 45, 7).Format("%Y-%m-%d %H:%M:%S"),
              "2016-10-30 13:45:07");
}

TEST(Date, CalendarRejectsImpossibleDatesAndTimes) {
    EXPECT_EQ(COleDateTime(2016, 2, 29, 0, 0, 0).GetStatus(), COleDateTime::valid);
    const int impossible[][6] = {{1900, 2, 29, 0, 0, 0},   {2015, 2, 29, 0, 0, 0},
                                 {2016, 13, 1, 0, 0, 0},   {2016, 0, 1, 0, 0, 0},
                                 {2016, 10, 0, 0, 0, 0},   {2016, 4, 31, 0, 0, 0},
                                 {2016, 10, 30, 24, 0, 0}, {2016, 10, 30, 0, 60, 0},
                                 {2016, 10, 30, 0, 0, 60}, {2016, 10, 30, -1, 0, 0}};
    for (const auto& p : impossible) {
        SCOPED_TRACE(testing::Message() << p[0] << '-' << p[1] << '-' << p[2] << ' ' << p[3]);
        const COleDateTime date(p[0], p[1], p[2], p[3], p[4], p[5]);
        EXPECT_EQ(date.GetStatus(), COleDateTime::invalid);
        EXPECT_EQ(date.GetYear(), -1);
    }
    // Setting a real date afterwards makes it valid again.
    COleDateTime date(2015, 2, 29, 0, 0, 0);
    EXPECT_EQ(date.SetDateTime(2016, 10, 30, 0, 0, 0), 0);
    EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(date.m_dt, 42673.0);

    // A null status keeps the value but hides the parts.
    date.SetStatus(COleDateTime::null);
    EXPECT_EQ(date.m_dt, 42673.0);
    EXPECT_EQ(date.GetDay(), -1);
    EXPECT_NE(date, COleDateTime(2016, 10, 30, 0, 0, 0));
}

TEST(Date, ArchiveFormIsStatusThenDays) {
    COleDateTime nullDate(2.0);
    nullDate.SetStatus(COleDateTime::null);
    const std::pair<COleDateTime, Bytes> cases[] = {
        {COleDateTime(2016, 10, 30, 12, 0, 0), {0, 0, 0, 0, 0, 0, 0, 0, 0x30, 0xD6, 0xE4, 0x40}},
        {COleDateTime(2015, 2, 29, 0, 0, 0), {1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {nullDate, {2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x40}},
        {COleDateTime(1899, 12, 29, 6, 0, 0), {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xF4, 0xBF}},
    };
    for (const auto& [date, bytes] : cases) {
        SCOPED_TRACE(date.m_dt);
        EXPECT_EQ(StoredDate(date), bytes);
        const COleDateTime back = LoadedDate(bytes);
        EXPECT_EQ(back.GetStatus(), date.GetStatus());
        EXPECT_EQ(back.m_dt, date.m_dt);
    }
    // A status outside valid/invalid/null is a damaged archive.
    try {
        LoadedDate(Bytes{7, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
        ADD_FAILURE() << "status 7 accepted";
    } catch (CArchiveException* e) {
        e->Delete();
    }
}
