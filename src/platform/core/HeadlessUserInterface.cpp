#include "platform/core/HeadlessUserInterface.h"

#include <iostream>

namespace seisplot {

HeadlessUserInterface::HeadlessUserInterface() : m_log(&std::clog) {}

void HeadlessUserInterface::Log(const CString& line) const {
    if (m_log) {
        *m_log << "seisplot: " << line.GetString() << '\n';
    }
}

int HeadlessUserInterface::ShowMessage(const CString& text, UINT type) {
    const int answer = DefaultButton(type);
    if (m_messages.size() == kKeptMessages) {
        m_messages.erase(m_messages.begin());
    }
    m_messages.push_back({text, type, answer});
    Log(text);
    return answer;
}

std::optional<std::vector<CString>> HeadlessUserInterface::ChooseFiles(const FileRequest& request) {
    Log(CString(request.open ? "no file to open can be chosen here"
                             : "no file to save can be chosen here"));
    return std::nullopt;
}

bool HeadlessUserInterface::ChooseUnits(UnitQuestion& /*question*/) {
    return true;
}

bool HeadlessUserInterface::ChooseFont(FontChoice& /*choice*/) {
    Log("no font can be chosen here");
    return false;
}

bool HeadlessUserInterface::ChoosePrinter(PrinterChoice& /*choice*/) {
    Log("no printer can be chosen here");
    return false;
}

void HeadlessUserInterface::EndWait() {
    if (m_waitDepth > 0) {
        --m_waitDepth;
    }
}

bool HeadlessUserInterface::StartProcess(const CString& commandLine) {
    Log("not started: " + commandLine);
    return true;
}

} // namespace seisplot
