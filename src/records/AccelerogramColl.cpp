#include "records/AccelerogramColl.h"

#include "platform/core/CFileDialog.h"
#include "platform/core/CProgressCtrl.h"
#include "records/ImportFiles.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <new>
#include <stdexcept>

CRuntimeClass AccelerogramColl::classAccelerogramColl{
    "AccelerogramColl", sizeof(AccelerogramColl), 0, &seisplot::CreateObjectOf<AccelerogramColl>,
    RUNTIME_CLASS(CObject)};

CRuntimeClass* AccelerogramColl::GetRuntimeClass() const {
    return &classAccelerogramColl;
}

namespace {

using Records = std::vector<Accelerogram>;

// The shortest archive form of a record: an unnamed selectable part without views (3 bytes),
// a version word of 100 or less (2), empty Identifier and Explanation (1 + 1), and a curve
// without points (selectable part 3, version 2, unit kinds 1 + 1, axis names 1 + 1, point
// count 4, marked count 4). A stored count is checked against it before anything is created.
constexpr ULONGLONG kLeastRecordBytes = 3 + 2 + 1 + 1 + (3 + 2 + 1 + 1 + 1 + 1 + 4 + 4);

constexpr int kArchiveBufferSize = 4096;

// The file dialog's name buffer: room for 500 paths of 260 characters plus separators.
constexpr std::size_t kNameBufferSize = 130501;

// Builds a new array of exactly `size` records with `fill`, turning an allocation failure into
// the framework's memory exception. The collection swaps the result in only when it is
// complete, so a failure leaves its records as they were.
template <class Fill> Records ExactRecords(std::size_t size, Fill&& fill) {
    try {
        Records records;
        records.reserve(size);
        fill(records);
        assert(records.size() == size);
        return records;
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    } catch (const std::length_error&) {
        AfxThrowMemoryException();
    }
}

// How a record file is read, by the end of its name.
enum class RecordFileKind { Itaca, TwoColumn, Unknown };

RecordFileKind KindOf(CString name) {
    name.MakeUpper();
    const CString last3 = name.Right(3);
    const CString last2 = name.Right(2);
    if (last3 == "ASC") {
        return RecordFileKind::Itaca;
    }
    if (last3 == "PLT" || last3 == "TXT") {
        return RecordFileKind::TwoColumn;
    }
    if (last2 == "RA" || last2 == "TR" || last2 == "UP") {
        return RecordFileKind::Itaca;
    }
    if (last3 == "SEW" || last3 == "SNS") {
        return RecordFileKind::Itaca;
    }
    return RecordFileKind::Unknown;
}

} // namespace

AccelerogramColl::AccelerogramColl(const AccelerogramColl& other)
    : CObject(other), m_version(other.m_version) {
    m_records = ExactRecords(other.m_records.size(), [&](Records& records) {
        records.insert(records.end(), other.m_records.begin(), other.m_records.end());
    });
}

AccelerogramColl AccelerogramColl::operator=(const AccelerogramColl& other) {
    if (this != &other) {
        Records copy = ExactRecords(other.m_records.size(), [&](Records& records) {
            records.insert(records.end(), other.m_records.begin(), other.m_records.end());
        });
        m_records.swap(copy);
        m_version = other.m_version;
    }
    return *this;
}

void AccelerogramColl::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        m_version = 1;
        ar << m_version << static_cast<DWORD>(m_records.size());
        for (Accelerogram& record : m_records) {
            record.Serialize(ar);
        }
        return;
    }
    Free();
    WORD version = 0; // read and not used: there has only ever been version 1
    DWORD count = 0;
    ar >> version >> count;
    seisplot::CheckCount(ar, count, kLeastRecordBytes);
    // Read aside, so that an archive ending early leaves the collection empty rather than
    // holding default records.
    AccelerogramColl read;
    read.Alloc(count);
    for (Accelerogram& record : read.m_records) {
        record.Serialize(ar);
    }
    m_records.swap(read.m_records);
}

void AccelerogramColl::AssertValid() const {
    CObject::AssertValid();
    assert(m_version == 1);
    for (const Accelerogram& record : m_records) {
        record.AssertValid();
    }
}

void AccelerogramColl::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "records: " << static_cast<unsigned int>(m_records.size()) << "\n";
}

Accelerogram* AccelerogramColl::GetPAccelerograms() const {
    // The host's interface hands out modifiable records from a const collection.
    return m_records.empty() ? nullptr : const_cast<Accelerogram*>(m_records.data());
}

