// seisplot: builds a record of a damped sine pulse, stores it in a record archive, reads it
// back and prints a summary of both. The full command-line tool grows from here.

#include "seisplot.h"

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <vector>

namespace {

Accelerogram MakePulse() {
    // 20 s at 100 samples per second: a 2 Hz sine under a build-up and decay envelope,
    // peaking near 0.3 g.
    const int n = 2001;
    const double dt = 0.01;
    const double pi = 4.0 * std::atan(1.0);
    std::vector<double> t(n);
    std::vector<double> a(n);
    for (int i = 0; i < n; ++i) {
        t[i] = i * dt;
        const double envelope = (t[i] / 3.0) * std::exp(1.0 - t[i] / 3.0);
        a[i] = 0.3 * Accelerogram::kG * envelope * std::sin(2.0 * pi * 2.0 * t[i]);
    }
    Accelerogram record(n, t.data(), a.data());
    record.Identifier = "PULSE.HNE";
    record.EventId = "DEMO-0001";
    record.EventName = "Synthetic demonstration pulse";
    record.EventDate = COleDateTime(2016, 10, 30, 0, 0, 0);
    record.EventTime = COleDateTime(1899, 12, 30, 6, 40, 17);
    record.IsSynthetic = 1;
    record.Mw = 6.5;
    return record;
}

void PrintSummary(const char* title, Accelerogram& record) {
    double tailTime = 0.0;
    int tailPoint = 0;
    record.GetTailStart(0.02, &tailTime, &tailPoint);
    std::printf("%s\n", title);
    std::printf("  identifier      %s\n", record.Identifier.GetString());
    std::printf("  event           %s (%s), %s %s\n", record.EventName.GetString(),
                record.EventId.GetString(), record.EventDate.Format("%Y-%m-%d").GetString(),
                record.EventTime.Format("%H:%M:%S").GetString());
    std::printf("  points          %d, from %.2f s to %.2f s\n", record.Record.GetNP(),
                record.Record.GetMinX(), record.Record.GetMaxX());
    std::printf("  PGA             %.4f g\n", record.GetPga());
    std::printf("  quiet tail      from point %d (%.2f s), below 0.02 g\n", tailPoint, tailTime);
}

} // namespace

int main() {
    Accelerogram record = MakePulse();
    PrintSummary("Record built in memory:", record);

    const std::filesystem::path path = std::filesystem::temp_directory_path() / "seisplot-demo.acc";
    try {
        CFile out;
        if (!out.Open(path.c_str(), CFile::modeCreate | CFile::modeWrite)) {
            std::fprintf(stderr, "seisplot: cannot write %s\n", path.c_str());
            return 1;
        }
        CArchive store(&out, CArchive::store);
        record.Serialize(store);
        store.Close();
        out.Close();

        CFile in(path.c_str(), CFile::modeRead);
        CArchive load(&in, CArchive::load);
        Accelerogram back;
        back.Serialize(load);
        std::printf("\nArchive %s: %llu bytes\n", path.c_str(),
                    static_cast<unsigned long long>(in.GetLength()));
        PrintSummary("Record read back:", back);
    } catch (CException* e) {
        std::fprintf(stderr, "seisplot: %s\n", e->GetMessageText().GetString());
        e->Delete();
        return 1;
    }
    std::filesystem::remove(path);
    return 0;
}
