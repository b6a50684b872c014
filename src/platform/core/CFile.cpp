#include "platform/core/CFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

CFile::CFile(LPCTSTR fileName, UINT openFlags) {
    CFileException error;
    if (!Open(fileName, openFlags, &error)) {
        AfxThrowFileException(error.m_cause, error.m_lOsError, fileName);
    }
}

CFile::~CFile() {
    Abort();
}

BOOL CFile::Open(LPCTSTR fileName, UINT openFlags, CFileException* error) {
    Abort();
    m_path = fileName;
    int flags = O_CLOEXEC;
    switch (openFlags & 0x3) {
    case modeWrite:
        flags |= O_WRONLY;
        break;
    case modeReadWrite:
        flags |= O_RDWR;
        break;
    default:
        flags |= O_RDONLY;
        break;
    }
    if (openFlags & modeCreate) {
        flags |= O_CREAT;
        if (!(openFlags & modeNoTruncate)) {
            flags |= O_TRUNC;
        }
    }
    const int fd = fileName ? ::open(fileName, flags, 0666) : -1;
    if (fd < 0) {
        const int osError = fileName ? errno : ENOENT;
        if (error) {
            error->m_cause = CFileException::OsErrorToException(osError);
            error->m_lOsError = osError;
            error->m_strFileName = fileName;
        }
        return FALSE;
    }
    struct stat info {};
    if (::fstat(fd, &info) == 0 && S_ISDIR(info.st_mode)) {
        ::close(fd);
        if (error) {
            error->m_cause = CFileException::accessDenied;
            error->m_lOsError = EISDIR;
            error->m_strFileName = fileName;
        }
        return FALSE;
    }
    m_fd = fd;
    return TRUE;
}

void CFile::ThrowOsError(int osError) const {
    AfxThrowFileException(CFileException::OsErrorToException(osError), osError, m_path);
}

UINT CFile::Read(void* buffer, UINT count) {
    if (m_fd < 0) {
        AfxThrowFileException(CFileException::invalidFile, -1, m_path);
    }
    auto* out = static_cast<char*>(buffer);
    UINT done = 0;
    while (done < count) {
        const ssize_t got = ::read(m_fd, out + done, count - done);
        if (got < 0) {
            if (errno == EINTR) {
                continue;
            }
            ThrowOsError(errno);
        }
        if (got == 0) {
            break;
        }
        done += static_cast<UINT>(got);
    }
    return done;
}

void CFile::Write(const void* buffer, UINT count) {
    if (m_fd < 0) {
        AfxThrowFileException(CFileException::invalidFile, -1, m_path);
    }
    const auto* in = static_cast<const char*>(buffer);
    UINT done = 0;
    while (done < count) {
        const ssize_t put = ::write(m_fd, in + done, count - done);
        if (put < 0) {
            if (errno == EINTR) {
                continue;
            }
            ThrowOsError(errno);
        }
        done += static_cast<UINT>(put);
    }
}

ULONGLONG CFile::Seek(LONGLONG offset, UINT from) {
    const int whence = from == current ? SEEK_CUR : (from == end ? SEEK_END : SEEK_SET);
    const off_t at = ::lseek(m_fd, static_cast<off_t>(offset), whence);
    if (at < 0) {
        ThrowOsError(m_fd < 0 ? EBADF : errno);
    }
    return static_cast<ULONGLONG>(at);
}

ULONGLONG CFile::GetLength() const {
    struct stat info {};
    if (::fstat(m_fd, &info) != 0) {
        ThrowOsError(errno);
    }
    return static_cast<ULONGLONG>(info.st_size);
}

ULONGLONG CFile::GetPosition() const {
    const off_t at = ::lseek(m_fd, 0, SEEK_CUR);
    if (at < 0) {
        ThrowOsError(m_fd < 0 ? EBADF : errno);
    }
    return static_cast<ULONGLONG>(at);
}

void CFile::Flush() {
    if (m_fd >= 0 && ::fsync(m_fd) != 0 && errno != EINVAL && errno != EROFS) {
        ThrowOsError(errno);
    }
}

void CFile::Close() {
    if (m_fd >= 0) {
        const int fd = m_fd;
        m_fd = -1;
        if (::close(fd) != 0) {
            ThrowOsError(errno);
        }
    }
}

void CFile::Abort() {
    if (m_fd >= 0) {
        ::close(m_fd);
        m_fd = -1;
    }
}

CString CFile::GetFileName() const {
    return m_path.Mid(m_path.ReverseFind('/') + 1);
}

void CFile::Remove(LPCTSTR fileName) {
    if (std::remove(fileName) != 0) {
        const int osError = errno;
        AfxThrowFileException(CFileException::OsErrorToException(osError), osError, fileName);
    }
}

CMemFile::CMemFile(UINT /*growBytes*/) {}

CMemFile::CMemFile(const BYTE* buffer, UINT size, UINT /*growBytes*/)
    : m_bytes(buffer, buffer + size) {}

BOOL CMemFile::Open(LPCTSTR /*fileName*/, UINT /*openFlags*/, CFileException* error) {
    if (error) {
        error->m_cause = CFileException::genericException;
    }
    return FALSE;
}

UINT CMemFile::Read(void* buffer, UINT count) {
    const size_t available = m_bytes.size() - std::min(m_position, m_bytes.size());
    const size_t n = std::min<size_t>(count, available);
    if (n > 0) {
        std::memcpy(buffer, m_bytes.data() + m_position, n);
    }
    m_position += n;
    return static_cast<UINT>(n);
}

void CMemFile::Write(const void* buffer, UINT count) {
    if (count == 0) {
        return;
    }
    if (m_position + count > m_bytes.size()) {
        m_bytes.resize(m_position + count);
    }
    std::memcpy(m_bytes.data() + m_position, buffer, count);
    m_position += count;
}

ULONGLONG CMemFile::Seek(LONGLONG offset, UINT from) {
    const LONGLONG base = from == current
                              ? static_cast<LONGLONG>(m_position)
                              : (from == end ? static_cast<LONGLONG>(m_bytes.size()) : 0);
    const LONGLONG target = base + offset;
    if (target < 0) {
        AfxThrowFileException(CFileException::badSeek, -1, m_path);
    }
    m_position = static_cast<size_t>(target);
    return m_position;
}
