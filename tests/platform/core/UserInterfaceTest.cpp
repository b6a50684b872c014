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

} // namespace

TEST(UserInterface, DefaultButtonHonoursDefButtonFlags) {
    using seisplot::DefaultButton;
    EXPECT_EQ(DefaultButton(MB_OK), IDOK);
    EXPECT_EQ(DefaultButton(MB_YESNO), IDYES);
    EXPECT_EQ(DefaultButton(MB_YESNO | MB_DEFBUTTON2 | MB_ICONQUESTION), IDNO);
    EXPECT_EQ(DefaultButton(MB_YESNOCANCEL | MB_DEFBUTTON3), IDCANCEL);
    EXPECT_EQ(DefaultButton(MB_OKCANCEL | MB_DEFBUTTON2), IDCANCEL);
    EXPECT_EQ(DefaultButton(MB_RETRYCANCEL | MB_DEFBUTTON3), IDRETRY); // no third button
    EXPECT_EQ(seisplot::MessageButtons(MB_YESNOCANCEL | MB_ICONWARNING),
              (std::vector<int>{IDYES, IDNO, IDCANCEL}));
}

TEST(UserInterface, ScriptedAnswersQuestionsFromItsQueue) {
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
    }
    EXPECT_NE(&seisplot::CurrentUserInterface(), &ui);

    const auto& messages = ui.Messages();
    ASSERT_EQ(messages.size(), 5u);
    EXPECT_EQ(messages[0].text, "Curves have been changed. Save to disk?");
    EXPECT_EQ(messages[0].type, MB_YESNO);
    EXPECT_EQ(messages[0].answer, IDNO);
    EXPECT_EQ(messages[1].text, "Warning: maxT or dT null!");
    EXPECT_EQ(messages[1].type, MB_ICONEXCLAMATION);
    EXPECT_EQ(messages[2].type, MB_YESNOCANCEL);
    EXPECT_EQ(messages[3].type, MB_YESNO | MB_DEFBUTTON2);
    EXPECT_EQ(ui.MessageTexts()[4], "Delete?");
}

TEST(UserInterface, HeadlessTakesDefaultsAndNeverBlocks) {
    seisplot::HeadlessUserInterface ui(nullptr);
    EXPECT_EQ(ui.ShowMessage("Delete?", MB_YESNO | MB_DEFBUTTON2), IDNO);
    EXPECT_FALSE(ui.ChooseFiles(seisplot::FileRequest{}).has_value());
    ASSERT_EQ(ui.Messages().size(), 1u);
    EXPECT_EQ(ui.Messages()[0].text, "Delete?");
}

TEST(FileDialog, ParsesFilters) {
    const auto one = seisplot::ParseFileFilter(kAccFilter);
    ASSERT_EQ(one.size(), 1u);
    EXPECT_EQ(one[0].description, "Accelerograms ACC (*.acc)");
    EXPECT_EQ(one[0].patterns, (std::vector<CString>{"*.acc"}));

    const auto two =
        seisplot::ParseFileFilter("Spectra (*.spe;*.txt)|*.spe; *.txt|All files (*.*)|*.*||");
    ASSERT_EQ(two.size(), 2u);
    EXPECT_EQ(two[0].description, "Spectra (*.spe;*.txt)");
    EXPECT_EQ(two[0].patterns, (std::vector<CString>{"*.spe", "*.txt"}));
    EXPECT_EQ(two[1].description, "All files (*.*)");
    EXPECT_EQ(two[1].patterns, (std::vector<CString>{"*.*"}));
}

TEST(FileDialog, ReturnsQueuedPathsWithTheDefaultExtension) {
    ScriptedUserInterface ui;
    ScopedUserInterface scope(ui);
    ui.QueueFiles({"/data/records/elcentro"});
    ui.QueueFiles({"/data/v1.2/kobe"});
    ui.QueueFiles({"/data/records/northridge.txt", "/data/records/ignored.acc"});
    ui.QueueCancelFiles();

    CFileDialog save(FALSE, "*.acc", "record", OFN_OVERWRITEPROMPT, kAccFilter);
    ASSERT_EQ(save.DoModal(), IDOK);
    EXPECT_EQ(save.GetPathName(), "/data/records/elcentro.acc");
    EXPECT_EQ(save.GetFileName(), "elcentro.acc");
    EXPECT_EQ(save.GetFileExt(), "acc");
    EXPECT_EQ(save.GetFileTitle(), "elcentro");
    EXPECT_EQ(save.GetFolderPath(), "/data/records");

    ASSERT_EQ(ui.FileRequests().size(), 1u);
    const seisplot::FileRequest& request = ui.FileRequests()[0];
    EXPECT_FALSE(request.open);
    EXPECT_FALSE(request.multiSelect);
    EXPECT_EQ(request.filter, kAccFilter);
    EXPECT_EQ(request.fileName, "record");
    EXPECT_EQ(request.flags, OFN_OVERWRITEPROMPT);

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
    EXPECT_EQ(ui.Unanswered(), 0);
}

