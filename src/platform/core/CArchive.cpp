#include "platform/core/CArchive.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>

static_assert(std::endian::native == std::endian::little,
              "archives are little-endian and are read and written as such in memory");

CArchive::CArchive(CFile* file, UINT mode, int bufferSize, void* /*buffer*/)
    : m_strFileName(file ? file->GetFilePath() : CString()), m_file(file),
      m_loading((mode & load) != 0), m_noFlushOnDelete((mode & bNoFlushOnDelete) != 0),
      m_capacity(static_cast<UINT>(std::max(bufferSize, 128))) {
    m_buffer = std::make_unique<BYTE[]>(m_capacity);
}

CArchive::~CArchive() {
    if (m_file && !m_loading && !m_noFlushOnDelete) {
        try {
            WriteBuffer();
        } catch (CException* e) {
            e->Delete();
        }
    }
}

void CArchive::CheckLoading() const {
    if (!m_file) {
        AfxThrowArchiveException(CArchiveException::genericException, m_strFileName);
    }
    if (!m_loading) {
        AfxThrowArchiveException(CArchiveException::writeOnly, m_strFileName);
    }
}

void CArchive::CheckStoring() const {
    if (!m_file) {
        AfxThrowArchiveException(CArchiveException::genericException, m_strFileName);
    }
    if (m_loading) {
        AfxThrowArchiveException(CArchiveException::readOnly, m_strFileName);
    }
}

void CArchive::WriteBuffer() {
    if (m_end > 0) {
        const UINT count = m_end;
        m_end = 0;
        m_file->Write(m_buffer.get(), count);
    }
}

void CArchive::Close() {
    if (m_file && !m_loading) {
        WriteBuffer();
    }
    m_file = nullptr;
}

void CArchive::Abort() {
    m_file = nullptr;
}

void CArchive::Flush() {
    if (m_file && !m_loading) {
        WriteBuffer();
    }
}

UINT CArchive::Read(void* buffer, UINT count) {
    CheckLoading();
    auto* out = static_cast<BYTE*>(buffer);
    UINT done = 0;
    while (done < count) {
        if (m_begin == m_end) {
            if (count - done >= m_capacity) {
                // A large read bypasses the buffer.
                done += m_file->Read(out + done, count - done);
                break;
            }
            m_begin = 0;
            m_end = m_file->Read(m_buffer.get(), m_capacity);
            if (m_end == 0) {
                break;
            }
        }
        const UINT n = std::min(count - done, m_end - m_begin);
        std::memcpy(out + done, m_buffer.get() + m_begin, n);
        m_begin += n;
        done += n;
    }
    return done;
}

void CArchive::Write(const void* buffer, UINT count) {
    CheckStoring();
    const auto* in = static_cast<const BYTE*>(buffer);
    if (count >= m_capacity) {
        WriteBuffer();
        m_file->Write(in, count);
        return;
    }
    if (m_end + count > m_capacity) {
        WriteBuffer();
    }
    std::memcpy(m_buffer.get() + m_end, in, count);
    m_end += count;
}

ULONGLONG CArchive::BytesLeft() const {
    if (!m_file || !m_loading) {
        return 0;
    }
    const ULONGLONG length = m_file->GetLength();
    const ULONGLONG position = m_file->GetPosition();
    return (length > position ? length - position : 0) + (m_end - m_begin);
}

void CArchive::FillOrThrow(void* buffer, UINT count) {
    if (Read(buffer, count) != count) {
        AfxThrowArchiveException(CArchiveException::endOfFile, m_strFileName);
    }
}

template <class T> void CArchive::Put(T value) {
    BYTE bytes[sizeof(T)];
    std::memcpy(bytes, &value, sizeof(T));
    Write(bytes, sizeof(T));
}

template <class T> T CArchive::Get() {
    BYTE bytes[sizeof(T)];
    FillOrThrow(bytes, sizeof(T));
    T value;
    std::memcpy(&value, bytes, sizeof(T));
    return value;
}

