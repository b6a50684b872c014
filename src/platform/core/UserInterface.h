#pragma once
// The user-interface services: the only way the library talks to a person.
//
// Message boxes, file choices, the unit and font choices, the wait cursor and the text viewer
// all go through the UserInterface installed for the process. Without one, a headless default
// records and logs everything and never blocks.

#include "platform/core/CString.h"
#include "platform/core/LogFont.h"

#include <optional>
#include <vector>

// Message box buttons, icons and default buttons
inline constexpr UINT MB_OK = 0x0;
inline constexpr UINT MB_OKCANCEL = 0x1;
inline constexpr UINT MB_ABORTRETRYIGNORE = 0x2;
inline constexpr UINT MB_YESNOCANCEL = 0x3;
inline constexpr UINT MB_YESNO = 0x4;
inline constexpr UINT MB_RETRYCANCEL = 0x5;
inline constexpr UINT MB_TYPEMASK = 0xF;
inline constexpr UINT MB_ICONHAND = 0x10;
inline constexpr UINT MB_ICONSTOP = 0x10;
inline constexpr UINT MB_ICONERROR = 0x10;
inline constexpr UINT MB_ICONQUESTION = 0x20;
inline constexpr UINT MB_ICONEXCLAMATION = 0x30;
inline constexpr UINT MB_ICONWARNING = 0x30;
inline constexpr UINT MB_ICONASTERISK = 0x40;
inline constexpr UINT MB_ICONINFORMATION = 0x40;
inline constexpr UINT MB_ICONMASK = 0xF0;
inline constexpr UINT MB_DEFBUTTON1 = 0x000;
inline constexpr UINT MB_DEFBUTTON2 = 0x100;
inline constexpr UINT MB_DEFBUTTON3 = 0x200;
inline constexpr UINT MB_DEFMASK = 0xF00;

// Dialog and message box results
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr int IDABORT = 3;
inline constexpr int IDRETRY = 4;
inline constexpr int IDIGNORE = 5;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;

int AfxMessageBox(LPCTSTR text, UINT type = MB_OK, UINT helpId = 0);
// Shows string `promptId` of the library's string table.
int AfxMessageBox(UINT promptId, UINT type = MB_OK, UINT helpId = static_cast<UINT>(-1));

namespace seisplot {

// The buttons a message box of `type` offers, in order, as ID... results.
std::vector<int> MessageButtons(UINT type);
// The result of pressing Enter: the button MB_DEFBUTTONn names, else the first.
int DefaultButton(UINT type);

// What a file dialog asks for. `filter` is in the framework's form:
// "Description (*.ext)|*.ext|Other|*.a;*.b||".
struct FileRequest {
    bool open = true;         // open (true) or save (false)
    bool multiSelect = false; // open several files at once
    CString defaultExtension; // appended to a typed name that has none
    CString fileName;         // initial name
    CString filter;
    DWORD flags = 0; // OFN_... flags as the caller gave them
};

// One pattern group of a framework filter string.
struct FileFilter {
    CString description;
    std::vector<CString> patterns; // "*.acc", "*.*", ...
};
// Splits "Desc|*.a;*.b|Other|*.c||" into its groups.
std::vector<FileFilter> ParseFileFilter(const CString& filter);

// The choice of units behind Units::Reset: which entry of each list is in force. A list with
// `ask` false is shown for information only (or not at all) and must not change.
struct UnitQuestion {
    struct Quantity {
        CString name;                // "Length", "Force", "Time"
        std::vector<CString> labels; // "mm", "cm", ...
        int current = 0;
        bool ask = false;
    };
    CString title;
    std::vector<Quantity> quantities;
};

// A font and its text colour (0x00BBGGRR), as the font chooser opens on them and returns them.
// The height is whatever size the caller keeps in lfHeight (points, for SFont); a chooser
// keeps its sign and unit.
struct FontChoice {
    LOGFONTA font;
    COLORREF colour = 0;
};

// The printer a print dialog chose: a printer by name, or a PDF file (for a printer that writes
// files, and for tests). `flags` are the PD_... flags the caller gave the dialog.
struct PrinterChoice {
    DWORD flags = 0;
    CString printerName; // empty: the system's default printer
    CString outputFile;  // not empty: print to this PDF file
};

// A message as it was shown, with the button that answered it.
struct ShownMessage {
    CString text;
    UINT type = MB_OK;
    int answer = IDOK;
};

class UserInterface {
public:
    virtual ~UserInterface() = default;

    // Shows `text` with the buttons and icon of `type`; returns the ID... of the button chosen.
    virtual int ShowMessage(const CString& text, UINT type) = 0;
    // The chosen paths (several only for a multi-select request); nothing when cancelled.
    virtual std::optional<std::vector<CString>> ChooseFiles(const FileRequest& request) = 0;
    // Lets the user change the `current` entries that are asked; false when cancelled.
    virtual bool ChooseUnits(UnitQuestion& question) = 0;
    // Lets the user change the font and its colour; false (and `choice` untouched) when
    // cancelled.
    virtual bool ChooseFont(FontChoice& choice) = 0;
    // Lets the user choose a printer; false (and `choice` untouched but for what was asked)
    // when cancelled.
    virtual bool ChoosePrinter(PrinterChoice& choice) = 0;
    // The wait cursor: shown while the count of BeginWait over EndWait is positive.
    virtual void BeginWait() = 0;
    virtual void EndWait() = 0;
    // Starts an external program, such as the text viewer on a report; false when it failed.
    virtual bool StartProcess(const CString& commandLine) = 0;
};

// The services in force: the installed ones, else the headless default.
UserInterface& CurrentUserInterface();
// Installs `ui` (null restores the headless default) and returns what was installed before.
UserInterface* InstallUserInterface(UserInterface* ui);

// Installs a user interface for the lifetime of this object, then puts back the previous one.
class ScopedUserInterface {
public:
    explicit ScopedUserInterface(UserInterface& ui) : m_previous(InstallUserInterface(&ui)) {}
    ~ScopedUserInterface() { InstallUserInterface(m_previous); }
    ScopedUserInterface(const ScopedUserInterface&) = delete;
    ScopedUserInterface& operator=(const ScopedUserInterface&) = delete;

private:
    UserInterface* m_previous;
};

} // namespace seisplot
