// Archive speed of a record, and the cost of the hinted curve lookup that the oscillator
// integration leans on.

#include "records/Accelerogram.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

namespace {

// A 60 s record at 200 samples per second.
Accelerogram LongRecord() {
    const int n = 12001;
    std::vector<double> t(n);
    std::vector<double> a(n);
    for (int i = 0; i < n; ++i) {
        t[i] = i * 0.005;
        a[i] = 2000.0 * std::sin(0.7 * t[i]) * std::sin(11.0 * t[i]);
    }
    return Accelerogram(n, t.data(), a.data());
}

void StoreRecord(benchmark::State& state) {
    Accelerogram record = LongRecord();
    for (auto _ : state) {
        CMemFile file;
        CArchive ar(&file, CArchive::store);
        record.Serialize(ar);
        ar.Close();
        benchmark::DoNotOptimize(file.Data().data());
    }
    state.SetItemsProcessed(state.iterations() * record.Record.GetNP());
}
BENCHMARK(StoreRecord);

void LoadRecord(benchmark::State& state) {
    Accelerogram record = LongRecord();
    CMemFile stored;
    {
        CArchive ar(&stored, CArchive::store);
        record.Serialize(ar);
        ar.Close();
    }
    const std::vector<BYTE> bytes = stored.Data();
    for (auto _ : state) {
        CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
        CArchive ar(&file, CArchive::load);
        Accelerogram back;
        back.Serialize(ar);
        benchmark::DoNotOptimize(back.Record.GetNP());
    }
    state.SetItemsProcessed(state.iterations() * record.Record.GetNP());
}
BENCHMARK(LoadRecord);

// Walks the record at a step of a fifth of its sampling interval, as a stiff oscillator does.
void HintedLookup(benchmark::State& state) {
    const Accelerogram record = LongRecord();
    const double end = record.Record.GetMaxX();
    long long lookups = 0;
    for (auto _ : state) {
        int hint = 0;
        double sum = 0.0;
        for (double t = 0.0; t < end; t += 0.001) {
            sum += record.Record.GetY(t, &hint);
            ++lookups;
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(lookups);
}
BENCHMARK(HintedLookup);

} // namespace
