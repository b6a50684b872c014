#include "platform/core/COleDateTime.h"

#include <cmath>
#include <ctime>

namespace seisplot {
namespace {

constexpr long long kSecondsPerDay = 86400;

// Days from 1 January 1970 (Howard Hinnant's days_from_civil).
long long DaysFromCivil(long long y, unsigned m, unsigned d) {
    y -= m <= 2;
    const long long era = (y >= 0 ? y : y - 399) / 400;
    const unsigned yoe = static_cast<unsigned>(y - era * 400);
    const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + static_cast<long long>(doe) - 719468;
}

void CivilFromDays(long long z, int& year, int& month, int& day) {
    z += 719468;
    const long long era = (z >= 0 ? z : z - 146096) / 146097;
    const unsigned doe = static_cast<unsigned>(z - era * 146097);
    const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const unsigned mp = (5 * doy + 2) / 153;
    day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
    month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    year = static_cast<int>(static_cast<long long>(yoe) + era * 400 + (month <= 2));
}

const long long kOleEpoch = DaysFromCivil(1899, 12, 30);

bool IsLeap(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

} // namespace

long long DaysFromOleEpoch(int year, int month, int day) {
    return DaysFromCivil(year, static_cast<unsigned>(month), static_cast<unsigned>(day)) -
           kOleEpoch;
}

bool IsValidDate(int year, int month, int day) {
    static const int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1) {
        return false;
    }
    const int last = kDays[month - 1] + (month == 2 && IsLeap(year) ? 1 : 0);
    return day <= last;
}

} // namespace seisplot

COleDateTime::COleDateTime(int year, int month, int day, int hour, int minute, int second) {
    SetDateTime(year, month, day, hour, minute, second);
}

int COleDateTime::SetDateTime(int year, int month, int day, int hour, int minute, int second) {
    if (!seisplot::IsValidDate(year, month, day) || hour < 0 || hour > 23 || minute < 0 ||
        minute > 59 || second < 0 || second > 59) {
        m_dt = 0.0;
        m_status = invalid;
        return 1;
    }
    const double days = static_cast<double>(seisplot::DaysFromOleEpoch(year, month, day));
    const double fraction = (hour * 3600 + minute * 60 + second) / 86400.0;
    // Before the epoch the whole days are negative but the time of day still counts forward.
    m_dt = days >= 0 ? days + fraction : days - fraction;
    m_status = valid;
    return 0;
}

bool COleDateTime::Split(Parts& parts) const {
    if (m_status != valid || !std::isfinite(m_dt) || std::fabs(m_dt) > 3.0e6) {
        return false;
    }
    double whole = std::trunc(m_dt);
    long long seconds = std::llround(std::fabs(m_dt - whole) * 86400.0);
    if (seconds >= seisplot::kSecondsPerDay) {
        // Rounding up to midnight moves to the next day in calendar order, on either side
        // of the epoch.
        seconds -= seisplot::kSecondsPerDay;
        whole += 1.0;
    }
    const long long day = static_cast<long long>(whole);
    seisplot::CivilFromDays(day + seisplot::kOleEpoch, parts.year, parts.month, parts.day);
    parts.hour = static_cast<int>(seconds / 3600);
    parts.minute = static_cast<int>(seconds / 60 % 60);
    parts.second = static_cast<int>(seconds % 60);
    // 30 December 1899 was a Saturday (7).
    parts.dayOfWeek = static_cast<int>(((day + 6) % 7 + 7) % 7) + 1;
    parts.dayOfYear =
        static_cast<int>(seisplot::DaysFromOleEpoch(parts.year, parts.month, parts.day) -
                         seisplot::DaysFromOleEpoch(parts.year, 1, 1)) +
        1;
    return true;
}

int COleDateTime::Part(int Parts::*field) const {
    Parts parts{};
    return Split(parts) ? parts.*field : -1;
}

int COleDateTime::GetYear() const {
    return Part(&Parts::year);
}
int COleDateTime::GetMonth() const {
    return Part(&Parts::month);
}
int COleDateTime::GetDay() const {
    return Part(&Parts::day);
}
int COleDateTime::GetHour() const {
    return Part(&Parts::hour);
}
int COleDateTime::GetMinute() const {
    return Part(&Parts::minute);
}
int COleDateTime::GetSecond() const {
    return Part(&Parts::second);
}
int COleDateTime::GetDayOfWeek() const {
    return Part(&Parts::dayOfWeek);
}
int COleDateTime::GetDayOfYear() const {
    return Part(&Parts::dayOfYear);
}

CString COleDateTime::Format(const char* format) const {
    if (m_status == null) {
        return CString();
    }
    Parts parts{};
    if (!Split(parts)) {
        return CString("Invalid DateTime");
    }
    std::tm tm{};
    tm.tm_year = parts.year - 1900;
    tm.tm_mon = parts.month - 1;
    tm.tm_mday = parts.day;
    tm.tm_hour = parts.hour;
    tm.tm_min = parts.minute;
    tm.tm_sec = parts.second;
    tm.tm_wday = parts.dayOfWeek - 1;
    tm.tm_yday = parts.dayOfYear - 1;
    char text[256];
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#endif
    const size_t length = std::strftime(text, sizeof text, format ? format : "", &tm);
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif
    return CString(text, static_cast<int>(length));
}

CArchive& operator<<(CArchive& ar, const COleDateTime& date) {
    return ar << static_cast<std::int32_t>(date.m_status) << date.m_dt;
}

CArchive& operator>>(CArchive& ar, COleDateTime& date) {
    std::int32_t status = 0;
    double value = 0.0;
    ar >> status >> value;
    if (status < COleDateTime::valid || status > COleDateTime::null) {
        AfxThrowArchiveException(CArchiveException::badIndex, ar.m_strFileName);
    }
    date.m_status = static_cast<COleDateTime::DateTimeStatus>(status);
    date.m_dt = value;
    return ar;
}
