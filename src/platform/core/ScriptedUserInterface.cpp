#include "platform/core/ScriptedUserInterface.h"

#include <algorithm>

namespace seisplot {

std::vector<CString> ScriptedUserInterface::MessageTexts() const {
    std::vector<CString> texts;
    for (const Message& message : m_messages) {
        texts.push_back(message.text);
    }
    return texts;
}

void ScriptedUserInterface::Clear() {
    m_answers.clear();
    m_files.clear();
    m_units.clear();
    m_fonts.clear();
    m_printers.clear();
    m_printerRequests.clear();
    m_messages.clear();
    m_fileRequests.clear();
    m_unitQuestions.clear();
    m_fontRequests.clear();
    m_processes.clear();
    m_unanswered = 0;
    m_waitCount = 0;
}

int ScriptedUserInterface::ShowMessage(const CString& text, UINT type) {
    const std::vector<int> buttons = MessageButtons(type);
    int answer = DefaultButton(type);
    if (buttons.size() > 1) {
        if (m_answers.empty()) {
            ++m_unanswered;
        } else {
            answer = m_answers.front();
            m_answers.pop_front();
        }
    }
    m_messages.push_back({text, type, answer});
    return answer;
}

std::optional<std::vector<CString>> ScriptedUserInterface::ChooseFiles(const FileRequest& request) {
    m_fileRequests.push_back(request);
    if (m_files.empty()) {
        ++m_unanswered;
        return std::nullopt;
    }
    const bool cancelled = !m_files.front().has_value();
    std::vector<CString> paths = cancelled ? std::vector<CString>() : std::move(*m_files.front());
    m_files.pop_front();
    if (cancelled) {
        return std::nullopt;
    }
    return paths;
}

bool ScriptedUserInterface::ChooseUnits(UnitQuestion& question) {
    m_unitQuestions.push_back(question);
    if (m_units.empty()) {
        ++m_unanswered;
        return true;
    }
    const UnitAnswer answer = std::move(m_units.front());
    m_units.pop_front();
    if (!answer.confirm) {
        return false;
    }
    for (const auto& [name, label] : answer.picks) {
        for (UnitQuestion::Quantity& quantity : question.quantities) {
            if (quantity.name != name || !quantity.ask) {
                continue;
            }
            const auto found = std::find(quantity.labels.begin(), quantity.labels.end(), label);
            if (found != quantity.labels.end()) {
                quantity.current = static_cast<int>(found - quantity.labels.begin());
            }
        }
    }
    return true;
}

bool ScriptedUserInterface::ChoosePrinter(PrinterChoice& choice) {
    m_printerRequests.push_back(choice.flags);
    if (m_printers.empty()) {
        ++m_unanswered;
        return false;
    }
    const std::optional<CString> answer = m_printers.front();
    m_printers.pop_front();
    if (!answer) {
        return false;
    }
    choice.outputFile = *answer;
    return true;
}

bool ScriptedUserInterface::ChooseFont(FontChoice& choice) {
    m_fontRequests.push_back(choice);
    if (m_fonts.empty()) {
        ++m_unanswered;
        return false;
    }
    const std::optional<FontChoice> answer = m_fonts.front();
    m_fonts.pop_front();
    if (!answer) {
        return false;
    }
    choice = *answer;
    return true;
}

void ScriptedUserInterface::BeginWait() {
    ++m_waitDepth;
    ++m_waitCount;
}

bool ScriptedUserInterface::StartProcess(const CString& commandLine) {
    m_processes.push_back(commandLine);
    return true;
}

} // namespace seisplot
