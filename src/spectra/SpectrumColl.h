#pragma once
// SpectrumColl: the set of spectra a project holds. It copies spectra in and out and travels
// in the project archive.
//
// Numbering: GetP, GetSpectrum, Select, Unselect, RemoveSpectrum and FindSpectrum count
// spectra from 1; operator[] counts from 0.
//
// Storage has no spare capacity: every addition or removal reallocates the spectra to exactly
// the new count. An operation that runs out of memory raises CMemoryException (by pointer, as
// the framework does) and leaves the collection with its previous spectra and count.
//
// Archive form (Serialize): a 16-bit version word (1), the number of spectra (32-bit
// unsigned), then each spectrum's archive form in collection order. WriteToFile and
// ReadFromFile use a file that holds exactly that form, with nothing before or after it.

#include "host/ObjectArray.h"
#include "spectra/Spectrum.h"

#include <cstdint>

class AccelerogramColl;
class Units;

class SpectrumColl : public CObject {
public:
    // Raised by operator[] (thrown by value, caught by reference) for an index at or beyond
    // the count. Index is the offending 0-based index; one that does not fit in 32 bits is
    // carried as 0xFFFFFFFF.
    class Range {
    public:
        explicit Range(std::uint32_t index) : Index(index) {}
        std::uint32_t Index;
    };

    SpectrumColl() = default;
    SpectrumColl(const SpectrumColl& other);
    // Replaces the spectra by copies of the other's (self-assignment changes nothing) and
    // returns a copy of the result.
    SpectrumColl operator=(const SpectrumColl& other);
    ~SpectrumColl() override = default;

    CRuntimeClass* GetRuntimeClass() const override;
    // Storing writes version 1 and sets the version word to 1. Loading frees the collection
    // first, then reads; a read that fails leaves the collection empty and lets the archive
    // exception through.
    void Serialize(CArchive& ar) override;
    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

    unsigned long GetSpectrumNum() const { return m_spectra.Count(); }
    // The spectra as one array; null when the collection is empty. The array moves whenever a
    // spectrum is added or removed.
    Spectrum* GetPSpectra() const;
    // Spectrum i (from 1). GetP gives null for a number outside 1 ... count; GetSpectrum does
    // not check (callers pass valid numbers).
    Spectrum* GetP(unsigned long i) const;
    Spectrum& GetSpectrum(unsigned long i) const;
    // Spectrum i (from 0); Range when i >= count.
    Spectrum& operator[](unsigned long i);

    // Set or clear the flag `view` of spectrum i (from 1); a number outside 1 ... count does
    // nothing.
    void Select(unsigned long i, unsigned short view);
    void Unselect(unsigned long i, unsigned short view);
    void UnSelectAll(unsigned short view);
    unsigned long CountSelected(unsigned char view) const;

    // The number (from 1) of the first spectrum whose name equals `text` exactly, letter case
    // included; 0 when none does.
    unsigned long FindSpectrum(CString text) const;

    // The new number of spectrum i after the n spectra numbered in `removed` were deleted: 0
    // when i is one of them, else i less the count of removed numbers below it.
    unsigned long remap(const unsigned long* removed, unsigned long n, unsigned long i);

    // Appends a copy; returns 0.
    int AddSpectrum(const Spectrum& spectrum);
    // Removes spectrum i (from 1), the later ones moving down one place; returns 0, or 1 (and
    // nothing changes) for a number outside 1 ... count.
    int RemoveSpectrum(unsigned long i);
    // Removes every spectrum whose flag `view` is set, keeping the order of the others;
    // returns 0.
    int DelSpectrum(unsigned short view);
    // Appends copies of all spectra of `other`, in order (`other` may be this collection).
    void operator+=(const SpectrumColl& other);

    // Destroys every spectrum; the count becomes 0.
    void Free();
    // Replaces the spectra by n default spectra; the count is n afterwards.
    void Alloc(unsigned long n);
    // Resizes to exactly n spectra: the surplus destroyed from the end, new default spectra
    // appended; returns 0.
    int IncreaseStruct(unsigned long n);

    // The collection's archive form in a file of its own. Both return 0; a file that cannot
    // be opened or an archive that ends early raises the framework's CFileException or
    // CArchiveException (by pointer) to the caller. Reading replaces the collection by the
    // file's content.
    int WriteToFile(CString& path);
    int ReadFromFile(CString& path);

    // The two dialogs on the spectra, provided by the dialogs layer (seisplot::dialogs): a
    // program that calls them links that layer, which the compute core does not need.
    // The spectrum editor on a copy: on OK the spectra become the copy, every spectrum is
    // unselected in view 1 and the one picked in the editor selected; 0. On Cancel, 1.
    int GetData(Units* units);
    // The envelope spectrum dialog on `records` (edited in place), the structure's nModes
    // modes (`periods`, and X, Y, Z participation fractions per mode in `shares`) and a copy
    // of the spectra, which the spectra become on OK (0); on Cancel nothing changes (1).
    int GetData(AccelerogramColl* records, unsigned long nModes, double* periods, double* shares,
                Units* units);

    static CRuntimeClass classSpectrumColl;

private:
    seisplot::ObjectArray<Spectrum> m_spectra;
    WORD m_version = 1;
};