CArchive& CArchive::operator<<(BYTE value) {
    Put(value);
    return *this;
}
CArchive& CArchive::operator<<(char value) {
    Put(value);
    return *this;
}
CArchive& CArchive::operator<<(std::int16_t value) {
    Put(value);
    return *this;
}
CArchive& CArchive::operator<<(WORD value) {
    Put(value);
    return *this;
}
CArchive& CArchive::operator<<(std::int32_t value) {
    Put(value);
    return *this;
}
CArchive& CArchive::operator<<(DWORD value) {
    Put(value);
    return *this;
}
CArchive& CArchive::operator<<(LONGLONG value) {
    Put(value);
    return *this;
}
CArchive& CArchive::operator<<(ULONGLONG value) {
    Put(value);
    return *this;
}
CArchive& CArchive::operator<<(float value) {
    Put(value);
    return *this;
}
CArchive& CArchive::operator<<(double value) {
    Put(value);
    return *this;
}

CArchive& CArchive::operator>>(BYTE& value) {
    value = Get<BYTE>();
    return *this;
}
CArchive& CArchive::operator>>(char& value) {
    value = Get<char>();
    return *this;
}
CArchive& CArchive::operator>>(std::int16_t& value) {
    value = Get<std::int16_t>();
    return *this;
}
CArchive& CArchive::operator>>(WORD& value) {
    value = Get<WORD>();
    return *this;
}
CArchive& CArchive::operator>>(std::int32_t& value) {
    value = Get<std::int32_t>();
    return *this;
}
CArchive& CArchive::operator>>(DWORD& value) {
    value = Get<DWORD>();
    return *this;
}
CArchive& CArchive::operator>>(LONGLONG& value) {
    value = Get<LONGLONG>();
    return *this;
}
CArchive& CArchive::operator>>(ULONGLONG& value) {
    value = Get<ULONGLONG>();
    return *this;
}
CArchive& CArchive::operator>>(float& value) {
    value = Get<float>();
    return *this;
}
CArchive& CArchive::operator>>(double& value) {
    value = Get<double>();
    return *this;
}

CArchive& CArchive::operator<<(const CString& value) {
    const size_t length = static_cast<size_t>(value.GetLength());
    if (length < 0xFF) {
        Put(static_cast<BYTE>(length));
    } else if (length < 0xFFFE) {
        Put(BYTE{0xFF});
        Put(static_cast<WORD>(length));
    } else {
        Put(BYTE{0xFF});
        Put(WORD{0xFFFF});
        Put(static_cast<DWORD>(length));
    }
    Write(value.GetString(), static_cast<UINT>(length));
    return *this;
}

CArchive& CArchive::operator>>(CString& value) {
    DWORD length = Get<BYTE>();
    if (length == 0xFF) {
        length = Get<WORD>();
        if (length == 0xFFFE) {
            // A wide-character marker: this library writes only 8-bit strings.
            AfxThrowArchiveException(CArchiveException::badIndex, m_strFileName);
        }
        if (length == 0xFFFF) {
            length = Get<DWORD>();
            if (length == 0xFFFFFFFF) {
                AfxThrowArchiveException(CArchiveException::badIndex, m_strFileName);
            }
        }
    }
    seisplot::CheckCount(*this, length, 1);
    std::string text(length, '\0');
    FillOrThrow(text.data(), length);
    value = CString(std::move(text));
    return *this;
}

void CArchive::WriteCount(DWORD count) {
    if (count < 0xFFFF) {
        Put(static_cast<WORD>(count));
    } else {
        Put(WORD{0xFFFF});
        Put(count);
    }
}

DWORD CArchive::ReadCount() {
    const WORD count = Get<WORD>();
    return count == 0xFFFF ? Get<DWORD>() : count;
}

namespace seisplot {

void CheckCount(const CArchive& ar, ULONGLONG count, ULONGLONG bytesPerItem) {
    const ULONGLONG left = ar.BytesLeft();
    if (bytesPerItem > 0 && count > left / bytesPerItem) {
        AfxThrowArchiveException(CArchiveException::endOfFile, ar.m_strFileName);
    }
}

} // namespace seisplot
