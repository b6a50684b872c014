// The archive's byte layout, its defences against damaged streams, and CFile on real files.

#include "platform/core/CArchive.h"
#include "platform/core/COleDateTime.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>
#include <tuple>
#include <unistd.h>
#include <utility>
#include <vector>

// Every allocation of this program passes through here, so a test can tell whether a damaged
// length made a reader reserve memory the stream could never fill.
static std::size_t g_largestAllocation = 0;

void* operator new(std::size_t size) {
    g_largestAllocation = std::max(g_largestAllocation, size);
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

const auto kReadString = [](CArchive& ar) {
    CString text;
    ar >> text;
};

} // namespace

TEST(Archive, NumbersAndCountsAreLittleEndianAndEveryTruncationRaisesEndOfFile) {
    const Bytes full = Stored([](CArchive& ar) {
        ar << BYTE{0xAB} << WORD{0x1234} << std::int16_t{-2} << std::int32_t{0x12345678}
           << DWORD{0xCAFEF00D} << -2.5 << 0.1;
        for (DWORD count : {0u, 0xFFFEu, 0xFFFFu, 70000u}) {
            ar.WriteCount(count);
        }
        ar << CString('x', 300) << COleDateTime(2016, 10, 30, 12, 0, 0);
    });
    // A count below 0xFFFF is a word; from 0xFFFF on it is 0xFFFF and then a dword.
    const Bytes head = {0xAB, 0x34, 0x12, 0xFE, 0xFF, 0x78, 0x56, 0x34, 0x12, 0x0D, 0xF0, 0xFE,
                        0xCA, 0,    0,    0,    0,    0,    0,    0x04, 0xC0, 0x9A, 0x99, 0x99,
                        0x99, 0x99, 0x99, 0xB9, 0x3F, 0x00, 0x00, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF,
                        0xFF, 0x00, 0x00, 0xFF, 0xFF, 0x70, 0x11, 0x01, 0x00};
    ASSERT_EQ(full.size(), head.size() + 3 + 300 + 12);
    EXPECT_EQ(Bytes(full.begin(), full.begin() + static_cast<long>(head.size())), head);

    std::tuple<BYTE, WORD, std::int16_t, std::int32_t, DWORD, double, double> numbers{};
    std::vector<DWORD> counts;
    CString text;
    COleDateTime date;
    const auto readAll = [&](CArchive& ar) {
        auto& [b, w, s, i, d, x, y] = numbers;
        ar >> b >> w >> s >> i >> d >> x >> y;
        counts.clear();
        for (int k = 0; k < 4; ++k) {
            counts.push_back(ar.ReadCount());
        }
        ar >> text >> date;
    };
    ASSERT_EQ(LoadCause(full, readAll), CArchiveException::none);
    EXPECT_EQ(numbers, std::make_tuple(BYTE{0xAB}, WORD{0x1234}, std::int16_t{-2},
                                       std::int32_t{0x12345678}, DWORD{0xCAFEF00D}, -2.5, 0.1));
    EXPECT_EQ(counts, (std::vector<DWORD>{0, 0xFFFE, 0xFFFF, 70000}));
    EXPECT_EQ(text, CString('x', 300));
    EXPECT_EQ(date, COleDateTime(2016, 10, 30, 12, 0, 0));

    for (size_t n = 0; n < full.size(); ++n) {
        const Bytes cut(full.begin(), full.begin() + static_cast<long>(n));
        EXPECT_EQ(LoadCause(cut, readAll), CArchiveException::endOfFile) << "cut at " << n;
    }
}