Accelerogram* AccelerogramColl::GetP(unsigned long i) const {
    if (i == 0 || i > m_records.size()) {
        return nullptr;
    }
    return const_cast<Accelerogram*>(&m_records[i - 1]);
}

Accelerogram& AccelerogramColl::GetAccelerogram(unsigned long i) const {
    assert(i >= 1 && i <= m_records.size());
    return const_cast<Accelerogram&>(m_records[i - 1]);
}

Accelerogram& AccelerogramColl::operator[](unsigned long i) {
    if (i >= m_records.size()) {
        constexpr unsigned long kWidest = std::numeric_limits<std::uint32_t>::max();
        throw Range(static_cast<std::uint32_t>(i > kWidest ? kWidest : i));
    }
    return m_records[i];
}

void AccelerogramColl::Select(unsigned long i, unsigned short view) {
    if (Accelerogram* record = GetP(i)) {
        record->Select(view);
    }
}

void AccelerogramColl::Unselect(unsigned long i, unsigned short view) {
    if (Accelerogram* record = GetP(i)) {
        record->Unselect(view);
    }
}

void AccelerogramColl::UnSelectAll(unsigned short view) {
    for (Accelerogram& record : m_records) {
        record.Unselect(view);
    }
}

unsigned long AccelerogramColl::CountSelected(unsigned char view) const {
    unsigned long count = 0;
    for (const Accelerogram& record : m_records) {
        if (record.IsSelected(view)) {
            ++count;
        }
    }
    return count;
}

unsigned long AccelerogramColl::FindAccelerogramName(CString text) const {
    for (std::size_t k = 0; k < m_records.size(); ++k) {
        if (m_records[k].GetName() == text) {
            return static_cast<unsigned long>(k + 1);
        }
    }
    return 0;
}

unsigned long AccelerogramColl::FindAccelerogramId(CString text) const {
    for (std::size_t k = 0; k < m_records.size(); ++k) {
        if (m_records[k].Identifier == text) {
            return static_cast<unsigned long>(k + 1);
        }
    }
    return 0;
}

unsigned long AccelerogramColl::FindAccelerogramFileId(CString text) const {
    for (std::size_t k = 0; k < m_records.size(); ++k) {
        if (m_records[k].FileIdentifier == text) {
            return static_cast<unsigned long>(k + 1);
        }
    }
    return 0;
}

unsigned long AccelerogramColl::remap(const unsigned long* removed, unsigned long n,
                                      unsigned long i) {
    unsigned long below = 0;
    for (unsigned long k = 0; k < n; ++k) {
        if (removed[k] == i) {
            return 0;
        }
        if (removed[k] < i) {
            ++below;
        }
    }
    return i - below;
}

int AccelerogramColl::AddAccelerogram(const Accelerogram& record) {
    // `record` may be one of ours: it is copied before the old array goes.
    Records grown = ExactRecords(m_records.size() + 1, [&](Records& records) {
        records.insert(records.end(), m_records.begin(), m_records.end());
        records.push_back(record);
    });
    m_records.swap(grown);
    return 0;
}

int AccelerogramColl::RemoveAccelerogram(unsigned long i) {
    if (i == 0 || i > m_records.size()) {
        return 1;
    }
    const auto gone = m_records.begin() + static_cast<std::ptrdiff_t>(i - 1);
    Records shrunk = ExactRecords(m_records.size() - 1, [&](Records& records) {
        records.insert(records.end(), m_records.begin(), gone);
        records.insert(records.end(), gone + 1, m_records.end());
    });
    m_records.swap(shrunk);
    return 0;
}

int AccelerogramColl::DelAccelerogram(unsigned short view) {
    std::size_t survivors = 0;
    for (const Accelerogram& record : m_records) {
        survivors += record.IsSelected(view) ? 0 : 1;
    }
    if (survivors == m_records.size()) {
        return 0;
    }
    // One pass: the read index walks the records and the write index the new array, sized
    // exactly; a selected record is skipped, any other is copied to the write position.
    Records kept = ExactRecords(survivors, [&](Records& records) {
        for (const Accelerogram& record : m_records) {
            if (!record.IsSelected(view)) {
                records.push_back(record);
            }
        }
    });
    m_records.swap(kept);
    return 0;
}

