#pragma once
// Test helpers: serialise into bytes in memory, read objects back from bytes, and build
// streams by hand.

#include "platform/core/CArchive.h"
#include "platform/core/COleDateTime.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace seisplot::test {

using Bytes = std::vector<BYTE>;

// The bytes that `write` stores into an archive.
inline Bytes Store(const std::function<void(CArchive&)>& write) {
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    write(ar);
    ar.Close();
    return file.Data();
}

template <class T> Bytes StoreObject(T& object) {
    return Store([&](CArchive& ar) { object.Serialize(ar); });
}

// The bytes of the file at `path`.
inline Bytes FileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Reads `object` from `bytes` and returns how many bytes were left unread.
template <class T> size_t LoadObject(const Bytes& bytes, T& object) {
    CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    object.Serialize(ar);
    return static_cast<size_t>(ar.BytesLeft());
}

// The archive exception cause that `action` raises, or -1 when it raises none.
inline int ArchiveCause(const std::function<void()>& action) {
    try {
        action();
    } catch (CArchiveException* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return -1;
}

// The file exception cause that `action` raises, or -1 when it raises none.
inline int FileCause(const std::function<void()>& action) {
    try {
        action();
    } catch (CFileException* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return -1;
}

// Appends primitives in the archive's layout, for streams written by hand.
class StreamBuilder {
public:
    StreamBuilder& Byte(BYTE v) { return Raw(&v, 1); }
    StreamBuilder& Word(WORD v) { return Raw(&v, 2); }
    StreamBuilder& Int(std::int32_t v) { return Raw(&v, 4); }
    StreamBuilder& Dword(DWORD v) { return Raw(&v, 4); }
    StreamBuilder& Double(double v) { return Raw(&v, 8); }
    // A string shorter than 255 characters: one length byte, then the characters.
    StreamBuilder& Text(const char* s) {
        const size_t n = std::strlen(s);
        EXPECT_LT(n, 255u);
        Byte(static_cast<BYTE>(n));
        return Raw(s, n);
    }
    StreamBuilder& Date(std::int32_t status, double days) { return Int(status).Double(days); }
    StreamBuilder& Append(const Bytes& more) {
        m_bytes.insert(m_bytes.end(), more.begin(), more.end());
        return *this;
    }
    const Bytes& bytes() const { return m_bytes; }

private:
    StreamBuilder& Raw(const void* p, size_t n) {
        const auto* b = static_cast<const BYTE*>(p);
        m_bytes.insert(m_bytes.end(), b, b + n);
        return *this;
    }
    Bytes m_bytes;
};

} // namespace seisplot::test
