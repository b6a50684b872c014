// CreateAvi: the command line it starts FrameStitch with, the messages when it cannot, and
// which files and folders it deletes afterwards.

#include "movie/CreateAvi.h"

#include "platform/core/ScriptedUserInterface.h"
#include "platform/gdi/CWnd.h"

#include "support/DrawProbes.h"
#include "support/MovieReader.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using seisplot::test::TempDir;
namespace fs = std::filesystem;

// Messages when the tool cannot start: the fixed text, then the whole command line.
std::vector<CString> StartFailure(const CString& tools, const CString& frames, int fpi, int nth) {
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope(ui);
    CString toolFolder = tools;
    CString framesFolder = frames;
    EXPECT_EQ(CreateAvi(toolFolder, framesFolder, 1, fpi, nth), 1);
    return ui.MessageTexts();
}

TEST(CreateAvi, AToolThatCannotStartShowsItsCommandLine) {
    TempDir dir;
    const CString tools = dir.Path("no-tools").c_str();
    const CString frames = dir.Path("my frames").c_str();
    EXPECT_EQ(StartFailure(tools, frames, 1, 1),
              (std::vector<CString>{"Unable to run process:",
                                    tools + "/FrameStitch \"" + frames + "\""}));
    EXPECT_EQ(StartFailure(tools, frames, 5, 2),
              (std::vector<CString>{"Unable to run process:",
                                    tools + "/FrameStitch \"" + frames + "\" -fpi 5 -nth 2"}));
    EXPECT_EQ(StartFailure(tools, frames, 1, 3)[1],
              tools + "/FrameStitch \"" + frames + "\" -nth 3");
}

#ifdef SEISPLOT_FRAMESTITCH_DIR
// Writes `count` JPEG pictures of 64 by 48 into `folder`.
void WritePictures(const TempDir& dir, const std::string& folder, int count) {
    fs::create_directories(dir.Path(folder));
    seisplot::test::Canvas canvas(64, 48);
    for (int i = 1; i <= count; ++i) {
        canvas.Fill(CRect(0, 0, 64, 48), RGB(40 * i, 0, 255 - 40 * i));
        const std::string name = dir.Path(folder + "/frame" + std::to_string(i) + ".jpg");
        ASSERT_TRUE(seisplot::SaveBitmap(canvas.bitmap, name.c_str(), "JPG"));
    }
}

TEST(CreateAvi, RunsFrameStitchThenDeletesTheFramesAndAnEmptyFolder) {
    TempDir dir;
    CString tools = SEISPLOT_FRAMESTITCH_DIR;
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope(ui);

    // Three pictures, each for two frames, every second one taken: pictures 1 and 3.
    WritePictures(dir, "kept", 3);
    dir.Write("kept/notes.txt", "not a frame");
    CString kept = dir.Path("kept").c_str();
    EXPECT_EQ(CreateAvi(tools, kept, 1, 2, 2), 0);
    const seisplot::test::Movie movie = seisplot::test::ReadMovie(dir.Path("kept.avi"));
    ASSERT_EQ(movie.pictures.size(), 4u);
    EXPECT_EQ(movie.width, 64);
    EXPECT_LT(movie.pictures[1].At(10, 10)[0], movie.pictures[2].At(10, 10)[0]); // redder later
    EXPECT_EQ(fs::directory_iterator(dir.Path("kept"))->path().filename(), "notes.txt");
    EXPECT_EQ(std::distance(fs::directory_iterator(dir.Path("kept")), fs::directory_iterator()), 1);

    WritePictures(dir, "gone", 2);
    CString gone = dir.Path("gone").c_str();
    EXPECT_EQ(CreateAvi(tools, gone, 1, 1, 1), 0);
    EXPECT_FALSE(fs::exists(dir.Path("gone")));
    EXPECT_EQ(seisplot::test::ReadMovie(dir.Path("gone.avi")).pictures.size(), 2u);

    // Nothing to delete: the folder stays and the call says so; without deleting, all stays.
    CString empty = dir.Path("empty").c_str();
    fs::create_directory(dir.Path("empty"));
    EXPECT_EQ(CreateAvi(tools, empty, 1, 1, 1), 1);
    EXPECT_TRUE(fs::exists(dir.Path("empty")));
    WritePictures(dir, "again", 1);
    CString again = dir.Path("again").c_str();
    EXPECT_EQ(CreateAvi(tools, again, 0, 1, 1), 0);
    EXPECT_TRUE(fs::exists(dir.Path("again/frame1.jpg")));
    EXPECT_TRUE(ui.Messages().empty());
}
#endif

} // namespace
