// The archive's byte layout, its defences against damaged streams, and CFile on real files.

#include "platform/core/CArchive.h"
#include "platform/core/COleDateTime.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <string>
#include <unistd.h>
#include <vector>

// Every allocation of this test program passes through here, so a test can tell whether a
// damaged length made a reader reserve memory the stream could never fill.
namespace {
std::atomic<std::size_t> g_largestAllocation{0};
} // namespace

void* operator new(std::size_t size) {
    std::size_t largest = g_largestAllocation.load();
    while (size > largest && !g_largestAllocation.compare_exchange_weak(largest, size)) {
    }
    if (void* p = std::malloc(size ? size : 1)) {
        return p;
    }
    throw std::bad_alloc();
}
// GCC pairs these frees with the new expressions whose memory they release and takes them
// for a mismatch.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
#endif
void operator delete(void* p) noexcept {
    std::free(p);
}
void operator delete(void* p, std::size_t) noexcept {
    std::free(p);
}
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic pop
#endif

namespace {

using Bytes = std::vector<BYTE>;

template <class Write> Bytes Stored(Write write) {
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    write(ar);
    ar.Close();
    return file.Data();
}

// The cause of the CArchiveException that `read` raises on `bytes`, or none.
template <class Read> int LoadCause(const Bytes& bytes, Read read) {
    CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    try {
        read(ar);
    } catch (CArchiveException* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return CArchiveException::none;
}

CString Loaded(const Bytes& bytes) {
    CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    CString text;
    ar >> text;
    EXPECT_EQ(ar.BytesLeft(), 0u);
    return text;
}

} // namespace

TEST(Archive, NumbersAreLittleEndian) {
    const Bytes bytes = Stored([](CArchive& ar) {
        ar << BYTE{0xAB} << WORD{0x1234} << std::int16_t{-2} << std::int32_t{0x12345678}
           << DWORD{0xCAFEF00D} << 1.0 << -2.5 << 0.1;
    });
    const Bytes expected = {0xAB, 0x34, 0x12, 0xFE, 0xFF, 0x78, 0x56, 0x34, 0x12, 0x0D,
                            0xF0, 0xFE, 0xCA, 0,    0,    0,    0,    0,    0,    0xF0,
                            0x3F, 0,    0,    0,    0,    0,    0,    0x04, 0xC0, 0x9A,
                            0x99, 0x99, 0x99, 0x99, 0x99, 0xB9, 0x3F};
    EXPECT_EQ(bytes, expected);

    BYTE b = 0;
    WORD w = 0;
    std::int16_t s = 0;
    std::int32_t i = 0;
    DWORD d = 0;
    double x = 0, y = 0, z = 0;
    EXPECT_EQ(LoadCause(bytes, [&](CArchive& ar) { ar >> b >> w >> s >> i >> d >> x >> y >> z; }),
              CArchiveException::none);
    EXPECT_EQ(b, 0xAB);
    EXPECT_EQ(w, 0x1234);
    EXPECT_EQ(s, -2);
    EXPECT_EQ(i, 0x12345678);
    EXPECT_EQ(d, 0xCAFEF00Du);
    EXPECT_EQ(x, 1.0);
    EXPECT_EQ(y, -2.5);
    EXPECT_EQ(z, 0.1);
}

TEST(Archive, StringPrefixChangesFormAtItsBoundaries) {
    struct Case {
        int length;
        Bytes prefix;
    };
    const Case cases[] = {
        {0, {0x00}},
        {1, {0x01}},
        {254, {0xFE}},
        {255, {0xFF, 0xFF, 0x00}},
        {0xFFFD, {0xFF, 0xFD, 0xFF}},
        {0xFFFE, {0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0x00, 0x00}},
        {0x10001, {0xFF, 0xFF, 0xFF, 0x01, 0x00, 0x01, 0x00}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.length);
        CString text;
        for (int i = 0; i < c.length; ++i) {
            text += static_cast<char>('a' + i % 26);
        }
        const Bytes bytes = Stored([&](CArchive& ar) { ar << text; });
        ASSERT_EQ(bytes.size(), c.prefix.size() + static_cast<size_t>(c.length));
        EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + static_cast<long>(c.prefix.size())),
                  c.prefix);
        EXPECT_EQ(std::string(bytes.begin() + static_cast<long>(c.prefix.size()), bytes.end()),
                  text.str());
        EXPECT_EQ(Loaded(bytes), text);
    }
    // Eight-bit characters travel unchanged.
    const CString accented("unit\xC3\xA0 \xFF");
    EXPECT_EQ(Loaded(Stored([&](CArchive& ar) { ar << accented; })), accented);
}

