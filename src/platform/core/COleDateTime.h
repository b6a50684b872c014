#pragma once
// COleDateTime: a date and time as days counted from 30 December 1899, the fraction being the
// time of day. Before that day the count is negative and the fraction still counts forward
// from midnight: -1.25 is 29 December 1899, 06:00. Valid dates run from 1 January 100 to
// 31 December 9999. In archives a date is a 32-bit status followed by the double.

#include "platform/core/CArchive.h"

class COleDateTime {
public:
    enum DateTimeStatus { error = -1, valid = 0, invalid = 1, null = 2 };

    // The zero date (30 December 1899, midnight), valid.
    COleDateTime() = default;
    COleDateTime(DATE dt) : m_dt(dt) {}
    // A date that the calendar does not have, or an impossible time, leaves the status
    // invalid and the value 0.
    COleDateTime(int year, int month, int day, int hour, int minute, int second);

    DateTimeStatus GetStatus() const { return m_status; }
    void SetStatus(DateTimeStatus status) { m_status = status; }

    // 0 on success, 1 when the date or time is impossible (then status invalid, value 0).
    int SetDateTime(int year, int month, int day, int hour, int minute, int second);

    // Calendar parts, to the nearest second; -1 unless the status is valid.
    int GetYear() const;
    int GetMonth() const;
    int GetDay() const;
    int GetHour() const;
    int GetMinute() const;
    int GetSecond() const;
    int GetDayOfWeek() const; // 1 = Sunday ... 7 = Saturday
    int GetDayOfYear() const; // 1 = 1 January

    // strftime-style text; "Invalid DateTime" when invalid, empty when null.
    CString Format(const char* format = "%x %X") const;

    operator DATE() const { return m_dt; }
    bool operator==(const COleDateTime& other) const {
        return m_status == other.m_status && m_dt == other.m_dt;
    }
    bool operator!=(const COleDateTime& other) const { return !(*this == other); }

    DATE m_dt = 0.0;
    DateTimeStatus m_status = valid;

private:
    struct Parts {
        int year, month, day, hour, minute, second, dayOfWeek, dayOfYear;
    };
    bool Split(Parts& parts) const;
    int Part(int Parts::*field) const;
};

CArchive& operator<<(CArchive& ar, const COleDateTime& date);
CArchive& operator>>(CArchive& ar, COleDateTime& date);

namespace seisplot {

// Days from 30 December 1899 to the given day of the proleptic Gregorian calendar.
long long DaysFromOleEpoch(int year, int month, int day);
bool IsValidDate(int year, int month, int day);

} // namespace seisplot
