// COleDateTime: day counts from 30 December 1899, calendar checks, parts and archive form.

#include "platform/core/COleDateTime.h"

#include <gtest/gtest.h>

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

TEST(Date, DaysCountFromThe30thOfDecember1899) {
    struct Case {
        int y, mo, d, h, mi, s;
        double days;
    };
    // Day counts worked out by hand from the Gregorian calendar.
    const Case cases[] = {
        {1899, 12, 30, 0, 0, 0, 0.0},       {1899, 12, 31, 0, 0, 0, 1.0},
        {1900, 1, 1, 0, 0, 0, 2.0},         {2000, 1, 1, 0, 0, 0, 36526.0},
        {2000, 2, 29, 0, 0, 0, 36585.0},    {2016, 10, 30, 0, 0, 0, 42673.0},
        {2016, 10, 30, 12, 0, 0, 42673.5},  {1899, 12, 30, 12, 0, 0, 0.5},
        {1899, 12, 30, 18, 0, 0, 0.75},     {1899, 12, 29, 6, 0, 0, -1.25},
        {1899, 12, 29, 0, 0, 0, -1.0},      {1800, 2, 28, 12, 0, 0, -36464.5},
        {9999, 12, 31, 0, 0, 0, 2958465.0}, {100, 1, 1, 0, 0, 0, -657434.0},
    };
    for (const Case& c : cases) {
        const COleDateTime date(c.y, c.mo, c.d, c.h, c.mi, c.s);
        SCOPED_TRACE(testing::Message() << c.y << '-' << c.mo << '-' << c.d << ' ' << c.h);
        EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
        EXPECT_DOUBLE_EQ(date.m_dt, c.days);
    }
}

TEST(Date, CalendarRejectsImpossibleDatesAndTimes) {
    EXPECT_EQ(COleDateTime(2000, 2, 29, 0, 0, 0).GetStatus(), COleDateTime::valid);
    EXPECT_EQ(COleDateTime(2016, 2, 29, 0, 0, 0).GetStatus(), COleDateTime::valid);
    EXPECT_EQ(COleDateTime(2016, 12, 31, 23, 59, 59).GetStatus(), COleDateTime::valid);
    const int impossible[][6] = {
        {1900, 2, 29, 0, 0, 0},   {2015, 2, 29, 0, 0, 0},   {2100, 2, 29, 0, 0, 0},
        {2016, 13, 1, 0, 0, 0},   {2016, 0, 1, 0, 0, 0},    {2016, 10, 0, 0, 0, 0},
        {2016, 4, 31, 0, 0, 0},   {2016, 10, 30, 24, 0, 0}, {2016, 10, 30, 0, 60, 0},
        {2016, 10, 30, 0, 0, 60}, {2016, 10, 30, -1, 0, 0},
    };
    for (const auto& p : impossible) {
        SCOPED_TRACE(testing::Message() << p[0] << '-' << p[1] << '-' << p[2] << ' ' << p[3] << ':'
                                        << p[4] << ':' << p[5]);
        COleDateTime date(p[0], p[1], p[2], p[3], p[4], p[5]);
        EXPECT_EQ(date.GetStatus(), COleDateTime::invalid);
        EXPECT_EQ(date.GetYear(), -1);
        // Setting a real date afterwards makes it valid again.
        EXPECT_EQ(date.SetDateTime(2016, 10, 30, 0, 0, 0), 0);
        EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
        EXPECT_EQ(date.m_dt, 42673.0);
    }
}