TEST(Archive, ElementCountIsAWordOrAnEscapedDword) {
    const Bytes bytes = Stored([](CArchive& ar) {
        ar.WriteCount(0);
        ar.WriteCount(0xFFFE);
        ar.WriteCount(0xFFFF);
        ar.WriteCount(70000);
    });
    const Bytes expected = {0x00, 0x00, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
                            0x00, 0x00, 0xFF, 0xFF, 0x70, 0x11, 0x01, 0x00};
    EXPECT_EQ(bytes, expected);
    std::vector<DWORD> counts;
    LoadCause(bytes, [&](CArchive& ar) {
        for (int i = 0; i < 4; ++i) {
            counts.push_back(ar.ReadCount());
        }
    });
    EXPECT_EQ(counts, (std::vector<DWORD>{0, 0xFFFE, 0xFFFF, 70000}));
}

TEST(Archive, EveryTruncationRaisesEndOfFile) {
    const CString longText('x', 300);
    const Bytes full = Stored([&](CArchive& ar) {
        ar << BYTE{1} << WORD{2} << std::int32_t{3} << 4.0 << CString("abc") << longText
           << COleDateTime(2016, 10, 30, 12, 0, 0);
        ar.WriteCount(70000);
    });
    const auto readAll = [](CArchive& ar) {
        BYTE b;
        WORD w;
        std::int32_t i;
        double d;
        CString s1, s2;
        COleDateTime date;
        ar >> b >> w >> i >> d >> s1 >> s2 >> date;
        ar.ReadCount();
    };
    ASSERT_EQ(LoadCause(full, readAll), CArchiveException::none);
    for (size_t n = 0; n < full.size(); ++n) {
        const Bytes cut(full.begin(), full.begin() + static_cast<long>(n));
        EXPECT_EQ(LoadCause(cut, readAll), CArchiveException::endOfFile) << "cut at " << n;
    }
}

TEST(Archive, DamagedStringLengthFailsWithoutReservingIt) {
    const auto readString = [](CArchive& ar) {
        CString text;
        ar >> text;
    };
    // A 32-bit length of 0xFFFFFFF0 with three bytes behind it: ten bytes in all.
    const Bytes bytes = {0xFF, 0xFF, 0xFF, 0xF0, 0xFF, 0xFF, 0xFF, 'a', 'b', 'c'};
    g_largestAllocation = 0;
    EXPECT_EQ(LoadCause(bytes, readString), CArchiveException::endOfFile);
    EXPECT_LT(g_largestAllocation.load(), std::size_t{1} << 20);
    // A 16-bit length longer than what follows.
    EXPECT_EQ(LoadCause({0xFF, 0x00, 0x01, 'a'}, readString), CArchiveException::endOfFile);
    // A wide-character marker is not an 8-bit string.
    EXPECT_NE(LoadCause({0xFF, 0xFE, 0xFF, 0x01, 'a'}, readString), CArchiveException::none);
}

