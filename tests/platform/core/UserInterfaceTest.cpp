// The user-interface services: scripted answers, file dialogs, wait cursor and the console.

#include "platform/core/CFileDialog.h"
#include "platform/core/ConsoleUserInterface.h"
#include "platform/core/HeadlessUserInterface.h"
#include "platform/core/ScriptedUserInterface.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

using seisplot::ScopedUserInterface;
using seisplot::ScriptedUserInterface;

namespace {

constexpr const char* kAccFilter = "Accelerograms ACC (*.acc)|*.acc||";

seisplot::UnitQuestion LengthAndForce() {
    seisplot::UnitQuestion question;
    question.title = "Set the units to be used to read from file";
    question.quantities.push_back({"Length", {"mm", "cm", "m"}, 0, true});
    question.quantities.push_back({"Force", {"N", "kN"}, 0, false});
    return question;
}

} // namespace

TEST(UserInterface, ScriptedAnswersFromItsQueueThenTakesAndCountsDefaults) {
    using seisplot::DefaultButton;
    EXPECT_EQ(DefaultButton(MB_YESNOCANCEL | MB_DEFBUTTON3), IDCANCEL);
    EXPECT_EQ(DefaultButton(MB_OKCANCEL | MB_DEFBUTTON2), IDCANCEL);
    EXPECT_EQ(DefaultButton(MB_RETRYCANCEL | MB_DEFBUTTON3), IDRETRY); // no third button

    ScriptedUserInterface ui;
    {
        ScopedUserInterface scope(ui);
        ui.QueueAnswer(IDNO);
        ui.QueueAnswer(IDYES);
        EXPECT_EQ(AfxMessageBox("Curves have been changed. Save to disk?", MB_YESNO), IDNO);
        // A plain notice takes no answer from the queue.
        EXPECT_EQ(AfxMessageBox("Warning: maxT or dT null!", MB_ICONEXCLAMATION), IDOK);
        EXPECT_EQ(AfxMessageBox("Add them all (YES) or just one (NO)?", MB_YESNOCANCEL), IDYES);
        EXPECT_EQ(ui.Unanswered(), 0);
        // The queue is empty now: the default button answers and it is counted.
        EXPECT_EQ(AfxMessageBox("Delete?", MB_YESNO | MB_DEFBUTTON2), IDNO);
        EXPECT_EQ(AfxMessageBox("Delete?", MB_YESNO), IDYES);
        EXPECT_EQ(ui.Unanswered(), 2);

        CWaitCursor outer;
        CWaitCursor inner;
        EXPECT_EQ(ui.WaitDepth(), 2);
    }
    EXPECT_EQ(ui.WaitDepth(), 0);
    EXPECT_EQ(ui.WaitCount(), 2);
    EXPECT_NE(&seisplot::CurrentUserInterface(), &ui);
    ASSERT_EQ(ui.Messages().size(), 5u);
    EXPECT_EQ(ui.Messages()[1].text, "Warning: maxT or dT null!");
    EXPECT_EQ(ui.Messages()[1].type, MB_ICONEXCLAMATION);
    EXPECT_EQ(ui.Messages()[3].type, MB_YESNO | MB_DEFBUTTON2);

    seisplot::HeadlessUserInterface headless(nullptr);
    EXPECT_EQ(headless.ShowMessage("Delete?", MB_YESNO | MB_DEFBUTTON2), IDNO);
    EXPECT_FALSE(headless.ChooseFiles(seisplot::FileRequest{}).has_value());
    EXPECT_EQ(headless.Messages().size(), 1u);
}

TEST(FileDialog, ReturnsQueuedPathsWithTheDefaultExtension) {
    const auto filters =
        seisplot::ParseFileFilter("Spectra (*.spe;*.txt)|*.spe; *.txt|All files (*.*)|*.*||");
    ASSERT_EQ(filters.size(), 2u);
    EXPECT_EQ(filters[0].description, "Spectra (*.spe;*.txt)");
    EXPECT_EQ(filters[0].patterns, (std::vector<CString>{"*.spe", "*.txt"}));
    EXPECT_EQ(filters[1].patterns, (std::vector<CString>{"*.*"}));

    ScriptedUserInterface ui;
    ScopedUserInterface scope(ui);
    ui.QueueFiles({"/data/records/elcentro"});
    ui.QueueFiles({"/data/v1.2/kobe"});
    ui.QueueFiles({"/data/records/northridge.txt", "/data/records/ignored.acc"});
    ui.QueueCancelFiles();
    ui.QueueFiles({"/data/a.acc", "/data/b", "/data/c.acc"});

    CFileDialog save(FALSE, "*.acc", "record", OFN_OVERWRITEPROMPT, kAccFilter);
    ASSERT_EQ(save.DoModal(), IDOK);
    EXPECT_EQ(save.GetPathName(), "/data/records/elcentro.acc");
    EXPECT_EQ(save.GetFileName(), "elcentro.acc");
    EXPECT_EQ(save.GetFileExt(), "acc");
    EXPECT_EQ(save.GetFileTitle(), "elcentro");
    EXPECT_EQ(save.GetFolderPath(), "/data/records");
    const seisplot::FileRequest& request = ui.FileRequests().at(0);
    EXPECT_FALSE(request.open);
    EXPECT_FALSE(request.multiSelect);
    EXPECT_EQ(request.filter, kAccFilter);
    EXPECT_EQ(request.fileName, "record");

    // A dot in the folder is not an extension of the name.
    CFileDialog open(TRUE, "acc", nullptr, OFN_FILEMUSTEXIST, kAccFilter);
    ASSERT_EQ(open.DoModal(), IDOK);
    EXPECT_EQ(open.GetPathName(), "/data/v1.2/kobe.acc");
    // A name with an extension keeps it; a single-file dialog keeps one path.
    ASSERT_EQ(open.DoModal(), IDOK);
    EXPECT_EQ(open.GetPathName(), "/data/records/northridge.txt");
    POSITION position = open.GetStartPosition();
    open.GetNextPathName(position);
    EXPECT_EQ(position, nullptr);
    EXPECT_EQ(open.DoModal(), IDCANCEL);

    // Several files: each gets the default extension.
    open.m_ofn.Flags |= OFN_ALLOWMULTISELECT;
    ASSERT_EQ(open.DoModal(), IDOK);
    EXPECT_TRUE(ui.FileRequests().back().multiSelect);
    std::vector<CString> walked;
    for (position = open.GetStartPosition(); position != nullptr;) {
        walked.push_back(open.GetNextPathName(position));
        ASSERT_LE(walked.size(), 3u);
    }
    EXPECT_EQ(walked, (std::vector<CString>{"/data/a.acc", "/data/b.acc", "/data/c.acc"}));
    EXPECT_EQ(ui.Unanswered(), 0);
}