TEST(Archive, StringPrefixChangesFormAtItsBoundaries) {
    const std::pair<int, Bytes> cases[] = {
        {0, {0x00}},
        {254, {0xFE}},
        {255, {0xFF, 0xFF, 0x00}},
        {0xFFFD, {0xFF, 0xFD, 0xFF}},
        {0xFFFE, {0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0x00, 0x00}},
        {0x10001, {0xFF, 0xFF, 0xFF, 0x01, 0x00, 0x01, 0x00}},
    };
    for (const auto& [length, prefix] : cases) {
        SCOPED_TRACE(length);
        // Eight-bit characters, which must travel unchanged.
        Bytes expected = prefix;
        CString text;
        for (int i = 0; i < length; ++i) {
            expected.push_back(static_cast<BYTE>(0x80 + i % 128));
            text += static_cast<char>(expected.back());
        }
        EXPECT_EQ(Stored([&](CArchive& ar) { ar << text; }), expected);
        CString back;
        LoadCause(expected, [&](CArchive& ar) {
            ar >> back;
            EXPECT_EQ(ar.BytesLeft(), 0u);
        });
        EXPECT_EQ(back, text);
    }
}

TEST(Archive, DamagedStringLengthFailsWithoutReservingIt) {
    // A 32-bit length of 0xFFFFFFF0 with three bytes behind it.
    g_largestAllocation = 0;
    EXPECT_EQ(LoadCause({0xFF, 0xFF, 0xFF, 0xF0, 0xFF, 0xFF, 0xFF, 'a', 'b', 'c'}, kReadString),
              CArchiveException::endOfFile);
    EXPECT_LT(g_largestAllocation, std::size_t{1} << 20);
    // A 16-bit length longer than what follows.
    EXPECT_EQ(LoadCause({0xFF, 0x00, 0x01, 'a'}, kReadString), CArchiveException::endOfFile);
    // A wide-character marker is not an 8-bit string, even with 0xFFFE bytes behind it.
    Bytes wide = {0xFF, 0xFE, 0xFF, 0x01, 'a'};
    wide.resize(3 + 0xFFFE, 'a');
    EXPECT_NE(LoadCause(wide, kReadString), CArchiveException::none);
}

TEST(Archive, CheckCountMeasuresWhatIsLeft) {
    // Eight bytes; with one read first, the seven the archive holds in its buffer still count.
    const auto cause = [](bool readOne, ULONGLONG count, ULONGLONG size) {
        return LoadCause({1, 2, 3, 4, 5, 6, 7, 8}, [&](CArchive& ar) {
            BYTE b;
            if (readOne) {
                ar >> b;
            }
            seisplot::CheckCount(ar, count, size);
        });
    };
    EXPECT_EQ(cause(false, 2, 4), CArchiveException::none);
    EXPECT_EQ(cause(false, 3, 3), CArchiveException::endOfFile);
    EXPECT_EQ(cause(true, 7, 1), CArchiveException::none);
    EXPECT_EQ(cause(true, 2, 4), CArchiveException::endOfFile);
    EXPECT_EQ(cause(false, 1ULL << 61, 8), CArchiveException::endOfFile); // product overflows
}

TEST(ArchiveFile, StoresAndLoadsThroughCFileAndNamesTheFileInErrors) {
    const std::string path =
        ::testing::TempDir() + "seisplot-core-" + std::to_string(::getpid()) + ".spl";
    {
        CFile f;
        ASSERT_TRUE(f.Open(path.c_str(), CFile::modeCreate | CFile::modeWrite));
        CArchive ar(&f, CArchive::store);
        ar << std::int32_t{-2} << CString("El Centro");
        ar.Close();
    }
    {
        CFile f(path.c_str(), CFile::modeRead);
        EXPECT_EQ(f.GetLength(), 4u + 10u);
        CArchive ar(&f, CArchive::load);
        std::int32_t i = 0;
        CString name;
        ar >> i >> name;
        EXPECT_EQ(i, -2);
        EXPECT_EQ(name, "El Centro");
        try {
            ar >> i;
            ADD_FAILURE() << "read past the end";
        } catch (CArchiveException* e) {
            EXPECT_EQ(e->m_cause, CArchiveException::endOfFile);
            EXPECT_EQ(e->m_strFileName, path.c_str());
            e->Delete();
        }
    }
    std::remove(path.c_str());
    try {
        CFile opened(path.c_str(), CFile::modeRead);
        ADD_FAILURE() << "opened a missing file";
    } catch (CFileException* e) {
        EXPECT_EQ(e->m_cause, CFileException::fileNotFound);
        EXPECT_NE(e->GetMessageText().Find(path.c_str()), -1);
        e->Delete();
    }
}
