#pragma once
// CFile: a binary file with the framework's open flags and exceptions; CMemFile keeps its
// bytes in memory. Errors of Read, Write, Seek and of the throwing constructor raise
// CFileException (by pointer, see Exceptions.h); Open reports failure by its result.

#include "platform/core/Exceptions.h"

#include <vector>

class CFile {
public:
    enum OpenFlags : UINT {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000,
        typeBinary = 0x8000
    };
    enum SeekPosition : UINT { begin = 0, current = 1, end = 2 };

    CFile() = default;
    // Opens at once; a failure throws CFileException.
    CFile(LPCTSTR fileName, UINT openFlags);
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;
    virtual ~CFile();

    // FALSE on failure, with the cause in `error` when given.
    virtual BOOL Open(LPCTSTR fileName, UINT openFlags, CFileException* error = nullptr);
    // Reads up to `count` bytes; fewer only at the end of the file.
    virtual UINT Read(void* buffer, UINT count);
    virtual void Write(const void* buffer, UINT count);
    virtual ULONGLONG Seek(LONGLONG offset, UINT from);
    virtual ULONGLONG GetLength() const;
    virtual ULONGLONG GetPosition() const;
    virtual void Flush();
    virtual void Close();
    // Closes without raising anything.
    virtual void Abort();

    CString GetFilePath() const { return m_path; }
    CString GetFileName() const;

    static void Remove(LPCTSTR fileName);

protected:
    [[noreturn]] void ThrowOsError(int osError) const;

    CString m_path;

private:
    int m_fd = -1;
};

// A file in memory. It starts empty, or with a copy of the given bytes.
class CMemFile : public CFile {
public:
    explicit CMemFile(UINT growBytes = 1024);
    CMemFile(const BYTE* buffer, UINT size, UINT growBytes = 0);

    BOOL Open(LPCTSTR fileName, UINT openFlags, CFileException* error = nullptr) override;
    UINT Read(void* buffer, UINT count) override;
    void Write(const void* buffer, UINT count) override;
    ULONGLONG Seek(LONGLONG offset, UINT from) override;
    ULONGLONG GetLength() const override { return m_bytes.size(); }
    ULONGLONG GetPosition() const override { return m_position; }
    void Flush() override {}
    void Close() override {}
    void Abort() override {}

    // The bytes written so far.
    const std::vector<BYTE>& Data() const { return m_bytes; }

private:
    std::vector<BYTE> m_bytes;
    size_t m_position = 0;
};