TEST(ConsoleUserInterface, AnswersFromPresetsWhenNotInteractive) {
    std::istringstream in("cm\nyes\n");
    std::ostringstream err;
    seisplot::ConsoleUserInterface ui(in, err, false);

    // Nobody to ask: the question takes its default, and the text reaches the error stream.
    EXPECT_EQ(ui.ShowMessage("Curves have been changed. Save to disk?", MB_YESNO | MB_DEFBUTTON2),
              IDNO);
    EXPECT_NE(err.str().find("Curves have been changed. Save to disk?"), std::string::npos);
    seisplot::UnitQuestion question = LengthAndForce();
    EXPECT_FALSE(ui.ChooseUnits(question));
    EXPECT_FALSE(ui.ChooseFiles(seisplot::FileRequest{}).has_value());

    // A preset label answers for the quantity that offers it; a list not asked stays put.
    ui.PresetUnit("kN");
    ui.PresetUnit("m");
    EXPECT_TRUE(ui.ChooseUnits(question));
    EXPECT_EQ(question.quantities[0].current, 2);
    EXPECT_EQ(question.quantities[1].current, 0);
    ui.PresetAnswer(IDYES);
    EXPECT_EQ(ui.ShowMessage("Delete?", MB_YESNO | MB_DEFBUTTON2), IDYES);
    ui.PresetFiles({"/data/x.acc"});
    EXPECT_EQ(ui.ChooseFiles(seisplot::FileRequest{}), std::vector<CString>{"/data/x.acc"});
    // Nothing was read from the input.
    EXPECT_EQ(static_cast<std::streamoff>(in.tellg()), 0);
}

TEST(ConsoleUserInterface, AsksAtTheTerminal) {
    std::istringstream in("n\nperhaps\nYES\n\ncm\n\n");
    std::ostringstream err;
    seisplot::ConsoleUserInterface ui(in, err, true);

    EXPECT_EQ(ui.ShowMessage("Curves have been changed. Save to disk?", MB_YESNO), IDNO);
    // An answer that names no button is asked again; Enter takes the default.
    EXPECT_EQ(ui.ShowMessage("Add them all (YES) or just one (NO)?", MB_YESNO | MB_DEFBUTTON2),
              IDYES);
    EXPECT_EQ(ui.ShowMessage("Delete?", MB_YESNO | MB_DEFBUTTON2), IDNO);
    EXPECT_NE(err.str().find("Add them all (YES) or just one (NO)?"), std::string::npos);

    seisplot::UnitQuestion question = LengthAndForce();
    EXPECT_TRUE(ui.ChooseUnits(question));
    EXPECT_EQ(question.quantities[0].current, 1);

    seisplot::FileRequest request;
    request.fileName = "/data/default.acc";
    EXPECT_EQ(ui.ChooseFiles(request), std::vector<CString>{"/data/default.acc"});
    // At the end of the input a question takes its default.
    EXPECT_EQ(ui.ShowMessage("Delete?", MB_YESNOCANCEL | MB_DEFBUTTON3), IDCANCEL);
}

TEST(UserInterface, FontChoiceUnansweredOrImpossibleLeavesTheFont) {
    seisplot::FontChoice choice;
    choice.font.lfHeight = 12;
    choice.colour = 0x0000FF;

    // An empty queue cancels and counts the question.
    ScriptedUserInterface scripted;
    EXPECT_FALSE(scripted.ChooseFont(choice));
    EXPECT_EQ(scripted.Unanswered(), 1);
    EXPECT_EQ(scripted.FontRequests().size(), 1u);

    std::istringstream in("Arial\n");
    std::ostringstream err;
    seisplot::ConsoleUserInterface console(in, err, true);
    EXPECT_FALSE(console.ChooseFont(choice));
    EXPECT_EQ(static_cast<std::streamoff>(in.tellg()), 0);
    EXPECT_FALSE(seisplot::HeadlessUserInterface(nullptr).ChooseFont(choice));
    EXPECT_EQ(choice.font.lfHeight, 12);
    EXPECT_EQ(choice.colour, 0x0000FFu);
}
