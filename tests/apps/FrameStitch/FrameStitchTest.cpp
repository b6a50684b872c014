// FrameStitch, run as built: pictures in name order with -nth and -fpi, its summary line, and
// its refusals.

#include "../seisplot/CliRunner.h"

#include "platform/gdi/CWnd.h"

#include "support/DrawProbes.h"
#include "support/MovieReader.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>

using seisplot::test::CliResult;
using seisplot::test::RunCli;
using seisplot::test::TempDir;
using testing::HasSubstr;

namespace {

// Picture i of `count` in `folder`, named frame<i>.jpg, all of one colour whose red is 20·i.
void WritePictures(const TempDir& dir, const std::string& folder, int count) {
    std::filesystem::create_directories(dir.Path(folder));
    seisplot::test::Canvas canvas(64, 48);
    for (int i = 1; i <= count; ++i) {
        canvas.Fill(CRect(0, 0, 64, 48), RGB(20 * i, 100, 50));
        const std::string name = dir.Path(folder + "/frame" + std::to_string(i) + ".jpg");
        ASSERT_TRUE(seisplot::SaveBitmap(canvas.bitmap, name.c_str(), "JPG"));
    }
}

TEST(FrameStitch, TakesEveryNthPictureInNameOrderForFpiFrames) {
    TempDir dir;
    WritePictures(dir, "shots", 11);
    const std::string movie = dir.Path("shots.avi");
    // frame10 and frame11 come after frame9, not after frame1.
    const CliResult r = RunCli({dir.Path("shots"), "-nth", "5", "-fpi", "2"}, dir.Path(""));
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "FrameStitch: 11 pictures, 3 taken, 6 frames of 64x48 at 25 fps (0.24 s, "
                     "MPG4) -> " +
                         movie + "\n");
    const seisplot::test::Movie m = seisplot::test::ReadMovie(movie);
    ASSERT_EQ(m.pictures.size(), 6u);
    const int reds[] = {20, 20, 120, 120, 220, 220}; // pictures 1, 6 and 11
    for (int k = 0; k < 6; ++k) {
        EXPECT_NEAR(m.pictures[k].At(30, 20)[0], reds[k], 8) << "frame " << k;
    }
}

TEST(FrameStitch, SaysWhyItMakesNoMovie) {
    TempDir dir;
    std::filesystem::create_directories(dir.Path("empty"));
    dir.Write("empty/notes.txt", "no pictures here");
    CliResult r = RunCli({dir.Path("empty")}, dir.Path(""));
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err,
              "FrameStitch: no JPEG pictures (*.jpg, *.jpeg) in " + dir.Path("empty") + "\n");

    WritePictures(dir, "broken", 3);
    dir.Write("broken/frame2.jpg", "not a picture");
    r = RunCli({dir.Path("broken"), "-codec", "MJPG"}, dir.Path(""));
    EXPECT_EQ(r.status, 1);
    EXPECT_THAT(r.err, HasSubstr("FrameStitch: cannot read the picture " +
                                 dir.Path("broken/frame2.jpg") + ": "));
    EXPECT_FALSE(std::filesystem::exists(dir.Path("broken.avi"))); // no half movie

    r = RunCli({dir.Path("broken"), "-fpi", "0"}, dir.Path(""));
    EXPECT_EQ(r.status, 2);
    EXPECT_THAT(r.err, HasSubstr("-fpi needs a whole number from 1 to 100000, not '0'"));
}

} // namespace
