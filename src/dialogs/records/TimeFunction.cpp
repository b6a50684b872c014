#include "dialogs/records/TimeFunction.h"

#include "dialogs/PictureCopy.h"
#include "platform/core/CFileDialog.h"
#include "platform/ui/DataExchange.h"
#include "plot/CurvePlot.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <string>

namespace {

constexpr int kFirstKind = 14768;
constexpr int kParameter1 = 14776;
constexpr int kPreview = 14781;
constexpr int kDuration = 14783;
constexpr int kUpdate = 14784;
constexpr int kAddFromFile = 14691;
constexpr int kCopy = 14627;

// The offset that makes a jump a steep ramp, since a function holds one value per time.
constexpr double kEpsilon = 1e-6;
// Samples of the sine and cosine kinds come in blocks of at most this many points.
constexpr int kBlock = 101;

void Prepare(PCurve& curve) {
    curve.Clear();
    curve.XUnit = seisplot::UnitKind::Time;
    curve.YUnit = seisplot::UnitKind::PureNumber;
    curve.XName = "t";
    curve.YName = "f(t)";
}

} // namespace

GetTimeCurve::GetTimeCurve(CWnd* parent) : CDialogEx(14519, parent) {
    using Self = GetTimeCurve;
    constexpr void (Self::*kinds[])() = {
        &Self::OnBnClickedDllplotKindTimecurve1, &Self::OnBnClickedDllplotKindTimecurve2,
        &Self::OnBnClickedDllplotKindTimecurve3, &Self::OnBnClickedDllplotKindTimecurve4,
        &Self::OnBnClickedDllplotKindTimecurve5, &Self::OnBnClickedDllplotKindTimecurve6,
        &Self::OnBnClickedDllplotKindTimecurve7, &Self::OnBnClickedDllplotKindTimecurve8};
    for (int k = 0; k < 8; ++k) {
        On(kFirstKind + k, BN_CLICKED, kinds[k]);
    }
    On(kUpdate, BN_CLICKED, &Self::OnBnClickedDllplotFtimeUpdate);
    On(kAddFromFile, BN_CLICKED, &Self::OnBnClickedAccelAdd);
    On(kCopy, BN_CLICKED, &Self::OnBnClickedThecurveCopy);
    On(IDOK, BN_CLICKED, &Self::OnBnClickedOk);
}

void GetTimeCurve::DoDataExchange(CDataExchange* pDX) {
    CDialogEx::DoDataExchange(pDX);
    DDX_Radio(pDX, kFirstKind, Kind);
    DDX_Text(pDX, kParameter1, Parameter1);
    DDX_Text(pDX, kParameter1 + 1, Parameter2);
    DDX_Text(pDX, kParameter1 + 2, Parameter3);
    DDX_Text(pDX, kParameter1 + 3, Parameter4);
    DDX_Text(pDX, kParameter1 + 4, Parameter5);
    DDX_Control(pDX, kPreview, m_preview);
    DDX_Text(pDX, kDuration, Duration);
}

BOOL GetTimeCurve::OnInitDialog() {
    CDialogEx::OnInitDialog();
    BuildFunction();
    UpdateData(FALSE);
    return TRUE;
}

void GetTimeCurve::BuildFunction() {
    Prepare(Function);
    const double D = Duration;
    const auto add = [this](double t, double f) { Function.AddPoint(t, f); };
    if (Kind >= 1 && Kind <= 4 && Parameter2 == 0.0) {
        AfxMessageBox("V1 must be != 0");
        return;
    }
    switch (Kind) {
    case 0: { // impulse: T1, dT, V1
        const double t1 = Parameter1;
        const double dT = Parameter2;
        const double v1 = Parameter3;
        add(0.0, 0.0);
        add(t1 - kEpsilon, 0.0);
        add(t1, v1);
        add(t1 + dT, v1);
        add(t1 + dT + kEpsilon, 0.0);
        add(std::max(2.0 * (t1 + dT), D), 0.0);
        break;
    }
    case 1: { // step: T1, V1
        add(0.0, 0.0);
        add(Parameter1 - kEpsilon, 0.0);
        add(Parameter1, Parameter2);
        add(std::max(2.0 * Parameter1, D), Parameter2);
        break;
    }
    case 2: { // limited step: T1, V1, T2
        add(0.0, 0.0);
        add(Parameter1 - kEpsilon, 0.0);
        add(Parameter1, Parameter2);
        add(Parameter3, Parameter2);
        add(Parameter3 + kEpsilon, 0.0);
        add(std::max(2.0 * Parameter3, D), 0.0);
        break;
    }
    case 3: { // ramp: T1, V1, T2
        add(0.0, 0.0);
        add(Parameter1, 0.0);
        add(Parameter3, Parameter2);
        add(std::max(2.0 * Parameter3, D), Parameter2);
        break;
    }
    case 4: { // trapezoid: T1, V1, T2, T3, T4
        add(0.0, 0.0);
        add(Parameter1, 0.0);
        add(Parameter3, Parameter2);
        add(Parameter4, Parameter2);
        add(Parameter5, 0.0);
        add(std::max(2.0 * Parameter5, D), 0.0);
        break;
    }
    case 5:
    case 6: { // (1 + A·t)·sin or cos(2π·t / ((1 + B·t)·T) + fi): T, fi, A, B
        const double T = Parameter1;
        // A period that is not positive would never reach the duration.
        if (!(T > 0.0)) {
            AfxMessageBox("T must be > 0");
            return;
        }
        const double fi = Parameter2;
        const double A = Parameter3;
        const double B = Parameter4;
        const double pi = 2.0 * std::asin(1.0);
        const double step = T / 100.0;
        const bool sine = Kind == 5;
        double t = 0.0;
        bool more = true;
        while (more && t < D) {
            for (int i = 0; i < kBlock; ++i) {
                const double angle = 2.0 * pi * t / ((1.0 + B * t) * T) + fi;
                add(t, (1.0 + A * t) * (sine ? std::sin(angle) : std::cos(angle)));
                t += step;
                if (t > D) {
                    more = false;
                    break;
                }
            }
        }
        break;
    }
    case 7:
        Function = Loaded;
        break;
    default:
        break;
    }
}

