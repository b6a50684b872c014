#pragma once
// AccelerogramColl: the set of records a project holds. It copies records in and out, travels
// in the project archive, writes and reads record archive files (*.acc) and imports any
// number of record files in one go.
//
// Numbering: GetP, GetAccelerogram, Select, Unselect, RemoveAccelerogram and the finders count
// records from 1; operator[] counts from 0.
//
// Storage has no spare capacity: every addition or removal reallocates the records to exactly
// the new count. An operation that runs out of memory raises CMemoryException (by pointer, as
// the framework does) and leaves the collection with its previous records and count.
//
// Archive form (Serialize): a 16-bit version word (1), the number of records (32-bit
// unsigned), then each record's archive form in collection order. A record archive file holds
// exactly that form, with nothing before or after it.

#include "host/ObjectArray.h"
#include "records/Accelerogram.h"

#include <cstdint>

class CProgressCtrl;

class AccelerogramColl : public CObject {
public:
    // Raised by operator[] (thrown by value, caught by reference) for an index at or beyond
    // the count. Index is the offending 0-based index; one that does not fit in 32 bits is
    // carried as 0xFFFFFFFF.
    class Range {
    public:
        explicit Range(std::uint32_t index) : Index(index) {}
        std::uint32_t Index;
    };

    AccelerogramColl() = default;
    AccelerogramColl(const AccelerogramColl& other);
    // Replaces the records by copies of the other's (self-assignment changes nothing) and
    // returns a copy of the result.
    AccelerogramColl operator=(const AccelerogramColl& other);
    ~AccelerogramColl() override = default;

    CRuntimeClass* GetRuntimeClass() const override;
    // Storing writes version 1 and sets the version word to 1. Loading frees the collection
    // first, then reads; a read that fails leaves the collection empty and lets the archive
    // exception through.
    void Serialize(CArchive& ar) override;
    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

    unsigned long GetAccelerogramNum() const { return m_records.Count(); }
    // The records as one array; null when the collection is empty. The array moves whenever a
    // record is added or removed.
    Accelerogram* GetPAccelerograms() const;
    // Record i (from 1). GetP gives null for a number outside 1 ... count; GetAccelerogram
    // does not check (callers pass valid numbers).
    Accelerogram* GetP(unsigned long i) const;
    Accelerogram& GetAccelerogram(unsigned long i) const;
    // Record i (from 0); Range when i >= count.
    Accelerogram& operator[](unsigned long i);

    // Set or clear the flag `view` of record i (from 1); a number outside 1 ... count does
    // nothing.
    void Select(unsigned long i, unsigned short view);
    void Unselect(unsigned long i, unsigned short view);
    void UnSelectAll(unsigned short view);
    unsigned long CountSelected(unsigned char view) const;

    // The number (from 1) of the first record whose name, Identifier or FileIdentifier equals
    // `text` exactly, letter case included; 0 when none does.
    unsigned long FindAccelerogramName(CString text) const;
    unsigned long FindAccelerogramId(CString text) const;
    unsigned long FindAccelerogramFileId(CString text) const;

    // The new number of record i after the n records numbered in `removed` were deleted: 0 when
    // i is one of them, else i less the count of removed numbers below it.
    unsigned long remap(const unsigned long* removed, unsigned long n, unsigned long i);

    // Appends a copy; returns 0.
    int AddAccelerogram(const Accelerogram& record);
    // Removes record i (from 1), the later ones moving down one place; returns 0, or 1 (and
    // nothing changes) for a number outside 1 ... count.
    int RemoveAccelerogram(unsigned long i);
    // Removes every record whose flag `view` is set, keeping the order of the others;
    // returns 0.
    int DelAccelerogram(unsigned short view);
    // Appends copies of all records of `other`, in order (`other` may be this collection).
    void operator+=(const AccelerogramColl& other);

    // Destroys every record; the count becomes 0.
    void Free();
    // Replaces the records by n default records. The count is the number of records held, so
    // it is n afterwards.
    void Alloc(unsigned long n);
    // Resizes to exactly n records: the surplus destroyed from the end, new default records
    // appended; returns 0.
    int IncreaseStruct(unsigned long n);

    // The record archive file. Both return 0; a file that cannot be opened or an archive that
    // ends early raises the framework's CFileException or CArchiveException (by pointer) to
    // the caller. Reading replaces the collection by the file's content.
    int WriteToFile(CString& path);
    int ReadFromFile(CString& path);
    // Lets the user pick any number of record files and appends a record for each, stepping
    // `progress` (when given) once per file. Files whose name is already a record's
    // FileIdentifier are offered to be skipped. Returns 0 when every file was taken in turn,
    // 1 when the user cancelled the file choice, chose to stop, or a file could not be read
    // (the records added before it stay).
    int ReadFromFile(int quiet, CProgressCtrl* progress);

    // Lets the user edit a copy of the records in the record management dialog: on OK the
    // records become the copy and the result is 0, on Cancel nothing changes and it is 1.
    // Provided by the dialogs layer (seisplot::dialogs): a program that calls it links that
    // layer, which the compute core does not need.
    int GetData(Units* units);

    static CRuntimeClass classAccelerogramColl;

private:
    seisplot::ObjectArray<Accelerogram> m_records;
    WORD m_version = 1;
};