void AccelerogramColl::operator+=(const AccelerogramColl& other) {
    // Copies of `other` are made before the old array goes, so c += c doubles c.
    Records grown = ExactRecords(m_records.size() + other.m_records.size(), [&](Records& records) {
        records.insert(records.end(), m_records.begin(), m_records.end());
        records.insert(records.end(), other.m_records.begin(), other.m_records.end());
    });
    m_records.swap(grown);
}

void AccelerogramColl::Free() {
    Records().swap(m_records);
}

void AccelerogramColl::Alloc(unsigned long n) {
    Records fresh = ExactRecords(n, [&](Records& records) { records.resize(n); });
    m_records.swap(fresh);
}

int AccelerogramColl::IncreaseStruct(unsigned long n) {
    const std::size_t kept = std::min<std::size_t>(n, m_records.size());
    Records resized = ExactRecords(n, [&](Records& records) {
        records.insert(records.end(), m_records.begin(),
                       m_records.begin() + static_cast<std::ptrdiff_t>(kept));
        records.resize(n);
    });
    m_records.swap(resized);
    return 0;
}

int AccelerogramColl::WriteToFile(CString& path) {
    CFile file(path, CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive);
    CArchive ar(&file, CArchive::store, kArchiveBufferSize);
    Serialize(ar);
    ar.Close();
    file.Close();
    return 0;
}

int AccelerogramColl::ReadFromFile(CString& path) {
    CFile file(path, CFile::modeRead | CFile::shareDenyWrite);
    CArchive ar(&file, CArchive::load, kArchiveBufferSize);
    Serialize(ar);
    ar.Close();
    file.Close();
    return 0;
}

int AccelerogramColl::ReadFromFile(int quiet, CProgressCtrl* progress) {
    std::vector<char> names(kNameBufferSize, '\0');
    CFileDialog dialog(TRUE, seisplot::kRecordDefaultExtension, names.data(),
                       OFN_ALLOWMULTISELECT | OFN_EXPLORER | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       seisplot::kRecordFileFilter);
    if (dialog.DoModal() != IDOK) {
        return 1;
    }

    int chosen = 0;
    for (POSITION position = dialog.GetStartPosition(); position != nullptr;) {
        dialog.GetNextPathName(position);
        ++chosen;
    }
    if (progress) {
        progress->SetRange32(0, chosen);
        progress->SetStep(1);
        progress->SetPos(0);
    }
    CWaitCursor wait;
    // One choice of units serves every two-column file of the batch.
    Units units;
    bool unitsChosen = false;
    // Every file taken in turn counts, a skipped duplicate included.
    long taken = 0;

    for (POSITION position = dialog.GetStartPosition(); position != nullptr;) {
        const CString path = dialog.GetNextPathName(position);
        if (progress) {
            progress->StepIt();
        }
        ++taken;
        const CString name = seisplot::FileNameOf(path);
        Accelerogram record;

        if (FindAccelerogramFileId(name) != 0) {
            CString question;
            question.Format("The accelerogram %s is already in the set and will NOT be added. "
                            "Exit?",
                            name.GetString());
            if (AfxMessageBox(question, MB_YESNO) == IDYES) {
                return 1;
            }
            continue;
        }

        int failed = 0;
        switch (KindOf(name)) {
        case RecordFileKind::Itaca:
            failed = record.ReadASC(quiet, name, path);
            break;
        case RecordFileKind::TwoColumn:
            if (!unitsChosen) {
                AfxMessageBox(14840);
                units.Reset(nullptr, 1, 0, 1, 0);
                AfxMessageBox("Warning, to set units only once, it is assumed that all the .txt "
                              "and .plt files do have the same units!",
                              MB_ICONEXCLAMATION);
                unitsChosen = true;
            }
            failed = record.ReadTXTPLT(quiet, name, path, units);
            break;
        case RecordFileKind::Unknown: {
            AfxMessageBox("Unrecognized file extension");
            CString message;
            message.Format("Unable to read file %s. No acc added.", path.GetString());
            AfxMessageBox(message);
            return 1;
        }
        }
        if (failed != 0) {
            CString message;
            message.Format("Unable to read file %s. Review it. No acc added.", path.GetString());
            AfxMessageBox(message);
            return 1;
        }
        AddAccelerogram(record);
    }

    if (progress) {
        progress->SetPos(0);
    }
    CString done;
    done.Format("%ld accelerograms correctly read.", taken);
    AfxMessageBox(done, MB_ICONINFORMATION);
    return 0;
}
