#include "Project.h"

#include "platform/core/CFile.h"
#include "platform/core/Exceptions.h"

#include <cstdio>
#include <utility>

namespace seisplot::studio {
namespace {

constexpr const char* kSignature = "seisplot project";
constexpr WORD kVersion = 1;

std::string MessageOf(CException* e) {
    const std::string text = e->GetMessageText().GetString();
    e->Delete();
    return text;
}

} // namespace

void Project::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar << CString(kSignature) << kVersion;
    } else {
        CString signature;
        WORD version = 0;
        ar >> signature;
        if (signature != kSignature) {
            AfxThrowArchiveException(CArchiveException::badClass, ar.m_strFileName);
        }
        ar >> version;
        if (version != kVersion) {
            AfxThrowArchiveException(CArchiveException::badSchema, ar.m_strFileName);
        }
    }
    records.Serialize(ar);
    spectra.Serialize(ar);
    curves.Serialize(ar);
    polylines.Serialize(ar);
    polygon.Serialize(ar);
    if (ar.IsStoring()) {
        ar << CString(units.GetLString()) << CString(units.GetFString())
           << CString(units.GetTString());
    } else {
        for (int i = 0; i < 3; ++i) {
            CString label;
            ar >> label;
            units.SetUnit(label);
        }
    }
}

bool Project::Open(const std::string& path, std::string& error) {
    Project read;
    try {
        CFile file(path.c_str(), CFile::modeRead);
        CArchive ar(&file, CArchive::load);
        read.Serialize(ar);
        if (ar.BytesLeft() != 0) {
            error = path + " has bytes after the project";
            return false;
        }
    } catch (CException* e) {
        error = MessageOf(e);
        return false;
    }
    *this = std::move(read);
    return true;
}

bool Project::Save(const std::string& path, std::string& error) {
    const std::string temporary = path + ".saving";
    try {
        CFile file(temporary.c_str(), CFile::modeCreate | CFile::modeWrite);
        CArchive ar(&file, CArchive::store);
        Serialize(ar);
        ar.Close();
        file.Flush();
        file.Close();
    } catch (CException* e) {
        error = MessageOf(e);
        std::remove(temporary.c_str());
        return false;
    }
    if (std::rename(temporary.c_str(), path.c_str()) != 0) {
        error = "cannot replace " + path;
        std::remove(temporary.c_str());
        return false;
    }
    return true;
}

} // namespace seisplot::studio
