#pragma once
// The print dialog: the user chooses a printer; the dialog then gives a printing context on
// it, on which the caller starts a document, draws its pages and ends it.

#include "platform/gdi/CDC.h"
#include "platform/gdi/CWnd.h"

#include <memory>

inline constexpr DWORD PD_ALLPAGES = 0x00000000;
inline constexpr DWORD PD_NOSELECTION = 0x00000004;
inline constexpr DWORD PD_NOPAGENUMS = 0x00000008;
inline constexpr DWORD PD_HIDEPRINTTOFILE = 0x00100000;
inline constexpr DWORD PD_USEDEVMODECOPIESANDCOLLATE = 0x00040000;

namespace seisplot {
class DocumentDC;
}

class CPrintDialog {
public:
    CPrintDialog(BOOL printSetupOnly, DWORD flags = PD_ALLPAGES, CWnd* parent = nullptr);
    ~CPrintDialog();
    CPrintDialog(const CPrintDialog&) = delete;
    CPrintDialog& operator=(const CPrintDialog&) = delete;

    // IDOK when a printer was chosen.
    INT_PTR DoModal();
    // A printing context on the chosen printer, owned by the dialog (DeleteDC ends it); null
    // before a printer is chosen or when it cannot be printed on.
    CDC* GetPrinterDC();
    CString GetDeviceName() const;

private:
    DWORD m_flags;
    bool m_chosen = false;
    CString m_printer;
    CString m_file;
    std::unique_ptr<seisplot::DocumentDC> m_dc;
};
