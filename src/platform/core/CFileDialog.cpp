#include "platform/core/CFileDialog.h"

namespace {

int LastSeparator(const CString& path) {
    return path.ReverseFind('/');
}

CString NameOf(const CString& path) {
    return path.Mid(LastSeparator(path) + 1);
}

} // namespace

CFileDialog::CFileDialog(BOOL openFileDialog, LPCTSTR defaultExtension, LPCTSTR fileName,
                         DWORD flags, LPCTSTR filter, CWnd* /*parent*/, DWORD /*size*/,
                         BOOL /*vistaStyle*/) {
    m_request.open = openFileDialog != FALSE;
    m_request.defaultExtension = defaultExtension;
    m_request.fileName = fileName;
    m_request.filter = filter;
    m_ofn.Flags = flags;
}

INT_PTR CFileDialog::DoModal() {
    m_request.flags = m_ofn.Flags;
    m_request.multiSelect = (m_ofn.Flags & OFN_ALLOWMULTISELECT) != 0;
    m_paths.clear();
    auto chosen = seisplot::CurrentUserInterface().ChooseFiles(m_request);
    if (!chosen || chosen->empty()) {
        return IDCANCEL;
    }
    m_paths = std::move(*chosen);
    if (!m_request.multiSelect) {
        m_paths.resize(1);
    }
    // A typed name without an extension gets the default one: the first of a list such as
    // "*.txt; *.plt", without its "*.".
    CString extension = m_request.defaultExtension.SpanExcluding(";");
    extension.Trim();
    extension.TrimLeft("*.");
    if (!extension.IsEmpty()) {
        for (CString& path : m_paths) {
            if (NameOf(path).Find('.') < 0) {
                path += "." + extension;
            }
        }
    }
    return IDOK;
}

CString CFileDialog::GetPathName() const {
    return m_paths.empty() ? CString() : m_paths.front();
}

CString CFileDialog::GetFileName() const {
    return NameOf(GetPathName());
}

CString CFileDialog::GetFileExt() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? CString() : name.Mid(dot + 1);
}

CString CFileDialog::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? name : name.Left(dot);
}

CString CFileDialog::GetFolderPath() const {
    const CString path = GetPathName();
    const int slash = LastSeparator(path);
    return slash < 0 ? CString(".") : path.Left(slash);
}

POSITION CFileDialog::GetStartPosition() const {
    // A position is the number of the next path, counted from 1; null ends the walk.
    return m_paths.empty() ? nullptr : reinterpret_cast<POSITION>(std::uintptr_t{1});
}

CString CFileDialog::GetNextPathName(POSITION& position) const {
    const auto index = reinterpret_cast<std::uintptr_t>(position);
    if (index == 0 || index > m_paths.size()) {
        position = nullptr;
        return CString();
    }
    position = index < m_paths.size() ? reinterpret_cast<POSITION>(index + 1) : nullptr;
    return m_paths[index - 1];
}
