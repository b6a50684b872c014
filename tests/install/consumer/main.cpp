// A program outside the project that uses the installed library: a record, a line drawn by an
// OpenGL twin into a headless picture, and a movie writer.
#include <movie/CAviFile.h>
#include <seisplot.h>

#include <cstdio>

int main() {
    double t[] = {0.0, 0.01, 0.02};
    double a[] = {0.0, -2452.5, 981.0};
    Accelerogram record(3, t, a);
    std::printf("%d points, PGA %.2f g\n", record.Record.GetNP(), record.GetPga());

    seisplot::HeadlessGLContext gl(64, 64);
    gl.UseHimetric();
    lineOGL(CPoint(0, 846), CPoint(1693, 846), 0x0000FF, 200); // across the middle, 2 mm wide
    const bool drawn = gl.Pixel(32, 32) == 0x0000FF;
    std::printf("OpenGL line %s\n", drawn ? "drawn" : "missing");
    CAviFile movie; // the movie component links; nothing is written without a frame
    std::printf("%s\n", movie.GetLastErrorMessage());
    return record.GetPga() == 0.25 && drawn ? 0 : 1;
}
