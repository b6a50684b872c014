// movie: the record drawn over time, read back frame by frame.

#include "CliFixtures.h"

#include "support/MovieReader.h"

#include <gmock/gmock.h>

using seisplot::test::CliResult;
using seisplot::test::EventSet;
using testing::HasSubstr;

namespace {

// Pixels of one colour in a picture.
int Count(const seisplot::test::RgbPicture& p, uint8_t r, uint8_t g, uint8_t b) {
    int n = 0;
    for (std::size_t i = 0; i < p.rgb.size(); i += 3) {
        n += p.rgb[i] == r && p.rgb[i + 1] == g && p.rgb[i + 2] == b;
    }
    return n;
}

TEST(CliMovie, DrawsTheRecordUpToEachInstantInRealTime) {
    EventSet set;
    const std::string movie = set.dir.Path("record.avi");
    const CliResult r = set.Run(
        {"movie", set.set, "2", "-o", movie, "--fps", "5", "--codec", "DIB", "--size", "200x150"});
    ASSERT_EQ(r.status, 0) << r.err;
    // 10 s of record at 5 frames a second: a frame at 0, 0.2, ..., 10 s.
    EXPECT_EQ(r.out, "Movie of record 2 (EV_N.ASC) written to " + movie +
                         ": 51 frames of 200x150 at 5 fps (10.20 s, DIB )\n");
    const seisplot::test::Movie m = seisplot::test::ReadMovie(movie);
    EXPECT_EQ(m.handler, seisplot::test::Fourcc("DIB "));
    EXPECT_EQ(m.rate, 5u);
    EXPECT_EQ(m.width, 200);
    EXPECT_EQ(m.height, 150);
    ASSERT_EQ(m.pictures.size(), 51u);
    // The drawn part (dark blue) grows over the whole record (light blue-grey) and covers it
    // at the end: the drawn part lies exactly on the plot's axes.
    const auto blue = [&](int k) { return Count(m.pictures[k], 0, 0, 0x80); };
    const auto grey = [&](int k) { return Count(m.pictures[k], 190, 200, 220); };
    EXPECT_EQ(blue(0), 0);
    EXPECT_GT(grey(0), 300);
    EXPECT_LT(blue(10), blue(25));
    EXPECT_LT(blue(25), blue(50));
    EXPECT_GT(grey(25), 0);
    EXPECT_EQ(grey(50), 0);
}

TEST(CliMovie, RefusesWhatItCannotWriteBeforeAnyWork) {
    EventSet set;
    CliResult r = set.Run({"movie", set.set, "1", "-o", set.dir.Path("m.avi"), "--codec", "ABCD"});
    EXPECT_EQ(r.status, 2);
    EXPECT_THAT(r.err, HasSubstr("--codec ABCD: this system writes "));
    EXPECT_THAT(r.err, HasSubstr("MPG4"));
    r = set.Run({"movie", set.set, "1", "-o", set.dir.Path("m.mp4")});
    EXPECT_EQ(r.status, 2);
    EXPECT_THAT(r.err, HasSubstr("m.mp4: the movie must be an .avi file"));
    EXPECT_FALSE(std::filesystem::exists(set.dir.Path("m.avi")));
}

} // namespace
