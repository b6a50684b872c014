// Import of ITACA ASCII record files: one "KEY: value" header line per key, then one
// acceleration value per line at a constant sampling interval.

#include "records/Accelerogram.h"

#include "platform/core/UserInterface.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>

namespace {

// How the file's name says its components are oriented.
enum class FileClass { Radial, Transverse, Up, Sew, Sns, Plain };

FileClass Classify(CString path) {
    path.MakeUpper();
    const auto endsWith = [&](const char* suffix) {
        return path.Right(static_cast<int>(std::strlen(suffix))) == suffix;
    };
    if (endsWith(".RA")) {
        return FileClass::Radial;
    }
    if (endsWith(".TR")) {
        return FileClass::Transverse;
    }
    if (endsWith(".UP")) {
        return FileClass::Up;
    }
    if (endsWith(".SEW")) {
        return FileClass::Sew;
    }
    if (endsWith(".SNS")) {
        return FileClass::Sns;
    }
    return FileClass::Plain;
}

enum class Key {
    EventName,
    EventId,
    EventDate,
    EventTime,
    Latitude,
    Longitude,
    Depth,
    MagnitudeW,
    MagnitudeL,
    SiteClass,
    EpicentralDistance,
    NData,
    SamplingInterval,
    Duration,
    Stream,
    Units,
    Pga,
    TimePga,
    DataType,
    Backazimuth,
    User1,
    User2,
    User3,
    User4,
    User5
};

// Tested in this order; a line is a header line when it begins with one of them.
constexpr struct {
    const char* text;
    Key key;
} kKeys[] = {
    {"EVENT_NAME:", Key::EventName},
    {"EVENT_ID:", Key::EventId},
    {"EVENT_DATE_YYYYMMDD:", Key::EventDate},
    {"EVENT_TIME_HHMMSS:", Key::EventTime},
    {"EVENT_LATITUDE_DEGREE:", Key::Latitude},
    {"EVENT_LONGITUDE_DEGREE:", Key::Longitude},
    {"EVENT_DEPTH_KM:", Key::Depth},
    {"MAGNITUDE_W:", Key::MagnitudeW},
    {"MAGNITUDE_L:", Key::MagnitudeL},
    {"SITE_CLASSIFICATION_EC8:", Key::SiteClass},
    {"EPICENTRAL_DISTANCE_KM:", Key::EpicentralDistance},
    {"NDATA:", Key::NData},
    {"SAMPLING_INTERVAL_S:", Key::SamplingInterval},
    {"DURATION_S:", Key::Duration},
    {"STREAM:", Key::Stream},
    {"UNITS:", Key::Units},
    {"PGA_CM/S^2:", Key::Pga},
    {"TIME_PGA_S:", Key::TimePga},
    {"DATA_TYPE:", Key::DataType},
    {"EARTHQUAKE_BACKAZIMUTH_DEGREE:", Key::Backazimuth},
    {"USER1:", Key::User1},
    {"USER2:", Key::User2},
    {"USER3:", Key::User3},
    {"USER4:", Key::User4},
    {"USER5:", Key::User5},
};

// The data units a "UNITS:" value names, by their leading characters in lower case.
constexpr struct {
    const char* text;
    double millimetres;
} kDataUnits[] = {{"cm/s^2", 10.0}, {"mm/s^2", 1.0}, {"m/s^2", 1000.0}, {"in/s^2", 25.4}};

bool ScanDouble(const CString& text, double& value) {
    return std::sscanf(text.GetString(), "%lf", &value) == 1;
}

// One import: the record being filled and the state of the reading.
class AsciiReader {
public:
    AsciiReader(Accelerogram& record, const CString& path)
        : m_record(record), m_class(Classify(path)) {}

    // 0 on success, 1 after a failure has been shown.
    int Read(std::istream& in, int quiet, const CString& name);

private:
    enum class Outcome { Next, Failed };

    Outcome Header(Key key, CString value);
    Outcome DataBlock(std::istream& in, const std::string& firstLine);
    Outcome RowError(bool clear = true);
    bool ReadLine(std::istream& in, std::string& line) {
        ++m_row;
        return static_cast<bool>(std::getline(in, line));
    }