TEST(Archive, CheckCountMeasuresWhatIsLeft) {
    const Bytes eight = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(LoadCause(eight,
                        [](CArchive& ar) {
                            seisplot::CheckCount(ar, 2, 4);
                            seisplot::CheckCount(ar, 8, 1);
                            seisplot::CheckCount(ar, 0, 8);
                        }),
              CArchiveException::none);
    EXPECT_EQ(LoadCause(eight, [](CArchive& ar) { seisplot::CheckCount(ar, 3, 4); }),
              CArchiveException::endOfFile);
    // count * size overflows 64 bits: must still be refused.
    EXPECT_EQ(LoadCause(eight, [](CArchive& ar) { seisplot::CheckCount(ar, 1ULL << 61, 8); }),
              CArchiveException::endOfFile);
    // What the archive has already buffered but not handed out still counts as left.
    EXPECT_EQ(LoadCause(eight,
                        [](CArchive& ar) {
                            BYTE b;
                            ar >> b;
                            EXPECT_EQ(ar.BytesLeft(), 7u);
                            seisplot::CheckCount(ar, 7, 1);
                            seisplot::CheckCount(ar, 2, 4);
                        }),
              CArchiveException::endOfFile);
}

class ArchiveFile : public ::testing::Test {
protected:
    void SetUp() override {
        static int serial = 0;
        m_dir = std::filesystem::temp_directory_path() /
                ("seisplot-core-" + std::to_string(::getpid()) + "-" + std::to_string(++serial));
        std::filesystem::create_directories(m_dir);
    }
    void TearDown() override { std::filesystem::remove_all(m_dir); }
    std::string PathOf(const char* name) const { return (m_dir / name).string(); }

    std::filesystem::path m_dir;
};

TEST_F(ArchiveFile, StoresAndLoadsThroughCFile) {
    const std::string path = PathOf("project.spl");
    {
        CFile f;
        ASSERT_TRUE(f.Open(path.c_str(), CFile::modeCreate | CFile::modeWrite));
        CArchive ar(&f, CArchive::store);
        ar << std::int32_t{-2} << CString("El Centro") << COleDateTime(1940, 5, 19, 4, 37, 0);
        ar.Close();
        f.Close();
    }
    std::ifstream raw(path, std::ios::binary);
    const Bytes bytes{std::istreambuf_iterator<char>(raw), std::istreambuf_iterator<char>()};
    ASSERT_EQ(bytes.size(), 4u + 10u + 12u);
    EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 5), (Bytes{0xFE, 0xFF, 0xFF, 0xFF, 9}));
    EXPECT_EQ(std::string(bytes.begin() + 5, bytes.begin() + 14), "El Centro");

    CFile f(path.c_str(), CFile::modeRead);
    CArchive ar(&f, CArchive::load);
    std::int32_t i = 0;
    CString name;
    COleDateTime date;
    ar >> i >> name >> date;
    EXPECT_EQ(i, -2);
    EXPECT_EQ(name, "El Centro");
    EXPECT_EQ(date, COleDateTime(1940, 5, 19, 4, 37, 0));
    EXPECT_EQ(ar.BytesLeft(), 0u);
    BYTE extra;
    try {
        ar >> extra;
        ADD_FAILURE() << "read past the end";
    } catch (CArchiveException* e) {
        EXPECT_EQ(e->m_cause, CArchiveException::endOfFile);
        EXPECT_EQ(e->m_strFileName, path.c_str());
        e->Delete();
    }
    ar.Close();
    f.Close();
}

TEST_F(ArchiveFile, MissingFileIsReportedAsNotFound) {
    const std::string path = PathOf("missing.spl");
    CFile f;
    CFileException error;
    EXPECT_FALSE(f.Open(path.c_str(), CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_FALSE(f.IsOpen());

    try {
        CFile opened(path.c_str(), CFile::modeRead);
        ADD_FAILURE() << "opened a missing file";
    } catch (CFileException* e) {
        EXPECT_EQ(e->m_cause, CFileException::fileNotFound);
        EXPECT_EQ(e->m_strFileName, path.c_str());
        EXPECT_NE(e->GetMessageText().Find(path.c_str()), -1);
        e->Delete();
    }
}
