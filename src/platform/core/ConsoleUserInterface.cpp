#include "platform/core/ConsoleUserInterface.h"

#include <algorithm>
#include <iostream>
#include <string>
#include <unistd.h>

namespace seisplot {
namespace {

const char* ButtonName(int id) {
    switch (id) {
    case IDOK:
        return "OK";
    case IDCANCEL:
        return "Cancel";
    case IDABORT:
        return "Abort";
    case IDRETRY:
        return "Retry";
    case IDIGNORE:
        return "Ignore";
    case IDYES:
        return "Yes";
    case IDNO:
        return "No";
    default:
        return "?";
    }
}

} // namespace

ConsoleUserInterface::ConsoleUserInterface(std::istream& in, std::ostream& err, bool interactive)
    : m_in(in), m_err(err), m_interactive(interactive) {}

ConsoleUserInterface::ConsoleUserInterface()
    : ConsoleUserInterface(std::cin, std::cerr, isatty(STDIN_FILENO) != 0) {}

bool ConsoleUserInterface::ReadLine(CString& line) {
    std::string text;
    if (!std::getline(m_in, text)) {
        return false;
    }
    line = CString(std::move(text));
    line.Trim();
    return true;
}

int ConsoleUserInterface::ShowMessage(const CString& text, UINT type) {
    m_err << "seisplot: " << text.GetString() << '\n';
    const std::vector<int> buttons = MessageButtons(type);
    if (buttons.size() == 1) {
        return buttons.front();
    }
    if (m_presetAnswer &&
        std::find(buttons.begin(), buttons.end(), *m_presetAnswer) != buttons.end()) {
        m_err << "seisplot: answered " << ButtonName(*m_presetAnswer) << '\n';
        return *m_presetAnswer;
    }
    const int fallback = DefaultButton(type);
    if (!m_interactive) {
        m_err << "seisplot: answered " << ButtonName(fallback) << '\n';
        return fallback;
    }
    for (;;) {
        m_err << '[';
        for (size_t i = 0; i < buttons.size(); ++i) {
            m_err << (i ? "/" : "") << ButtonName(buttons[i]);
        }
        m_err << "] (Enter: " << ButtonName(fallback) << ") ";
        m_err.flush();
        CString line;
        if (!ReadLine(line)) {
            return fallback;
        }
        if (line.IsEmpty()) {
            return fallback;
        }
        for (int id : buttons) {
            const CString name = ButtonName(id);
            if (line.CompareNoCase(name) == 0 ||
                (line.GetLength() == 1 && line.CompareNoCase(name.Left(1)) == 0)) {
                return id;
            }
        }
    }
}

std::optional<std::vector<CString>> ConsoleUserInterface::ChooseFiles(const FileRequest& request) {
    if (m_presetFiles) {
        return m_presetFiles;
    }
    if (!m_interactive) {
        m_err << "seisplot: no file can be chosen: standard input is not a terminal\n";
        return std::nullopt;
    }
    m_err << (request.open ? "File to open" : "File to save");
    if (!request.fileName.IsEmpty()) {
        m_err << " [" << request.fileName.GetString() << ']';
    }
    m_err << ": ";
    m_err.flush();
    CString line;
    if (!ReadLine(line)) {
        return std::nullopt;
    }
    if (line.IsEmpty()) {
        line = request.fileName;
    }
    if (line.IsEmpty()) {
        return std::nullopt;
    }
    return std::vector<CString>{line};
}

bool ConsoleUserInterface::ChooseUnits(UnitQuestion& question) {
    bool answered = true;
    for (UnitQuestion::Quantity& quantity : question.quantities) {
        if (!quantity.ask || quantity.labels.size() < 2) {
            continue;
        }
        bool preset = false;
        for (const CString& label : m_presetUnits) {
            const auto found = std::find(quantity.labels.begin(), quantity.labels.end(), label);
            if (found != quantity.labels.end()) {
                quantity.current = static_cast<int>(found - quantity.labels.begin());
                preset = true;
            }
        }
        if (preset) {
            continue;
        }
        if (!m_interactive) {
            m_err << "seisplot: the " << quantity.name.GetString()
                  << " unit is needed and standard input is not a terminal\n";
            answered = false;
            continue;
        }
        for (;;) {
            m_err << quantity.name.GetString() << " unit (";
            for (size_t i = 0; i < quantity.labels.size(); ++i) {
                m_err << (i ? ", " : "") << quantity.labels[i].GetString();
            }
            m_err << ") [" << quantity.labels[static_cast<size_t>(quantity.current)].GetString()
                  << "]: ";
            m_err.flush();
            CString line;
            if (!ReadLine(line)) {
                return false;
            }
            if (line.IsEmpty()) {
                break;
            }
            const auto found = std::find(quantity.labels.begin(), quantity.labels.end(), line);
            if (found != quantity.labels.end()) {
                quantity.current = static_cast<int>(found - quantity.labels.begin());
                break;
            }
        }
    }
    return answered;
}

bool ConsoleUserInterface::ChooseFont(FontChoice& /*choice*/) {
    m_err << "seisplot: no font can be chosen here; the font stays as it was\n";
    return false;
}

bool ConsoleUserInterface::ChoosePrinter(PrinterChoice& /*choice*/) {
    m_err << "seisplot: no printer can be chosen here; nothing is printed\n";
    return false;
}

bool ConsoleUserInterface::StartProcess(const CString& commandLine) {
    m_err << "seisplot: not started here: " << commandLine.GetString() << '\n';
    return true;
}

} // namespace seisplot
