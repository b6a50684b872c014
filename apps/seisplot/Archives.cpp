#include "Archives.h"

#include "AtomicFile.h"
#include "Errors.h"
#include "FileChecks.h"

#include "platform/core/CFile.h"
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

// Reads `collection` from the file `path` as its ReadFromFile would, and fails when bytes
// follow its end: a file holds one archive, and a second one joined to it would be dropped
// silently by a later rewrite.
template <class Collection>
void ReadWhole(const std::string& what, const std::string& path, Collection& collection) {
    CheckInput(what, path);
    ULONGLONG left = 0;
    Guarded("cannot read " + what + " " + path, [&] {
        CFile file(CString(path.c_str()), CFile::modeRead | CFile::shareDenyWrite);
        CArchive ar(&file, CArchive::load);
        collection.Serialize(ar);
        left = ar.BytesLeft();
        ar.Close();
    });
    if (left != 0) {
        collection.Free();
        Fail("cannot read " + what + " " + path + ": " + std::to_string(left) +
             " bytes follow its end (two files joined?)");
    }
}

// Whether `path` reads whole as a `Collection`: tells a file of the other kind.
template <class Collection> bool ReadsAs(const std::string& path) {
    try {
        Collection collection;
        CFile file(CString(path.c_str()), CFile::modeRead | CFile::shareDenyWrite);
        CArchive ar(&file, CArchive::load);
        collection.Serialize(ar);
        return ar.BytesLeft() == 0;
    } catch (CException* e) {
        e->Delete();
    } catch (const std::bad_alloc&) {
    }
    return false;
}

} // namespace

void LoadRecordSet(const std::string& path, AccelerogramColl& records) {
    try {
        ReadWhole("the record set", path, records);
    } catch (const CommandError&) {
        if (ReadsAs<SpectrumColl>(path)) {
            Fail("cannot read the record set " + path + ": it is a spectra archive");
        }
        throw;
    }
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
    try {
        ReadWhole("the spectra archive", path, spectra);
    } catch (const CommandError&) {
        if (ReadsAs<AccelerogramColl>(path)) {
            Fail("cannot read the spectra archive " + path + ": it is a record set");
        }
        throw;
    }
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
