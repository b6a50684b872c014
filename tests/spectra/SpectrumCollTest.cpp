#include "spectra/SpectrumColl.h"

#include "support/ArchiveBytes.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

using seisplot::test::ArchiveCause;
using seisplot::test::Bytes;
using seisplot::test::LoadObject;
using seisplot::test::StoreObject;
using seisplot::test::StreamBuilder;
using seisplot::test::TempDir;

namespace {

Bytes FileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

Spectrum Made(const char* name, double seed) {
    const double T[] = {0.1, 0.5, 1.0};
    const double v[] = {seed, 2.0 * seed, seed / 4.0};
    Spectrum s(3, const_cast<double*>(T), const_cast<double*>(v));
    s.SetName(name);
    s.Select(2);
    s.Type = Spectrum::kVelocity;
    s.Damp = 0.02 * seed;
    s.Behavior = 1.0 + seed;
    s.Explanation = CString(name) + " made";
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

TEST(SpectrumCollTest, EmptyCollectionFileIsTheWordOneAndAZeroCount) {
    TempDir dir;
    CString path(dir.Path("empty.spc"));
    SpectrumColl empty;
    EXPECT_EQ(empty.WriteToFile(path), 0);
    EXPECT_EQ(FileBytes(path.str()), (Bytes{0x01, 0x00, 0x00, 0x00, 0x00, 0x00}));

    SpectrumColl back = Lettered("xy");
    EXPECT_EQ(back.ReadFromFile(path), 0);
    EXPECT_EQ(back.GetSpectrumNum(), 0u);
    EXPECT_EQ(back.GetPSpectra(), nullptr);
}

TEST(SpectrumCollTest, FileHoldsTheCollectionFormAndReadsBack) {
    TempDir dir;
    CString path(dir.Path("two.spc"));
    SpectrumColl c;
    const Spectrum first = Made("first", 1.5);
    Spectrum second = Made("second", 3.0);
    second.Unselect(2);
    c.AddSpectrum(first);
    c.AddSpectrum(second);
    ASSERT_EQ(c.WriteToFile(path), 0);

    Spectrum a(first);
    const Bytes expected =
        StreamBuilder().Word(1).Dword(2).Append(StoreObject(a)).Append(StoreObject(second)).bytes();
    EXPECT_EQ(FileBytes(path.str()), expected);

    SpectrumColl back = Lettered("z");
    ASSERT_EQ(back.ReadFromFile(path), 0);
    ASSERT_EQ(back.GetSpectrumNum(), 2u);
    EXPECT_EQ(StoreObject(back[0]), StoreObject(a));
    EXPECT_EQ(StoreObject(back[1]), StoreObject(second));
    EXPECT_EQ(back[1].Behavior, 4.0);
    EXPECT_EQ(back.CountSelected(2), 1u);

    // Errors of the file and the archive reach the caller.
    CString missing(dir.Path("missing.spc"));
    try {
        back.ReadFromFile(missing);
        ADD_FAILURE() << "no exception for a missing file";
    } catch (CFileException* e) {
        EXPECT_EQ(e->m_cause, CFileException::fileNotFound);
        e->Delete();
    }
    EXPECT_EQ(back.GetSpectrumNum(), 2u);
    Bytes cut = FileBytes(path.str());
    cut.pop_back();
    CString cutPath(dir.Write("cut.spc", std::string(cut.begin(), cut.end())));
    EXPECT_EQ(ArchiveCause([&] { back.ReadFromFile(cutPath); }), CArchiveException::endOfFile);
    EXPECT_EQ(back.GetSpectrumNum(), 0u);
}

TEST(SpectrumCollTest, StoredCountIsCheckedAgainstTheShortestSpectrum) {
    SpectrumColl c = Lettered("abc");
    const Bytes huge = StreamBuilder().Word(1).Dword(4000000000u).Dword(0).bytes();
    EXPECT_EQ(ArchiveCause([&] { LoadObject(huge, c); }), CArchiveException::endOfFile);
    EXPECT_EQ(c.GetSpectrumNum(), 0u);

    // The check must not refuse the shortest spectrum there is: an unnamed version-101
    // spectrum with an empty explanation and an empty curve, 32 bytes.
    const Bytes shortest = StreamBuilder()
                               .Word(1)
                               .Dword(1)
                               .Text("")
                               .Word(0)
                               .Word(101)
                               .Text("")
                               .Byte(0)
                               .Double(0.05)
                               .Text("")
                               .Word(0)
                               .Word(1)
                               .Byte(9)
                               .Byte(9)
                               .Text("")
                               .Text("")
                               .Dword(0)
                               .Dword(0)
                               .bytes();
    ASSERT_EQ(shortest.size(), 6u + 32u);
    SpectrumColl one;
    EXPECT_EQ(LoadObject(shortest, one), 0u);
    EXPECT_EQ(one.GetSpectrumNum(), 1u);
}

TEST(SpectrumCollTest, FindSpectrumComparesNamesExactly) {
    SpectrumColl c = Lettered("aBb");
    c.AddSpectrum(Made("EC8 soil A", 1.0));
    EXPECT_EQ(c.FindSpectrum("B"), 2u);
    EXPECT_EQ(c.FindSpectrum("b"), 3u);
    EXPECT_EQ(c.FindSpectrum("A"), 0u);
    EXPECT_EQ(c.FindSpectrum("EC8 soil A"), 4u);
    EXPECT_EQ(c.FindSpectrum("ec8 soil a"), 0u);
    EXPECT_EQ(c.FindSpectrum("EC8 soil"), 0u);
}

TEST(SpectrumCollTest, ContainerOperations) {
    SpectrumColl c = Lettered("ABCDE");
    EXPECT_EQ(c[4].GetName(), "E");
    try {
        c[5];
        ADD_FAILURE() << "no Range for index 5";
    } catch (const SpectrumColl::Range& e) {
        EXPECT_EQ(e.Index, 5u);
    }
    EXPECT_EQ(c.GetP(0), nullptr);
    EXPECT_EQ(c.GetP(2), c.GetPSpectra() + 1);

    c.Select(2, 300);
    c.Select(4, 300);
    c.Select(5, 9);
    c.Unselect(5, 9);
    c.Select(3, 9);
    EXPECT_EQ(c.CountSelected(9), 1u);
    EXPECT_EQ(c.DelSpectrum(300), 0);
    EXPECT_EQ(Names(c), (std::vector<CString>{"A", "C", "E"}));
    EXPECT_TRUE(c.GetSpectrum(2).IsSelected(9));
    c.UnSelectAll(9);
    EXPECT_EQ(c.CountSelected(9), 0u);

    const unsigned long removed[] = {5, 2};
    EXPECT_EQ(c.remap(removed, 2, 6), 4u);
    EXPECT_EQ(c.remap(removed, 2, 2), 0u);
    EXPECT_EQ(c.remap(removed, 2, 3), 2u);

    EXPECT_EQ(c.RemoveSpectrum(1), 0);
    EXPECT_EQ(c.RemoveSpectrum(3), 1);
    EXPECT_EQ(Names(c), (std::vector<CString>{"C", "E"}));

    SpectrumColl copy(c);
    copy[0].SetName("changed");
    EXPECT_EQ(c[0].GetName(), "C");
    SpectrumColl assigned = Lettered("XYZ");
    const SpectrumColl result = (assigned = c);
    EXPECT_EQ(Names(assigned), Names(c));
    EXPECT_EQ(Names(result), Names(c));

    c += c;
    EXPECT_EQ(Names(c), (std::vector<CString>{"C", "E", "C", "E"}));
    EXPECT_EQ(c.IncreaseStruct(5), 0);
    EXPECT_EQ(c[4].GetExplanation(), "---"); // a default spectrum
    EXPECT_EQ(c.IncreaseStruct(1), 0);
    EXPECT_EQ(Names(c), (std::vector<CString>{"C"}));
    c.Alloc(2);
    EXPECT_EQ(Names(c), (std::vector<CString>{"", ""}));
    c.Free();
    EXPECT_EQ(c.GetPSpectra(), nullptr);

    EXPECT_STREQ(c.GetRuntimeClass()->m_lpszClassName, "SpectrumColl");
    EXPECT_EQ(c.GetRuntimeClass()->m_wSchema, 0u);
    CObject* made = CRuntimeClass::CreateObject("SpectrumColl");
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(SpectrumColl)));
    delete made;
}
