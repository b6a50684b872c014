// A program outside the project that uses the installed library.
#include <movie/CAviFile.h>
#include <seisplot.h>

#include <cstdio>

int main() {
    double t[] = {0.0, 0.01, 0.02};
    double a[] = {0.0, -2452.5, 981.0};
    Accelerogram record(3, t, a);
    std::printf("%d points, PGA %.2f g\n", record.Record.GetNP(), record.GetPga());
    CAviFile movie; // the movie component links; nothing is written without a frame
    std::printf("%s\n", movie.GetLastErrorMessage());
    return record.GetPga() == 0.25 ? 0 : 1;
}