TEST(Date, PartsRoundTrip) {
    const int moments[][6] = {
        {2016, 10, 30, 13, 45, 7}, {2000, 2, 29, 0, 0, 1},     {1899, 12, 29, 6, 0, 0},
        {1800, 2, 28, 23, 59, 59}, {1899, 12, 30, 0, 0, 0},    {9999, 12, 31, 23, 59, 59},
        {100, 1, 1, 0, 0, 0},      {1970, 1, 1, 0, 0, 0},      {1899, 12, 31, 23, 59, 59},
        {1600, 3, 1, 12, 30, 30},  {2024, 12, 31, 11, 11, 11},
    };
    for (const auto& p : moments) {
        const COleDateTime date(p[0], p[1], p[2], p[3], p[4], p[5]);
        SCOPED_TRACE(date.m_dt);
        EXPECT_EQ(date.GetYear(), p[0]);
        EXPECT_EQ(date.GetMonth(), p[1]);
        EXPECT_EQ(date.GetDay(), p[2]);
        EXPECT_EQ(date.GetHour(), p[3]);
        EXPECT_EQ(date.GetMinute(), p[4]);
        EXPECT_EQ(date.GetSecond(), p[5]);
    }

    // A fraction a hair below midnight rounds to the next day, on both sides of day 0.
    const COleDateTime lateOctober(42673.0 + 86399.7 / 86400.0);
    EXPECT_EQ(lateOctober.GetMonth(), 10);
    EXPECT_EQ(lateOctober.GetDay(), 31);
    EXPECT_EQ(lateOctober.GetHour(), 0);
    const COleDateTime lateDecember(-1.0 - 86399.7 / 86400.0);
    EXPECT_EQ(lateDecember.GetDay(), 30);
    EXPECT_EQ(lateDecember.GetHour(), 0);
    EXPECT_EQ(lateDecember.GetSecond(), 0);

    // 30 October 2016 was a Sunday, 30 December 1899 a Saturday, 29 December 1899 a Friday.
    EXPECT_EQ(COleDateTime(2016, 10, 30, 0, 0, 0).GetDayOfWeek(), 1);
    EXPECT_EQ(COleDateTime(1899, 12, 30, 0, 0, 0).GetDayOfWeek(), 7);
    EXPECT_EQ(COleDateTime(1899, 12, 29, 6, 0, 0).GetDayOfWeek(), 6);
    EXPECT_EQ(COleDateTime(2000, 12, 31, 0, 0, 0).GetDayOfYear(), 366);
    EXPECT_EQ(COleDateTime(2016, 3, 1, 0, 0, 0).GetDayOfYear(), 61);

    EXPECT_EQ(COleDateTime(2016, 10, 30, 13, 45, 7).Format("%Y-%m-%d %H:%M:%S"),
              "2016-10-30 13:45:07");
}

TEST(Date, StatusIsKeptApartFromTheValue) {
    COleDateTime date(2016, 10, 30, 0, 0, 0);
    EXPECT_EQ(date.m_dt, 42673.0);
    EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
    date.SetStatus(COleDateTime::null);
    EXPECT_EQ(date.GetStatus(), COleDateTime::null);
    EXPECT_EQ(date.m_dt, 42673.0);
    EXPECT_EQ(date.GetDay(), -1);
    EXPECT_NE(date, COleDateTime(2016, 10, 30, 0, 0, 0));
    date.SetStatus(COleDateTime::valid);
    EXPECT_EQ(date.GetDay(), 30);
    EXPECT_EQ(COleDateTime().m_dt, 0.0);
    EXPECT_EQ(COleDateTime().GetStatus(), COleDateTime::valid);
}

TEST(Date, ArchiveFormIsStatusThenDays) {
    const COleDateTime valid(2016, 10, 30, 12, 0, 0);
    const COleDateTime invalid(2015, 2, 29, 0, 0, 0);
    COleDateTime nullDate(2.0);
    nullDate.SetStatus(COleDateTime::null);
    const COleDateTime before(1899, 12, 29, 6, 0, 0);

    EXPECT_EQ(StoredDate(valid), (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0x30, 0xD6, 0xE4, 0x40}));
    EXPECT_EQ(StoredDate(invalid), (Bytes{1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(StoredDate(nullDate), (Bytes{2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x40}));
    EXPECT_EQ(StoredDate(before), (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xF4, 0xBF}));

    for (const COleDateTime& date : {valid, invalid, nullDate, before}) {
        const COleDateTime back = LoadedDate(StoredDate(date));
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
