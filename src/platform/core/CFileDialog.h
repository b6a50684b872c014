#pragma once
// CFileDialog and CWaitCursor: the framework's file dialog and wait cursor, answered by the
// user-interface services.

#include "platform/core/UserInterface.h"

class CWnd;

inline constexpr DWORD OFN_READONLY = 0x00000001;
inline constexpr DWORD OFN_OVERWRITEPROMPT = 0x00000002;
inline constexpr DWORD OFN_HIDEREADONLY = 0x00000004;
inline constexpr DWORD OFN_NOCHANGEDIR = 0x00000008;
inline constexpr DWORD OFN_ALLOWMULTISELECT = 0x00000200;
inline constexpr DWORD OFN_PATHMUSTEXIST = 0x00000800;
inline constexpr DWORD OFN_FILEMUSTEXIST = 0x00001000;
inline constexpr DWORD OFN_EXPLORER = 0x00080000;

struct PositionTag;
using POSITION = PositionTag*;

// The part of the dialog's settings that host code reads and sets before DoModal.
struct OPENFILENAME {
    DWORD Flags = 0;
};

class CFileDialog {
public:
    explicit CFileDialog(BOOL openFileDialog, LPCTSTR defaultExtension = nullptr,
                         LPCTSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                         LPCTSTR filter = nullptr, CWnd* parent = nullptr, DWORD size = 0,
                         BOOL vistaStyle = TRUE);
    virtual ~CFileDialog() = default;

    // IDOK when the user chose, IDCANCEL otherwise.
    virtual INT_PTR DoModal();

    CString GetPathName() const;   // the (first) chosen path
    CString GetFileName() const;   // its name with extension
    CString GetFileExt() const;    // its extension without the dot
    CString GetFileTitle() const;  // its name without extension
    CString GetFolderPath() const; // its folder

    // Walks the chosen paths of a multi-select dialog.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& position) const;

    OPENFILENAME m_ofn;

private:
    seisplot::FileRequest m_request;
    std::vector<CString> m_paths;
};

// Shows the wait cursor while it lives.
class CWaitCursor {
public:
    CWaitCursor() { seisplot::CurrentUserInterface().BeginWait(); }
    ~CWaitCursor() { seisplot::CurrentUserInterface().EndWait(); }
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

    // Shows the wait cursor again after something replaced it (a message box).
    void Restore() {}
};
