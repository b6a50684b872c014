#include "spectra/SpectrumColl.h"

#include <cassert>

CRuntimeClass SpectrumColl::classSpectrumColl{"SpectrumColl", sizeof(SpectrumColl), 0,
                                              &seisplot::CreateObjectOf<SpectrumColl>,
                                              RUNTIME_CLASS(CObject)};

CRuntimeClass* SpectrumColl::GetRuntimeClass() const {
    return &classSpectrumColl;
}

namespace {

// The shortest archive form of a spectrum: an unnamed selectable part without views (3
// bytes), a version word of 101 or less (2), an empty Explanation (1), Type (1), Damp (8),
// and a curve without points (selectable part 3, version 2, unit kinds 1 + 1, axis names
// 1 + 1, point count 4, marked count 4). A stored count is checked against it before
// anything is created.
constexpr ULONGLONG kLeastSpectrumBytes = 3 + 2 + 1 + 1 + 8 + (3 + 2 + 1 + 1 + 1 + 1 + 4 + 4);

constexpr int kArchiveBufferSize = 4096;

} // namespace

SpectrumColl::SpectrumColl(const SpectrumColl& other)
    : CObject(other), m_spectra(other.m_spectra), m_version(other.m_version) {}

SpectrumColl SpectrumColl::operator=(const SpectrumColl& other) {
    if (this != &other) {
        m_spectra = other.m_spectra;
        m_version = other.m_version;
    }
    return *this;
}

void SpectrumColl::Serialize(CArchive& ar) {
    m_spectra.Serialize(ar, m_version, kLeastSpectrumBytes);
}

void SpectrumColl::AssertValid() const {
    CObject::AssertValid();
    assert(m_version == 1);
    for (const Spectrum& spectrum : m_spectra) {
        spectrum.AssertValid();
    }
}

void SpectrumColl::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "spectra: " << static_cast<unsigned int>(m_spectra.Count()) << "\n";
}

Spectrum* SpectrumColl::GetPSpectra() const {
    return m_spectra.Data();
}

Spectrum* SpectrumColl::GetP(unsigned long i) const {
    return m_spectra.Get(i);
}

Spectrum& SpectrumColl::GetSpectrum(unsigned long i) const {
    return m_spectra.Ref(i);
}

Spectrum& SpectrumColl::operator[](unsigned long i) {
    return m_spectra.CheckedAt<Range>(i);
}

void SpectrumColl::Select(unsigned long i, unsigned short view) {
    m_spectra.Select(i, view);
}

void SpectrumColl::Unselect(unsigned long i, unsigned short view) {
    m_spectra.Unselect(i, view);
}

void SpectrumColl::UnSelectAll(unsigned short view) {
    m_spectra.UnSelectAll(view);
}

unsigned long SpectrumColl::CountSelected(unsigned char view) const {
    return m_spectra.CountSelected(view);
}

unsigned long SpectrumColl::FindSpectrum(CString text) const {
    return m_spectra.FindFirst([&](const Spectrum& s) { return s.GetName() == text; });
}

unsigned long SpectrumColl::remap(const unsigned long* removed, unsigned long n, unsigned long i) {
    return seisplot::ObjectArray<Spectrum>::Remap(removed, n, i);
}

int SpectrumColl::AddSpectrum(const Spectrum& spectrum) {
    m_spectra.Add(spectrum);
    return 0;
}

int SpectrumColl::RemoveSpectrum(unsigned long i) {
    return m_spectra.Remove(i);
}

int SpectrumColl::DelSpectrum(unsigned short view) {
    m_spectra.DeleteSelected(view);
    return 0;
}

void SpectrumColl::operator+=(const SpectrumColl& other) {
    m_spectra.Append(other.m_spectra);
}

void SpectrumColl::Free() {
    m_spectra.Free();
}

void SpectrumColl::Alloc(unsigned long n) {
    m_spectra.Alloc(n);
}

int SpectrumColl::IncreaseStruct(unsigned long n) {
    m_spectra.Resize(n);
    return 0;
}

int SpectrumColl::WriteToFile(CString& path) {
    CFile file(path, CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive);
    CArchive ar(&file, CArchive::store, kArchiveBufferSize);
    Serialize(ar);
    ar.Close();
    file.Close();
    return 0;
}

int SpectrumColl::ReadFromFile(CString& path) {
    CFile file(path, CFile::modeRead | CFile::shareDenyWrite);
    CArchive ar(&file, CArchive::load, kArchiveBufferSize);
    Serialize(ar);
    ar.Close();
    file.Close();
    return 0;
}
