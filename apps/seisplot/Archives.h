#pragma once
// Record sets (*.acc) and spectra archives as the commands use them: read whole, looked up by
// number (from 1), written whole through a temporary file. Every failure becomes a
// CommandError carrying the library's own text.

#include "records/AccelerogramColl.h"
#include "spectra/SpectrumColl.h"

#include <string>

namespace seisplot::cli {

void LoadRecordSet(const std::string& path, AccelerogramColl& records);
void SaveRecordSet(const std::string& path, AccelerogramColl& records);
void LoadSpectrumSet(const std::string& path, SpectrumColl& spectra);
void SaveSpectrumSet(const std::string& path, SpectrumColl& spectra);

// Record or spectrum `number` (from 1); fails naming the file and its count when there is none.
Accelerogram& RecordAt(AccelerogramColl& records, unsigned long number, const std::string& path);
Spectrum& SpectrumAt(SpectrumColl& spectra, unsigned long number, const std::string& path);

} // namespace seisplot::cli