TEST(FileDialog, WalksMultipleSelection) {
    ScriptedUserInterface ui;
    ScopedUserInterface scope(ui);
    const std::vector<CString> chosen = {"/data/a.acc", "/data/b", "/data/c.acc"};
    ui.QueueFiles(chosen);

    CFileDialog dialog(TRUE, "*.acc", nullptr, OFN_HIDEREADONLY, kAccFilter);
    dialog.m_ofn.Flags |= OFN_ALLOWMULTISELECT;
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_TRUE(ui.FileRequests().at(0).multiSelect);

    std::vector<CString> walked;
    for (POSITION position = dialog.GetStartPosition(); position != nullptr;) {
        walked.push_back(dialog.GetNextPathName(position));
        ASSERT_LE(walked.size(), 3u);
    }
    EXPECT_EQ(walked, (std::vector<CString>{"/data/a.acc", "/data/b.acc", "/data/c.acc"}));
}

TEST(WaitCursor, BeginAndEndBalance) {
    ScriptedUserInterface ui;
    ScopedUserInterface scope(ui);
    {
        CWaitCursor outer;
        EXPECT_EQ(ui.WaitDepth(), 1);
        {
            CWaitCursor inner;
            EXPECT_EQ(ui.WaitDepth(), 2);
        }
        EXPECT_EQ(ui.WaitDepth(), 1);
    }
    EXPECT_EQ(ui.WaitDepth(), 0);
    EXPECT_EQ(ui.WaitCount(), 2);
}

namespace {

seisplot::UnitQuestion LengthAndForce() {
    seisplot::UnitQuestion question;
    question.title = "Set the units to be used to read from file";
    question.quantities.push_back({"Length", {"mm", "cm", "m"}, 0, true});
    question.quantities.push_back({"Force", {"N", "kN"}, 0, false});
    return question;
}

} // namespace

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
    EXPECT_EQ(question.quantities[0].current, 0);
    EXPECT_FALSE(ui.ChooseFiles(seisplot::FileRequest{}).has_value());

    // A preset label answers for the quantity that offers it; a list not asked stays put.
    ui.PresetUnit("kN");
    ui.PresetUnit("m");
    question = LengthAndForce();
    EXPECT_TRUE(ui.ChooseUnits(question));
    EXPECT_EQ(question.quantities[0].current, 2);
    EXPECT_EQ(question.quantities[1].current, 0);

    ui.PresetAnswer(IDYES);
    EXPECT_EQ(ui.ShowMessage("Delete?", MB_YESNO | MB_DEFBUTTON2), IDYES);
    ui.PresetFiles({"/data/x.acc"});
    const auto files = ui.ChooseFiles(seisplot::FileRequest{});
    ASSERT_TRUE(files.has_value());
    EXPECT_EQ(*files, (std::vector<CString>{"/data/x.acc"}));
    // Nothing was read from the input.
    EXPECT_EQ(static_cast<std::streamoff>(in.tellg()), 0);
}

TEST(ConsoleUserInterface, AsksAtTheTerminal) {
    std::istringstream in("n\nperhaps\nYES\n\ncm\n\n");
    std::ostringstream err;
    seisplot::ConsoleUserInterface ui(in, err, true);

    EXPECT_EQ(ui.ShowMessage("Are you sure you wish to delete this accelerogram from the list?",
                             MB_YESNO),
              IDNO);
    // An answer that names no button is asked again.
    EXPECT_EQ(ui.ShowMessage("Add them all (YES) or just one (NO)?", MB_YESNO | MB_DEFBUTTON2),
              IDYES);
    // Enter takes the default.
    EXPECT_EQ(ui.ShowMessage("Delete?", MB_YESNO | MB_DEFBUTTON2), IDNO);

    seisplot::UnitQuestion question = LengthAndForce();
    EXPECT_TRUE(ui.ChooseUnits(question));
    EXPECT_EQ(question.quantities[0].current, 1);
    EXPECT_EQ(question.quantities[1].current, 0);

    seisplot::FileRequest request;
    request.fileName = "/data/default.acc";
    const auto files = ui.ChooseFiles(request);
    ASSERT_TRUE(files.has_value());
    EXPECT_EQ(*files, (std::vector<CString>{"/data/default.acc"}));
    EXPECT_NE(err.str().find("Are you sure you wish to delete this accelerogram from the list?"),
              std::string::npos);

    // At the end of the input a question takes its default.
    EXPECT_EQ(ui.ShowMessage("Delete?", MB_YESNOCANCEL | MB_DEFBUTTON3), IDCANCEL);
}
