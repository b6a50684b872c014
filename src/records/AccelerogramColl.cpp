#include "records/AccelerogramColl.h"

#include "platform/core/CFileDialog.h"
#include "platform/core/CProgressCtrl.h"
#include "records/ImportFiles.h"

#include <cassert>
#include <vector>

CRuntimeClass AccelerogramColl::classAccelerogramColl{
    "AccelerogramColl", sizeof(AccelerogramColl), 0, &seisplot::CreateObjectOf<AccelerogramColl>,
    RUNTIME_CLASS(CObject)};

CRuntimeClass* AccelerogramColl::GetRuntimeClass() const {
    return &classAccelerogramColl;
}

namespace {

// The shortest archive form of a record: an unnamed selectable part without views (3 bytes),
// a version word of 100 or less (2), empty Identifier and Explanation (1 + 1), and a curve
// without points (selectable part 3, version 2, unit kinds 1 + 1, axis names 1 + 1, point
// count 4, marked count 4). A stored count is checked against it before anything is created.
constexpr ULONGLONG kLeastRecordBytes = 3 + 2 + 1 + 1 + (3 + 2 + 1 + 1 + 1 + 1 + 4 + 4);

constexpr int kArchiveBufferSize = 4096;

// The file dialog's name buffer: room for 500 paths of 260 characters plus separators.
constexpr std::size_t kNameBufferSize = 130501;

} // namespace

AccelerogramColl::AccelerogramColl(const AccelerogramColl& other)
    : CObject(other), m_records(other.m_records), m_version(other.m_version) {}

AccelerogramColl AccelerogramColl::operator=(const AccelerogramColl& other) {
    if (this != &other) {
        m_records = other.m_records;
        m_version = other.m_version;
    }
    return *this;
}

void AccelerogramColl::Serialize(CArchive& ar) {
    m_records.Serialize(ar, m_version, kLeastRecordBytes);
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
    dc << "records: " << static_cast<unsigned int>(m_records.Count()) << "\n";
}

Accelerogram* AccelerogramColl::GetPAccelerograms() const {
    return m_records.Data();
}

Accelerogram* AccelerogramColl::GetP(unsigned long i) const {
    return m_records.Get(i);
}

Accelerogram& AccelerogramColl::GetAccelerogram(unsigned long i) const {
    return m_records.Ref(i);
}

Accelerogram& AccelerogramColl::operator[](unsigned long i) {
    return m_records.CheckedAt<Range>(i);
}

void AccelerogramColl::Select(unsigned long i, unsigned short view) {
    m_records.Select(i, view);
}

void AccelerogramColl::Unselect(unsigned long i, unsigned short view) {
    m_records.Unselect(i, view);
}

void AccelerogramColl::UnSelectAll(unsigned short view) {
    m_records.UnSelectAll(view);
}

unsigned long AccelerogramColl::CountSelected(unsigned char view) const {
    return m_records.CountSelected(view);
}

unsigned long AccelerogramColl::FindAccelerogramName(CString text) const {
    return m_records.FindFirst([&](const Accelerogram& r) { return r.GetName() == text; });
}

unsigned long AccelerogramColl::FindAccelerogramId(CString text) const {
    return m_records.FindFirst([&](const Accelerogram& r) { return r.Identifier == text; });
}

unsigned long AccelerogramColl::FindAccelerogramFileId(CString text) const {
    return m_records.FindFirst([&](const Accelerogram& r) { return r.FileIdentifier == text; });
}

unsigned long AccelerogramColl::remap(const unsigned long* removed, unsigned long n,
                                      unsigned long i) {
    return seisplot::ObjectArray<Accelerogram>::Remap(removed, n, i);
}

int AccelerogramColl::AddAccelerogram(const Accelerogram& record) {
    m_records.Add(record);
    return 0;
}

int AccelerogramColl::RemoveAccelerogram(unsigned long i) {
    return m_records.Remove(i);
}

int AccelerogramColl::DelAccelerogram(unsigned short view) {
    m_records.DeleteSelected(view);
    return 0;
}

void AccelerogramColl::operator+=(const AccelerogramColl& other) {
    m_records.Append(other.m_records);
}

void AccelerogramColl::Free() {
    m_records.Free();
}

void AccelerogramColl::Alloc(unsigned long n) {
    m_records.Alloc(n);
}

int AccelerogramColl::IncreaseStruct(unsigned long n) {
    m_records.Resize(n);
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
        switch (seisplot::RecordFileKindOf(name)) {
        case seisplot::RecordFileKind::Itaca:
            failed = record.ReadASC(quiet, name, path);
            break;
        case seisplot::RecordFileKind::TwoColumn:
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
        case seisplot::RecordFileKind::Unknown: {
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
