#pragma once
// The user interface of a process with nobody to ask: every message is recorded and logged,
// questions take their default button, file and font choices are cancelled, units stay as
// they are.

#include "platform/core/UserInterface.h"

#include <iosfwd>

namespace seisplot {

class HeadlessUserInterface : public UserInterface {
public:
    using Message = ShownMessage;

    // Messages are logged to std::clog, or to `log` (not at all when it is null).
    HeadlessUserInterface();
    explicit HeadlessUserInterface(std::ostream* log) : m_log(log) {}

    int ShowMessage(const CString& text, UINT type) override;
    std::optional<std::vector<CString>> ChooseFiles(const FileRequest& request) override;
    bool ChooseUnits(UnitQuestion& question) override;
    bool ChooseFont(FontChoice& choice) override;
    bool ChoosePrinter(PrinterChoice& choice) override;
    void BeginWait() override { ++m_waitDepth; }
    void EndWait() override;
    bool StartProcess(const CString& commandLine) override;

    // The most recent messages (at most kKeptMessages).
    const std::vector<Message>& Messages() const { return m_messages; }
    static constexpr size_t kKeptMessages = 1000;

private:
    void Log(const CString& line) const;

    std::ostream* m_log;
    std::vector<Message> m_messages;
    int m_waitDepth = 0;
};

} // namespace seisplot
