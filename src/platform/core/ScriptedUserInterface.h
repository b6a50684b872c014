#pragma once
// A user interface for tests: it records every request with its exact text and answers from
// queues prepared by the test. A question that finds its queue empty takes the default
// button and is counted in Unanswered(), so a test can tell it was not expected.

#include "platform/core/UserInterface.h"

#include <deque>
#include <utility>

namespace seisplot {

class ScriptedUserInterface : public UserInterface {
public:
    using Message = ShownMessage;
    // The answer to one unit question: confirm (with these picks, by quantity name and
    // label), or cancel.
    struct UnitAnswer {
        bool confirm = true;
        std::vector<std::pair<CString, CString>> picks;
    };

    // Answers, consumed in order
    void QueueAnswer(int id) { m_answers.push_back(id); }
    void QueueFiles(std::vector<CString> paths) { m_files.push_back(std::move(paths)); }
    void QueueCancelFiles() { m_files.push_back(std::nullopt); }
    void QueueUnits(UnitAnswer answer) { m_units.push_back(std::move(answer)); }
    void QueueFont(const FontChoice& choice) { m_fonts.push_back(choice); }
    void QueueCancelFont() { m_fonts.push_back(std::nullopt); }
    // A print dialog confirmed with a printer that writes `pdfPath`, or cancelled.
    void QueuePrinter(const CString& pdfPath) { m_printers.push_back(pdfPath); }
    void QueueCancelPrinter() { m_printers.push_back(std::nullopt); }

    // What happened
    const std::vector<Message>& Messages() const { return m_messages; }
    std::vector<CString> MessageTexts() const;
    const std::vector<FileRequest>& FileRequests() const { return m_fileRequests; }
    const std::vector<UnitQuestion>& UnitQuestions() const { return m_unitQuestions; }
    // The font and colour each font chooser opened on.
    const std::vector<FontChoice>& FontRequests() const { return m_fontRequests; }
    const std::vector<CString>& Processes() const { return m_processes; }
    // The flags each print dialog was opened with.
    const std::vector<DWORD>& PrinterRequests() const { return m_printerRequests; }
    int Unanswered() const { return m_unanswered; }
    int WaitDepth() const { return m_waitDepth; }
    int WaitCount() const { return m_waitCount; }
    void Clear();

    int ShowMessage(const CString& text, UINT type) override;
    std::optional<std::vector<CString>> ChooseFiles(const FileRequest& request) override;
    bool ChooseUnits(UnitQuestion& question) override;
    bool ChooseFont(FontChoice& choice) override;
    bool ChoosePrinter(PrinterChoice& choice) override;
    void BeginWait() override;
    void EndWait() override { --m_waitDepth; }
    bool StartProcess(const CString& commandLine) override;

private:
    std::deque<int> m_answers;
    std::deque<std::optional<std::vector<CString>>> m_files;
    std::deque<UnitAnswer> m_units;
    std::deque<std::optional<FontChoice>> m_fonts;
    std::deque<std::optional<CString>> m_printers;
    std::vector<DWORD> m_printerRequests;
    std::vector<Message> m_messages;
    std::vector<FileRequest> m_fileRequests;
    std::vector<UnitQuestion> m_unitQuestions;
    std::vector<FontChoice> m_fontRequests;
    std::vector<CString> m_processes;
    int m_unanswered = 0;
    int m_waitDepth = 0;
    int m_waitCount = 0;
};

} // namespace seisplot
