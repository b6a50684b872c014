#include "platform/core/UserInterface.h"

#include "platform/core/HeadlessUserInterface.h"
#include "platform/core/StringTable.h"

namespace seisplot {
namespace {

UserInterface* g_installed = nullptr;

} // namespace

std::vector<int> MessageButtons(UINT type) {
    switch (type & MB_TYPEMASK) {
    case MB_OKCANCEL:
        return {IDOK, IDCANCEL};
    case MB_ABORTRETRYIGNORE:
        return {IDABORT, IDRETRY, IDIGNORE};
    case MB_YESNOCANCEL:
        return {IDYES, IDNO, IDCANCEL};
    case MB_YESNO:
        return {IDYES, IDNO};
    case MB_RETRYCANCEL:
        return {IDRETRY, IDCANCEL};
    default:
        return {IDOK};
    }
}

int DefaultButton(UINT type) {
    const std::vector<int> buttons = MessageButtons(type);
    const size_t index = (type & MB_DEFMASK) >> 8;
    return index < buttons.size() ? buttons[index] : buttons.front();
}

std::vector<FileFilter> ParseFileFilter(const CString& filter) {
    std::vector<FileFilter> groups;
    std::vector<CString> parts;
    CString part;
    for (int i = 0; i < filter.GetLength(); ++i) {
        if (filter[i] == '|') {
            parts.push_back(part);
            part.Empty();
        } else {
            part += filter[i];
        }
    }
    if (!part.IsEmpty()) {
        parts.push_back(part);
    }
    for (size_t i = 0; i + 1 < parts.size(); i += 2) {
        if (parts[i].IsEmpty() && parts[i + 1].IsEmpty()) {
            break;
        }
        FileFilter group;
        group.description = parts[i];
        int start = 0;
        for (CString pattern = parts[i + 1].Tokenize(";", start); start >= 0;
             pattern = parts[i + 1].Tokenize(";", start)) {
            pattern.Trim();
            if (!pattern.IsEmpty()) {
                group.patterns.push_back(pattern);
            }
        }
        groups.push_back(group);
    }
    return groups;
}

UserInterface& CurrentUserInterface() {
    if (g_installed) {
        return *g_installed;
    }
    static HeadlessUserInterface headless;
    return headless;
}

UserInterface* InstallUserInterface(UserInterface* ui) {
    UserInterface* previous = g_installed;
    g_installed = ui;
    return previous;
}

} // namespace seisplot

int AfxMessageBox(LPCTSTR text, UINT type, UINT /*helpId*/) {
    return seisplot::CurrentUserInterface().ShowMessage(CString(text), type);
}

int AfxMessageBox(UINT promptId, UINT type, UINT /*helpId*/) {
    return seisplot::CurrentUserInterface().ShowMessage(seisplot::LoadLibraryString(promptId),
                                                        type);
}