    Accelerogram& m_record;
    FileClass m_class;
    Units m_units;
    long m_row = 0;
    bool m_afterUser5 = false;
    bool m_haveCount = false;
    bool m_haveStep = false;
    long m_count = 0;
    double m_step = 0.0;
    double m_pga = 0.0;
    double m_tmax = -1.0e12;
    double m_tmin = 1.0e12;
};

AsciiReader::Outcome AsciiReader::RowError(bool clear) {
    CString text;
    text.Format("Error reading row %ld", m_row);
    AfxMessageBox(text);
    if (clear) {
        m_record.Record.Clear();
    }
    return Outcome::Failed;
}

AsciiReader::Outcome AsciiReader::Header(Key key, CString value) {
    Accelerogram& r = m_record;
    double number = 0.0;
    switch (key) {
    case Key::EventName:
        switch (m_class) {
        case FileClass::Radial:
            value.Replace(".r2d.rac.acc.RA", "");
            break;
        case FileClass::Transverse:
            value.Replace(".l2d.tac.acc.TR", "");
            break;
        case FileClass::Up:
            if (value.Replace(".r2d.zac.acc.UP", "") == 0) {
                value.Replace(".rzz", "");
                value.Replace(".ASC", "");
            }
            break;
        case FileClass::Sew:
            value.Replace(".sew", "");
            value.Replace(".ASC", "");
            break;
        case FileClass::Sns:
            value.Replace(".sns", "");
            value.Replace(".ASC", "");
            break;
        case FileClass::Plain:
            return Outcome::Next;
        }
        r.EventName = value;
        r.EventId = value;
        return Outcome::Next;
    case Key::EventId:
        if (!value.IsEmpty()) {
            r.EventId = value;
        }
        return Outcome::Next;
    case Key::EventDate: {
        long year = 0;
        long month = 0;
        long day = 0;
        if (std::sscanf(value.GetString(), "%4ld%2ld%2ld", &year, &month, &day) < 3) {
            return RowError();
        }
        if (year != 0 && month != 0 && day != 0) {
            r.IsSynthetic = 0;
        } else {
            // A record without a complete date is taken as synthetic, dated 1 January 1000.
            year = 1000;
            month = 1;
            day = 1;
            r.IsSynthetic = 1;
        }
        r.EventDate = COleDateTime(static_cast<int>(year), static_cast<int>(month),
                                   static_cast<int>(day), 0, 0, 0);
        return Outcome::Next;
    }
    case Key::EventTime: {
        long hour = 0;
        long minute = 0;
        long second = 0;
        if (std::sscanf(value.GetString(), "%2ld%2ld%2ld", &hour, &minute, &second) < 3) {
            return RowError();
        }
        r.EventTime = COleDateTime(1899, 12, 30, static_cast<int>(hour), static_cast<int>(minute),
                                   static_cast<int>(second));
        return Outcome::Next;
    }
    case Key::Latitude:
    case Key::Longitude:
    case Key::Depth:
    case Key::EpicentralDistance:
    case Key::Duration:
        if (!ScanDouble(value, number)) {
            return RowError();
        }
        if (key == Key::Latitude) {
            r.Latitude = number;
        } else if (key == Key::Longitude) {
            r.Longitude = number;
        } else if (key == Key::Depth) {
            r.HypocentralDepth = number;
        } else if (key == Key::EpicentralDistance) {
            r.EpicentralDistance = number;
        }
        return Outcome::Next;
    case Key::MagnitudeW:
        r.Mw = ScanDouble(value, number) ? number : 0.0;
        return Outcome::Next;
    case Key::MagnitudeL:
        r.Ml = ScanDouble(value, number) ? number : 0.0;
        return Outcome::Next;
    case Key::NData:
        if (std::sscanf(value.GetString(), "%ld", &m_count) != 1) {
            return RowError();
        }
        m_haveCount = true;
        return Outcome::Next;
    case Key::SamplingInterval:
        // A step that is not a positive number cannot place the samples in time.
        if (!ScanDouble(value, number) || !(number > 0.0) || !std::isfinite(number)) {
            return RowError();
        }
        m_step = number;
        m_haveStep = true;
        return Outcome::Next;
    case Key::Stream: {
        const char last = value.IsEmpty() ? '\0' : value[value.GetLength() - 1];
        if (last == 'E' || last == 'N' || last == 'Z') {
            r.AngleWE = last == 'N' ? 90.0 : 0.0;
            r.IsVertical = last == 'Z' ? 1 : 0;
        } else if (m_class == FileClass::Plain) {
            CString text;
            text.Format("Unable to detect signal direction. File %s. Assumed WE",
                        r.FileIdentifier.GetString());
            AfxMessageBox(text);
            r.AngleWE = 0.0;
            r.IsVertical = 0;
        }
        return Outcome::Next;
    }
    case Key::Units: {
        value.MakeLower();
        for (const auto& unit : kDataUnits) {
            if (std::strncmp(value.GetString(), unit.text, std::strlen(unit.text)) == 0) {
                m_units.SetL(unit.millimetres);
                return Outcome::Next;
            }
        }
        AfxMessageBox("Unknown unit");
        return Outcome::Failed;
    }
    case Key::DataType:
        if (value != "ACCELERATION") {
            AfxMessageBox("Not an acceleration signal");
            return Outcome::Failed;
        }
        return Outcome::Next;
    case Key::Backazimuth:
        if (!ScanDouble(value, number)) {
            return RowError();
        }
        r.Backazimuth = number;
        switch (m_class) {
        case FileClass::Radial:
            r.AngleWE = 90.0 - number;
            break;
        case FileClass::Transverse:
            r.AngleWE = 180.0 - number;
            break;
        case FileClass::Sew:
            r.AngleWE = 0.0;
            break;
        case FileClass::Sns:
            r.AngleWE = 90.0;
            break;
        case FileClass::Up:
            r.IsVertical = 1;
            break;
        case FileClass::Plain:
            break;
        }
        return Outcome::Next;
    case Key::User1:
        r.User1 = value;
        return Outcome::Next;
    case Key::User2:
        r.User2 = value;
        return Outcome::Next;
    case Key::User3:
        r.User3 = value;
        return Outcome::Next;
    case Key::User4:
        r.User4 = value;
        return Outcome::Next;
    case Key::User5:
        r.User5 = value;
        m_afterUser5 = true;
        return Outcome::Next;
    case Key::SiteClass:
    case Key::Pga:
    case Key::TimePga:
        return Outcome::Next;
    }
    return Outcome::Next;
}

AsciiReader::Outcome AsciiReader::DataBlock(std::istream& in, const std::string& firstLine) {
    double value = 0.0;
    // Without a count and a step before the data the samples cannot be placed.
    if (std::sscanf(firstLine.c_str(), "%le", &value) != 1 || !m_haveCount || !m_haveStep) {
        return RowError();
    }
    const bool inverted = m_class == FileClass::Sew || m_class == FileClass::Sns;
    // The first datum is taken as read, at t = 0, and does not count towards the PGA.
    m_record.Record.AddPoint(0.0, inverted ? -value : value);
    m_tmin = 0.0;
    double t = 0.0;
    std::string line;
    for (long k = 1; k < m_count; ++k) {
        t += m_step;
        if (!ReadLine(in, line) || std::sscanf(line.c_str(), "%le", &value) != 1) {
            return RowError();
        }
        double a = m_units.Acc_M(value);
        if (m_class == FileClass::Sew) {
            a = -a;
        }
        m_pga = std::max(m_pga, std::fabs(a));
        m_tmax = std::max(m_tmax, t);
        m_tmin = std::min(m_tmin, t);
        m_record.Record.AddPoint(t, a);
    }
    return Outcome::Next;
}

int AsciiReader::Read(std::istream& in, int quiet, const CString& name) {
    std::string line;
    while (ReadLine(in, line)) {
        bool header = false;
        for (const auto& key : kKeys) {
            const size_t length = std::strlen(key.text);
            if (line.compare(0, length, key.text) == 0) {
                CString value(line.substr(length));
                value.Trim();
                if (Header(key.key, value) == Outcome::Failed) {
                    return 1;
                }
                header = true;
                break;
            }
        }
        if (header || !(line.compare(0, 5, "0.000") == 0 || m_afterUser5)) {
            continue;
        }
        if (DataBlock(in, line) == Outcome::Failed) {
            return 1;
        }
    }
    if (m_record.Record.GetNP() == 0) {
        AfxMessageBox("Error no data read. First datum MUST be 0.000");
        return 1;
    }
    CString summary;
    summary.Format("PGA= %7.3lf  NP= %ld  dT= %7.4lf  Tmin = %7.3lf  Tmax= %7.3lf",
                   m_pga / Accelerogram::kG, m_count, m_step, m_tmin, m_tmax);
    if (quiet == 0) {
        AfxMessageBox(summary);
    }
    m_record.Identifier = name;
    m_record.SetName(m_record.Identifier);
    m_record.Record.SetName(m_record.Identifier);
    m_record.Explanation = summary;
    return 0;
}

} // namespace

int Accelerogram::ReadASC(int quiet, CString name, CString path) {
    std::ifstream in(path.GetString(), std::ios::binary);
    if (!in) {
        AfxMessageBox("Unable to open ASC file");
        return 1;
    }
    PrepareImport();
    IsSynthetic = 1;
    Identifier = name;
    FileIdentifier = name;
    return AsciiReader(*this, path).Read(in, quiet, name);
}
