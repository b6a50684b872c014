// The font descriptor: its stored record, copies and the font chooser.

#include "draw/font/SFont.h"

#include "platform/core/ScriptedUserInterface.h"
#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

using seisplot::test::Bytes;
using seisplot::test::StreamBuilder;

namespace {

constexpr const char* kFace31 = "Courier New Bold Condensed Narr";

void ExpectSameFont(const SFont& a, const SFont& b) {
    EXPECT_EQ(a.lfHeight, b.lfHeight);
    EXPECT_EQ(a.lfWidth, b.lfWidth);
    EXPECT_EQ(a.lfEscapement, b.lfEscapement);
    EXPECT_EQ(a.lfOrientation, b.lfOrientation);
    EXPECT_EQ(a.lfWeight, b.lfWeight);
    EXPECT_EQ(a.lfItalic, b.lfItalic);
    EXPECT_EQ(a.lfUnderline, b.lfUnderline);
    EXPECT_EQ(a.lfStrikeOut, b.lfStrikeOut);
    EXPECT_EQ(a.lfCharSet, b.lfCharSet);
    EXPECT_EQ(a.lfOutPrecision, b.lfOutPrecision);
    EXPECT_EQ(a.lfClipPrecision, b.lfClipPrecision);
    EXPECT_EQ(a.lfQuality, b.lfQuality);
    EXPECT_EQ(a.lfPitchAndFamily, b.lfPitchAndFamily);
    EXPECT_STREQ(a.lfFaceName, b.lfFaceName);
    EXPECT_EQ(a.Color, b.Color);
}

SFont Distinct() {
    SFont f(-17, 0x123456);
    f.lfWidth = 5;
    f.lfEscapement = -900;
    f.lfOrientation = 450;
    f.lfWeight = 700;
    f.lfItalic = 1;
    f.lfUnderline = 2;
    f.lfStrikeOut = 3;
    f.lfCharSet = 161;
    f.lfOutPrecision = 4;
    f.lfClipPrecision = 5;
    f.lfQuality = 6;
    f.lfPitchAndFamily = 0x31;
    std::strcpy(f.lfFaceName, kFace31);
    return f;
}

} // namespace

TEST(SFont, DefaultsAndTheStoredRecord) {
    SFont def;
    StreamBuilder expected;
    expected.Int(12).Int(0).Int(0).Int(0).Int(400);
    for (int i = 0; i < 8 + 32; ++i) {
        expected.Byte(0);
    }
    expected.Dword(0x0000FF);
    EXPECT_EQ(seisplot::test::StoreObject(def), expected.bytes());

    const SFont black(20, 0);
    EXPECT_EQ(black.lfHeight, 20);
    EXPECT_EQ(black.lfWeight, 400);
    EXPECT_EQ(black.Color, 0u);
    EXPECT_STREQ(black.lfFaceName, "");

    // Created by name from an archive's class record, as the default descriptor.
    EXPECT_EQ(SFont::classSFont.m_wSchema, 0u);
    std::unique_ptr<CObject> made(CRuntimeClass::CreateObject("SFont"));
    ASSERT_NE(made, nullptr);
    ASSERT_EQ(made->GetRuntimeClass(), RUNTIME_CLASS(SFont));
    ExpectSameFont(*static_cast<SFont*>(made.get()), def);
}

TEST(SFont, StoresAndLoadsEveryFieldAndStopsShort) {
    SFont original = Distinct();
    const Bytes bytes = seisplot::test::StoreObject(original);
    ASSERT_EQ(bytes.size(), 64u);
    EXPECT_EQ(bytes[0], 0xEF); // -17, little-endian
    EXPECT_EQ(bytes[27], 0x31);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&bytes[28])), kFace31);
    EXPECT_EQ(bytes[60], 0x56);

    SFont loaded;
    EXPECT_EQ(seisplot::test::LoadObject(bytes, loaded), 0u);
    ExpectSameFont(loaded, original);
    ExpectSameFont(SFont(original), original);

    // A shorter name copied over a longer one is stored with zeros after it.
    std::strcpy(original.lfFaceName, "Arial");
    const Bytes reused = seisplot::test::StoreObject(original);
    Bytes face(LF_FACESIZE, 0);
    std::memcpy(face.data(), "Arial", 5);
    EXPECT_EQ(Bytes(reused.begin() + 28, reused.begin() + 60), face);

    // A reader ignores whatever the face buffer holds after its NUL.
    Bytes dirty = bytes;
    dirty[28 + 3] = 0;
    dirty[28 + 10] = 'x';
    SFont cut;
    seisplot::test::LoadObject(dirty, cut);
    EXPECT_STREQ(cut.lfFaceName, "Cou");
    EXPECT_EQ(cut.Color, 0x123456u);

    // A record cut short raises the end-of-file archive exception.
    const Bytes shortRecord(bytes.begin(), bytes.end() - 1);
    EXPECT_EQ(seisplot::test::ArchiveCause([&] {
                  SFont f;
                  seisplot::test::LoadObject(shortRecord, f);
              }),
              CArchiveException::endOfFile);
}

TEST(SFont, ChooserCancelledChangesNothingConfirmedTakesFontAndColour) {
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope(ui);
    SFont font = Distinct();
    const SFont before = font;

    ui.QueueCancelFont();
    EXPECT_EQ(font.Get(nullptr, font.GetFont(), font.Color), 0);
    ExpectSameFont(font, before);
    ASSERT_EQ(ui.FontRequests().size(), 1u);
    EXPECT_EQ(ui.FontRequests()[0].font.lfHeight, -17);
    EXPECT_STREQ(ui.FontRequests()[0].font.lfFaceName, kFace31);
    EXPECT_EQ(ui.FontRequests()[0].colour, 0x123456u);

    // The chosen face fills the whole buffer: it is taken as a string of 31 characters.
    seisplot::FontChoice chosen;
    chosen.font.lfHeight = 14;
    chosen.font.lfWeight = 400;
    chosen.font.lfItalic = 1;
    std::memset(chosen.font.lfFaceName, 'A', LF_FACESIZE);
    chosen.colour = 0x00FF00;
    ui.QueueFont(chosen);
    EXPECT_EQ(font.Get(nullptr, font.GetFont(), font.Color), 1);
    EXPECT_EQ(font.lfHeight, 14);
    EXPECT_EQ(font.lfWeight, 400);
    EXPECT_EQ(font.lfItalic, 1);
    EXPECT_EQ(font.lfEscapement, 0);
    EXPECT_EQ(std::string(font.lfFaceName), std::string(31, 'A'));
    EXPECT_EQ(font.Color, 0x00FF00u);
    EXPECT_EQ(ui.Unanswered(), 0);
}

TEST(SFont, AssignmentCopiesAndSelfAssignmentChangesNothing) {
    SFont font = Distinct();
    const SFont& same = font;
    const SFont copy = (font = same);
    ExpectSameFont(font, Distinct());
    ExpectSameFont(copy, Distinct());

    SFont other;
    other = font;
    ExpectSameFont(other, font);
}
