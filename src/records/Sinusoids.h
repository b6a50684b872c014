#pragma once
// The generator of sinusoidal records: a series of pure sine records of growing period, for
// probing a structure's response period by period.

class AccelerogramColl;
class CProgressCtrl;

// Appends `count` records to `records`, the k-th (from 1) of period k·DT (accumulated by
// addition), each of `periodsPerRecord` periods sampled with `pointsPerPeriod` points per
// period (at least 1) and peak `amplitude` in g. `progress` (when given) goes over
// 0 ... count, one step per record, and is back at 0 at the end.
void GenerateSinusoids(unsigned long count, double DT, unsigned long periodsPerRecord,
                       unsigned long pointsPerPeriod, double amplitude, AccelerogramColl& records,
                       CProgressCtrl* progress);
