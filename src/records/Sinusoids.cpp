#include "records/Sinusoids.h"

#include "platform/core/CProgressCtrl.h"
#include "records/AccelerogramColl.h"

#include <cmath>

void GenerateSinusoids(unsigned long count, double DT, unsigned long periodsPerRecord,
                       unsigned long pointsPerPeriod, double amplitude, AccelerogramColl& records,
                       CProgressCtrl* progress) {
    const unsigned long m = periodsPerRecord;
    const unsigned long n = pointsPerPeriod;
    const long points = static_cast<long>((n - 1) * m + 1);
    const double pi = 2.0 * std::asin(1.0);

    if (progress != nullptr) {
        progress->SetRange(0, static_cast<short>(count));
        progress->SetStep(1);
    }

    double T = DT;
    for (unsigned long k = 1; k <= count; ++k) {
        Accelerogram record;
        CString name;
        name.Format("SIN_PGA=%8.3lf(g)_Period=%7.3lf(sec)_NPTS=%ld", amplitude, T, points);
        record.SetName(name);
        record.Identifier = name;
        record.Explanation.Format("Sinusoidal accelerogram, PGA %7.3lf (g), T=%7.3lf (sec)",
                                  amplitude, T);
        record.Record.XUnit = seisplot::UnitKind::Time;
        record.Record.YUnit = seisplot::UnitKind::Acceleration;

        // Every period repeats the same samples: the sine's argument is the position within
        // the current period, while the time runs on over the whole record.
        const double step = T / static_cast<double>(n - 1);
        double time = 0.0;
        record.Record.AddPoint(0.0, 0.0);
        for (unsigned long i = 1; i <= m; ++i) {
            for (unsigned long j = 1; j < n; ++j) {
                time += step;
                record.Record.AddPoint(time,
                                       amplitude * Accelerogram::kG *
                                           std::sin(2.0 * pi / T * static_cast<double>(j) * step));
            }
        }

        records.AddAccelerogram(record);
        T += DT;
        if (progress != nullptr) {
            progress->StepIt();
        }
    }

    if (progress != nullptr) {
        progress->SetPos(0);
    }
}
