// A batch program outside the project that uses only the installed compute core.
#include "records/Accelerogram.h"
#include "spectra/Spectrum.h"

#include <cmath>
#include <cstdio>

int main() {
    double t[] = {0.0, 0.01, 0.02};
    double a[] = {0.0, -2452.5, 981.0};
    Accelerogram record(3, t, a);
    double se = 0.0;
    Spectrum::GetSpettro_EC8(0.25, 0.05, 0, 1.0, 0.2, 1.0, &se); // soil A, on the plateau
    std::printf("%d points, PGA %.2f g, EC8 plateau %.4f g\n", record.Record.GetNP(),
                record.GetPga(), se);
    return record.GetPga() == 0.25 && std::fabs(se - 0.625) < 1e-12 ? 0 : 1;
}
