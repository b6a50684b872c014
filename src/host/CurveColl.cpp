#include "host/CurveColl.h"

namespace {

constexpr WORD kFileVersion = 1;

template <class Curves> auto At(Curves& curves, int i) -> decltype(curves.data()) {
    return (i >= 1 && i <= static_cast<int>(curves.size())) ? curves.data() + (i - 1) : nullptr;
}

template <class Curve> void RemoveAt(std::vector<Curve>& curves, int i) {
    if (i >= 1 && i <= static_cast<int>(curves.size())) {
        curves.erase(curves.begin() + (i - 1));
    }
}

template <class Curve>
void StoreCurves(const std::vector<Curve>& curves, const char* tag, CArchive& ar) {
    ar << CString(tag) << kFileVersion << static_cast<DWORD>(curves.size());
    for (Curve curve : curves) {
        curve.Serialize(ar);
    }
}

// Reads the whole collection aside: a failed read raises and leaves `curves` as they were.
template <class Curve> void LoadCurves(std::vector<Curve>& curves, const char* tag, CArchive& ar) {
    CString found;
    WORD version = 0;
    DWORD count = 0;
    ar >> found;
    if (found != tag) {
        AfxThrowArchiveException(CArchiveException::badClass, ar.m_strFileName);
    }
    ar >> version;
    if (version != kFileVersion) {
        AfxThrowArchiveException(CArchiveException::badSchema, ar.m_strFileName);
    }
    ar >> count;
    seisplot::CheckCount(ar, count, 1);
    std::vector<Curve> read(count);
    for (Curve& curve : read) {
        curve.Serialize(ar);
    }
    curves = std::move(read);
}

template <class Curve>
int WriteCurves(const std::vector<Curve>& curves, const char* tag, const char* path) {
    try {
        CFile file(path, CFile::modeCreate | CFile::modeWrite);
        CArchive ar(&file, CArchive::store);
        StoreCurves(curves, tag, ar);
        ar.Close();
        file.Close();
        return 0;
    } catch (CException* e) {
        e->Delete();
        return 1;
    }
}

template <class Curve>
int ReadCurves(std::vector<Curve>& curves, const char* tag, const char* path) {
    try {
        CFile file(path, CFile::modeRead);
        CArchive ar(&file, CArchive::load);
        LoadCurves(curves, tag, ar);
        return 0;
    } catch (CException* e) {
        e->Delete();
        return 1;
    }
}

} // namespace

PCurve* PCurveColl::GetP(int i) {
    return At(m_curves, i);
}
const PCurve* PCurveColl::GetP(int i) const {
    return At(m_curves, i);
}
void PCurveColl::RemovePCurve(int i) {
    RemoveAt(m_curves, i);
}
void PCurveColl::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        StoreCurves(m_curves, "PCurveColl", ar);
    } else {
        LoadCurves(m_curves, "PCurveColl", ar);
    }
}
int PCurveColl::ReadFromFile(const char* path) {
    return ReadCurves(m_curves, "PCurveColl", path);
}
int PCurveColl::WriteToFile(const char* path) const {
    return WriteCurves(m_curves, "PCurveColl", path);
}

PMCurve* PMCurveColl::GetP(int i) {
    return At(m_curves, i);
}
const PMCurve* PMCurveColl::GetP(int i) const {
    return At(m_curves, i);
}
void PMCurveColl::RemovePMCurve(int i) {
    RemoveAt(m_curves, i);
}
void PMCurveColl::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        StoreCurves(m_curves, "PMCurveColl", ar);
    } else {
        LoadCurves(m_curves, "PMCurveColl", ar);
    }
}
int PMCurveColl::ReadFromFile(const char* path) {
    return ReadCurves(m_curves, "PMCurveColl", path);
}
int PMCurveColl::WriteToFile(const char* path) const {
    return WriteCurves(m_curves, "PMCurveColl", path);
}