void GetTimeCurve::Rebuild() {
    if (!UpdateData(TRUE)) {
        return;
    }
    BuildFunction();
    m_preview.Invalidate();
}

void GetTimeCurve::OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem) {
    if (id != kPreview) {
        return;
    }
    if (drawItem->hDC == nullptr) {
        AfxMessageBox("Error getting DC (30). Too many commands?");
        return;
    }
    DrawFunction(drawItem->hDC);
}

void GetTimeCurve::DrawFunction(CDC* dc) {
    // The host's default units, not its current ones: f(t) is a pure number of seconds.
    Units units;
    SFont title;
    title.Color = 0x0000FF;
    SFont axis;
    axis.Color = 0x00FF00;
    axis.lfHeight = 20;
    SFont labels;
    labels.Color = 0xFF0000;
    DrawCurve(&Function, &m_preview, dc, 1, &units, title, axis, labels, 1, 0, 1, 1, 0x0000FF, 1, 0,
              0, 0.0, 0.0);
}

void GetTimeCurve::OnBnClickedThecurveCopy() {
    seisplot::CopyPictureToClipboard(
        *this, m_preview, [this](CDC* dc) { DrawFunction(dc); },
        seisplot::ClipboardAfterFailure::LeaveOpen);
}

void GetTimeCurve::OnBnClickedAccelAdd() {
    CFileDialog choose(TRUE, "*.txt; *.*", "*.txt", OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       "Curve (*.txt)|*.txt|All file extensions (*.*)|*.*||", this);
    if (choose.DoModal() != IDOK) {
        return;
    }
    const CString path = choose.GetPathName();
    std::ifstream file(path.GetString());
    if (!file) {
        AfxMessageBox("Unable to open text file");
        return;
    }
    Prepare(Loaded);
    double largest = 0.0;
    double latest = -1e12;
    double earliest = 1e12;
    long points = 0;
    double previous = 0.0;
    double step = 0.0;
    double lastStep = 0.0;
    bool uniform = true;
    std::string line;
    while (std::getline(file, line)) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        if (line.empty() || std::string("$%\\&#").find(line.front()) != std::string::npos) {
            continue;
        }
        double time = 0.0;
        double value = 0.0;
        if (std::sscanf(line.c_str(), "%le  %le", &time, &value) < 2) {
            AfxMessageBox("Error reading row: ");
            AfxMessageBox(line.c_str());
            continue;
        }
        ++points;
        Loaded.AddPoint(time, value);
        largest = std::max(largest, std::fabs(value));
        lastStep = step;
        step = time - previous;
        // The first step, from time 0 to the first time, takes no part in the test.
        if (points >= 3 && std::fabs(step - lastStep) > 1e-8) {
            uniform = false;
        }
        latest = std::max(latest, time);
        earliest = std::min(earliest, time);
        previous = time;
    }
    CString summary;
    if (uniform) {
        summary.Format("MAX= %7.3lf  NP= %ld  dT= %7.4lf  Tmin = %7.3lf  Tmax= %7.3lf", largest,
                       points, step, earliest, latest);
    } else {
        summary.Format("MAX= %7.3lf  NP= %ld  dT= varying  Tmin = %7.3lf  Tmax= %7.3lf", largest,
                       points, earliest, latest);
    }
    AfxMessageBox(summary);
    Loaded.SetName(path.Left(std::max(0, path.GetLength() - 4)));
    if (Kind == 7) {
        Function = Loaded;
        m_preview.Invalidate();
    }
}

void GetTimeCurve::OnBnClickedOk() {
    CDialogEx::OnOK();
}
