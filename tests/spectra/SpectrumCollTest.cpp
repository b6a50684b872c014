// The spectrum collection shares its container with the record collection, whose tests cover
// that container in full; these cover what is the spectrum collection's own.

#include "spectra/SpectrumColl.h"

#include "support/ArchiveBytes.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace seisplot::test;

namespace {

Spectrum Made(const char* name, double seed) {
    double T[] = {0.1, 0.5, 1.0};
    double v[] = {seed, 2.0 * seed, seed / 4.0};
    Spectrum s(3, T, v);
    s.SetName(name);
    s.Select(2);
    s.Type = Spectrum::kVelocity;
    s.Damp = 0.02 * seed;
    return s;
}

SpectrumColl Lettered(const char* letters) {
    SpectrumColl c;
    for (const char* p = letters; *p; ++p) {
        Spectrum s;
        s.SetName(CString(*p));
        c.AddSpectrum(s);
    }
    return c;
}

std::vector<CString> Names(const SpectrumColl& c) {
    std::vector<CString> names;
    for (unsigned long i = 1; i <= c.GetSpectrumNum(); ++i) {
        names.push_back(c.GetSpectrum(i).GetName());
    }
    return names;
}

} // namespace

TEST(SpectrumCollTest, FileHoldsTheCollectionFormAndReadsBack) {
    TempDir dir;
    CString path(dir.Path("two.spc"));
    SpectrumColl c;
    Spectrum first = Made("first", 1.5);
    Spectrum second = Made("second", 3.0);
    second.Unselect(2);
    c.AddSpectrum(first);
    c.AddSpectrum(second);
    ASSERT_EQ(c.WriteToFile(path), 0);
    const Bytes bytes = FileBytes(path.str());
    StreamBuilder expected;
    expected.Word(1).Dword(2).Append(StoreObject(first)).Append(StoreObject(second));
    EXPECT_EQ(bytes, expected.bytes());

    SpectrumColl back = Lettered("z");
    ASSERT_EQ(back.ReadFromFile(path), 0);
    ASSERT_EQ(back.GetSpectrumNum(), 2u);
    EXPECT_EQ(StoreObject(back[0]), StoreObject(first));
    EXPECT_EQ(StoreObject(back[1]), StoreObject(second));

    CString cut(dir.Write("cut.spc", std::string(bytes.begin(), bytes.end() - 1)));
    EXPECT_EQ(ArchiveCause([&] { back.ReadFromFile(cut); }), CArchiveException::endOfFile);
    EXPECT_EQ(back.GetSpectrumNum(), 0u);
}

TEST(SpectrumCollTest, StoredCountIsCheckedAgainstTheShortestSpectrum) {
    SpectrumColl c = Lettered("abc");
    const Bytes huge = StreamBuilder().Word(1).Dword(4000000000u).Dword(0).bytes();
    EXPECT_EQ(ArchiveCause([&] { LoadObject(huge, c); }), CArchiveException::endOfFile);
    EXPECT_EQ(c.GetSpectrumNum(), 0u);

    // The check must not refuse the shortest spectrum there is, 32 bytes: an unnamed
    // version-101 spectrum (no behaviour factor) with an empty explanation and an empty curve.
    StreamBuilder shortest;
    shortest.Word(1).Dword(1).Text("").Word(0).Word(101).Text("").Byte(0).Double(0.05);
    shortest.Text("").Word(0).Word(1).Byte(9).Byte(9).Text("").Text("").Dword(0).Dword(0);
    ASSERT_EQ(shortest.bytes().size(), 6u + 32u);
    EXPECT_EQ(LoadObject(shortest.bytes(), c), 0u);
    EXPECT_EQ(c.GetSpectrumNum(), 1u);
}

TEST(SpectrumCollTest, FinderDefaultsCopiesAndClass) {
    SpectrumColl c = Lettered("aBb");
    c.AddSpectrum(Made("EC8 soil A", 1.0));
    EXPECT_EQ(c.FindSpectrum("B"), 2u);
    EXPECT_EQ(c.FindSpectrum("b"), 3u);
    EXPECT_EQ(c.FindSpectrum("EC8 soil A"), 4u);
    EXPECT_EQ(c.FindSpectrum("ec8 soil a"), 0u);
    EXPECT_EQ(c.FindSpectrum("EC8 soil"), 0u);
    EXPECT_THROW(c[4], SpectrumColl::Range);

    SpectrumColl copy(c);
    SpectrumColl assigned = Lettered("XYZ");
    const SpectrumColl result = (assigned = c);
    c.DelSpectrum(2); // the view Made() selects
    EXPECT_EQ(Names(c), (std::vector<CString>{"a", "B", "b"}));
    EXPECT_EQ(Names(copy), (std::vector<CString>{"a", "B", "b", "EC8 soil A"}));
    EXPECT_EQ(Names(assigned), Names(copy));
    EXPECT_EQ(Names(result), Names(copy));
    EXPECT_EQ(c.IncreaseStruct(5), 0);
    EXPECT_EQ(c[4].GetExplanation(), "---"); // a default spectrum

    CObject* made = CRuntimeClass::CreateObject("SpectrumColl");
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(SpectrumColl)));
    EXPECT_STREQ(made->GetRuntimeClass()->m_lpszClassName, "SpectrumColl");
    delete made;
}
