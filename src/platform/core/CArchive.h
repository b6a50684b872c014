#pragma once
// CArchive: the framework's binary archive on a CFile. Numbers are little-endian; a string is
// a length prefix and that many 8-bit characters, the prefix being one byte when the length
// is below 255, else 0xFF and a 16-bit length when below 0xFFFE, else 0xFF, 0xFFFF and a
// 32-bit length. A stream carries nothing but what the Serialize operations write.
//
// Reading past the end raises CArchiveException::endOfFile; a malformed prefix raises
// CArchiveException::badIndex. Errors of the file below surface as CFileException.

#include "platform/core/CFile.h"

#include <memory>

class CArchive {
public:
    enum Mode : UINT { store = 0, load = 1, bNoFlushOnDelete = 2 };

    CArchive(CFile* file, UINT mode, int bufferSize = 4096, void* buffer = nullptr);
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;
    // Flushes a storing archive that was not closed (errors are swallowed there).
    ~CArchive();

    BOOL IsStoring() const { return m_loading ? FALSE : TRUE; }

    // Writes out what is buffered and detaches from the file (the file stays open).
    void Close();
    // Detaches without writing the buffer.
    void Abort();
    void Flush();

    // Raw bytes. Read returns how many it got (fewer only at the end of the stream).
    UINT Read(void* buffer, UINT count);
    void Write(const void* buffer, UINT count);

    // The bytes still to be read. A reader checks a count against it before it allocates,
    // so that a damaged count cannot make it reserve more than the stream could hold.
    ULONGLONG BytesLeft() const;

    CArchive& operator<<(BYTE value);
    CArchive& operator<<(char value);
    CArchive& operator<<(std::int16_t value);
    CArchive& operator<<(WORD value);
    CArchive& operator<<(std::int32_t value);
    CArchive& operator<<(DWORD value);
    CArchive& operator<<(LONGLONG value);
    CArchive& operator<<(ULONGLONG value);
    CArchive& operator<<(float value);
    CArchive& operator<<(double value);
    CArchive& operator<<(const CString& value);
    CArchive& operator<<(const char* value) { return *this << CString(value); }

    CArchive& operator>>(BYTE& value);
    CArchive& operator>>(char& value);
    CArchive& operator>>(std::int16_t& value);
    CArchive& operator>>(WORD& value);
    CArchive& operator>>(std::int32_t& value);
    CArchive& operator>>(DWORD& value);
    CArchive& operator>>(LONGLONG& value);
    CArchive& operator>>(ULONGLONG& value);
    CArchive& operator>>(float& value);
    CArchive& operator>>(double& value);
    CArchive& operator>>(CString& value);

    // The framework's element count: a 16-bit word, or 0xFFFF and a 32-bit count.
    void WriteCount(DWORD count);
    DWORD ReadCount();

    // The archive's file name, for the exceptions it raises.
    CString m_strFileName;

private:
    template <class T> void Put(T value);
    template <class T> T Get();
    void FillOrThrow(void* buffer, UINT count);
    void CheckLoading() const;
    void CheckStoring() const;
    void WriteBuffer();

    CFile* m_file;
    bool m_loading;
    bool m_noFlushOnDelete;
    std::unique_ptr<BYTE[]> m_buffer;
    UINT m_capacity;
    UINT m_begin = 0; // loading: next byte to hand out
    UINT m_end = 0;   // loading: bytes in the buffer; storing: bytes waiting to be written
};

namespace seisplot {

// Raises CArchiveException::endOfFile unless `count` items of at least `bytesPerItem` bytes
// each can still be read from `ar`.
void CheckCount(const CArchive& ar, ULONGLONG count, ULONGLONG bytesPerItem);

} // namespace seisplot
