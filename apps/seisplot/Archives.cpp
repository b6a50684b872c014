#include "Archives.h"

#include "AtomicFile.h"
#include "Errors.h"

#include "platform/core/Exceptions.h"

#include <new>

namespace seisplot::cli {
namespace {

// Runs `operation`, turning the framework's exceptions (thrown by pointer) and running out of
// memory into a CommandError that starts with `what`.
template <class Operation> void Guarded(const std::string& what, Operation operation) {
    try {
        operation();
    } catch (CException* e) {
        const std::string text = e->GetMessageText().GetString();
        e->Delete();
        Fail(what + ": " + (text.empty() ? "unknown error" : text));
    } catch (const std::bad_alloc&) {
        Fail(what + ": out of memory (is it a file of this kind?)");
    }
}

} // namespace

void LoadRecordSet(const std::string& path, AccelerogramColl& records) {
    Guarded("cannot read the record set " + path, [&] {
        CString file(path.c_str());
        records.ReadFromFile(file);
    });
}

void SaveRecordSet(const std::string& path, AccelerogramColl& records) {
    ReplaceFile(path, [&](const std::string& temporary) {
        Guarded("cannot write the record set " + path, [&] {
            CString file(temporary.c_str());
            records.WriteToFile(file);
        });
    });
}

void LoadSpectrumSet(const std::string& path, SpectrumColl& spectra) {
    Guarded("cannot read the spectra archive " + path, [&] {
        CString file(path.c_str());
        spectra.ReadFromFile(file);
    });
}

void SaveSpectrumSet(const std::string& path, SpectrumColl& spectra) {
    ReplaceFile(path, [&](const std::string& temporary) {
        Guarded("cannot write the spectra archive " + path, [&] {
            CString file(temporary.c_str());
            spectra.WriteToFile(file);
        });
    });
}

Accelerogram& RecordAt(AccelerogramColl& records, unsigned long number, const std::string& path) {
    const unsigned long count = records.GetAccelerogramNum();
    if (number < 1 || number > count) {
        Fail("there is no record " + std::to_string(number) + " in " + path + " (it holds " +
             std::to_string(count) + (count == 1 ? " record)" : " records)"));
    }
    return records.GetAccelerogram(number);
}

Spectrum& SpectrumAt(SpectrumColl& spectra, unsigned long number, const std::string& path) {
    const unsigned long count = spectra.GetSpectrumNum();
    if (number < 1 || number > count) {
        Fail("there is no spectrum " + std::to_string(number) + " in " + path + " (it holds " +
             std::to_string(count) + (count == 1 ? " spectrum)" : " spectra)"));
    }
    return spectra.GetSpectrum(number);
}

} // namespace seisplot::cli
