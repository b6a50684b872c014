#include "records/RecordReport.h"

#include "records/Accelerogram.h"
#include "records/ReportBanner.h"

namespace {

// The report always lists the spectra at this damping.
constexpr double kReportDamping = 0.05;

constexpr const char* kTitleLine =
    "#                                Accelerogram data                             #";

void AppendRule(CString& text, int length) {
    text += CString('-', length);
    text += '\n';
}

// A heading framed by two rules of `ruleLength` dashes, two empty lines, the column titles and
// one more empty line.
void AppendHeading(CString& text, int ruleLength, const char* title, const char* columns) {
    AppendRule(text, ruleLength);
    text += title;
    text += '\n';
    AppendRule(text, ruleLength);
    text += "\n\n";
    text += columns;
    text += "\n\n";
}

} // namespace

CString BuildRecordReport(Accelerogram& record, double lastPeriod, double periodStep) {
    PCurve acceleration;
    PCurve displacement;
    PMCurve accelerationDisplacement;
    record.GetAccSpectrum(kReportDamping, lastPeriod, periodStep, acceleration);
    record.GetDisSpectrum(kReportDamping, lastPeriod, periodStep, displacement);
    record.GetADSpectrum(kReportDamping, lastPeriod, periodStep, accelerationDisplacement);

    CString text = seisplot::ReportBanner(kTitleLine);
    text += "\n\n";

    const double tmin = record.Record.GetMinX();
    const double tmax = record.Record.GetMaxX();
    text.AppendFormat("Identifier:     %s\n", record.Identifier.GetString());
    text.AppendFormat("Pga (g):        %7.3lf\n", record.GetPga());
    text.AppendFormat("tmin (s):       %7.3lf\n", tmin);
    text.AppendFormat("tmax (s):       %7.3lf\n", tmax);
    text.AppendFormat("Duration (s):   %7.3lf\n", tmax - tmin);
    text.AppendFormat("%s\n", record.Explanation.GetString());
    text += "\n\n";

    AppendHeading(text, 44, "Acceleration Response Spectrum at 5% damping",
                  "Period (s)    Acc. (g)");
    for (int k = 1; k <= acceleration.GetNP(); ++k) {
        const RPoint2D p = acceleration.GetPoint(k);
        text.AppendFormat(" %7.3lf    %7.3lf\n", p.GetX(), p.GetY());
    }
    text += "\n\n";

    AppendHeading(text, 44, "Displacement Response Spectrum at 5% damping",
                  "Period (s)      Displ. (mm)");
    for (int k = 1; k <= displacement.GetNP(); ++k) {
        const RPoint2D p = displacement.GetPoint(k);
        text.AppendFormat(" %7.3lf    %12.3lf\n", p.GetX(), p.GetY());
    }
    text += "\n\n";

    AppendHeading(text, 57, "Acceleration-Displacement Response Spectrum at 5% damping",
                  "Displ. (mm)            Acc. (g)");
    for (int k = 1; k <= accelerationDisplacement.GetNP(); ++k) {
        const RPoint2D p = accelerationDisplacement.GetPoint(k);
        text.AppendFormat(" %12.3lf    %12.3lf\n", p.GetX(), p.GetY() / Accelerogram::kG);
    }
    text += "\n\n";
    return text;
}
