#pragma once
// The user interface of the command-line tool: messages go to the error stream; questions,
// file names and units are asked at the terminal when there is one, and otherwise come from
// answers the program set beforehand (its options). A font cannot be chosen at a terminal: the
// choice is cancelled and the font stays as it was.

#include "platform/core/UserInterface.h"

#include <iosfwd>

namespace seisplot {

class ConsoleUserInterface : public UserInterface {
public:
    // `interactive`: whether `in` is a terminal a person types at.
    ConsoleUserInterface(std::istream& in, std::ostream& err, bool interactive);
    // The process's standard streams; interactive when standard input is a terminal.
    ConsoleUserInterface();

    // Answers given beforehand. A preset unit label ("cm", "kN") answers every unit question
    // for the quantity that offers it; a preset answer answers every question.
    void PresetUnit(const CString& label) { m_presetUnits.push_back(label); }
    void PresetAnswer(int id) { m_presetAnswer = id; }
    void PresetFiles(std::vector<CString> paths) { m_presetFiles = std::move(paths); }

    int ShowMessage(const CString& text, UINT type) override;
    std::optional<std::vector<CString>> ChooseFiles(const FileRequest& request) override;
    bool ChooseUnits(UnitQuestion& question) override;
    bool ChooseFont(FontChoice& choice) override;
    bool ChoosePrinter(PrinterChoice& choice) override;
    void BeginWait() override {}
    void EndWait() override {}
    bool StartProcess(const CString& commandLine) override;

private:
    bool ReadLine(CString& line);

    std::istream& m_in;
    std::ostream& m_err;
    bool m_interactive;
    std::vector<CString> m_presetUnits;
    std::optional<int> m_presetAnswer;
    std::optional<std::vector<CString>> m_presetFiles;
};

} // namespace seisplot
