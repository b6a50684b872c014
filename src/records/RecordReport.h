#pragma once
// The text report of one record: a banner, the record's data, and its acceleration,
// displacement and acceleration-displacement spectra at 5 % damping.

#include "platform/core/CString.h"

class Accelerogram;

// The report of `record`, with its spectra over the periods periodStep, 2·periodStep, ...
// up to lastPeriod at damping 0.05. Every line ends in a line feed. A spectrum that cannot be
// computed lists no rows.
CString BuildRecordReport(Accelerogram& record, double lastPeriod, double periodStep);
