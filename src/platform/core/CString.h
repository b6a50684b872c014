#pragma once
// CString: the framework's 8-bit string, with the members host code calls.
// Positions count from 0; a position or count out of range is clamped as the framework does.

#include "platform/core/Types.h"

#include <cstdarg>
#include <string>
#include <string_view>

#if defined(__GNUC__)
#define SEISPLOT_PRINTF(fmt, args) __attribute__((format(printf, fmt, args)))
#else
#define SEISPLOT_PRINTF(fmt, args)
#endif

class CString {
public:
    CString() = default;
    CString(const char* text) : m_text(text ? text : "") {}
    CString(const char* text, int length);
    CString(char ch, int repeat = 1);
    explicit CString(std::string text) : m_text(std::move(text)) {}
    explicit CString(std::string_view text) : m_text(text) {}

    CString& operator=(const char* text);
    CString& operator=(char ch);

    // Access
    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    const char* GetString() const { return m_text.c_str(); }
    operator const char*() const { return m_text.c_str(); }
    char GetAt(int index) const;
    char operator[](int index) const { return GetAt(index); }
    const std::string& str() const { return m_text; }

    // Concatenation
    CString& operator+=(const CString& other);
    CString& operator+=(const char* text);
    CString& operator+=(char ch);
    friend CString operator+(const CString& a, const CString& b);
    friend CString operator+(const CString& a, const char* b);
    friend CString operator+(const char* a, const CString& b);
    friend CString operator+(const CString& a, char b);
    friend CString operator+(char a, const CString& b);

    // Comparison: byte by byte, as strcmp does
    int Compare(const char* text) const;
    int CompareNoCase(const char* text) const;
    friend bool operator==(const CString& a, const CString& b) { return a.m_text == b.m_text; }
    friend bool operator==(const CString& a, const char* b) { return a.Compare(b) == 0; }
    friend bool operator==(const char* a, const CString& b) { return b.Compare(a) == 0; }
    friend bool operator!=(const CString& a, const CString& b) { return !(a == b); }
    friend bool operator!=(const CString& a, const char* b) { return !(a == b); }
    friend bool operator!=(const char* a, const CString& b) { return !(a == b); }
    friend bool operator<(const CString& a, const CString& b) { return a.m_text < b.m_text; }
    friend bool operator>(const CString& a, const CString& b) { return b < a; }
    friend bool operator<=(const CString& a, const CString& b) { return !(b < a); }
    friend bool operator>=(const CString& a, const CString& b) { return !(a < b); }

    // Extraction
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;
    CString SpanExcluding(const char* charSet) const;
    CString Tokenize(const char* tokens, int& start) const;

    // Search: -1 when not found
    int Find(char ch, int start = 0) const;
    int Find(const char* sub, int start = 0) const;
    int ReverseFind(char ch) const;
    int FindOneOf(const char* charSet) const;

    // Change in place
    CString& MakeUpper();
    CString& MakeLower();
    CString& Trim();
    CString& Trim(char target);
    CString& Trim(const char* targets);
    CString& TrimLeft();
    CString& TrimLeft(char target);
    CString& TrimLeft(const char* targets);
    CString& TrimRight();
    CString& TrimRight(char target);
    CString& TrimRight(const char* targets);
    int Replace(char oldCh, char newCh);
    int Replace(const char* oldText, const char* newText);
    int Remove(char ch);
    int Delete(int index, int count = 1);

    // printf-style formatting
    void Format(const char* format, ...) SEISPLOT_PRINTF(2, 3);
    void Format(UINT formatId, ...);
    void AppendFormat(const char* format, ...) SEISPLOT_PRINTF(2, 3);
    void FormatV(const char* format, va_list args) SEISPLOT_PRINTF(2, 0);

    // Direct buffer access: write into the buffer, then ReleaseBuffer.
    char* GetBuffer();
    char* GetBuffer(int minLength);
    void ReleaseBuffer(int newLength = -1);

    // The library's string table
    BOOL LoadString(UINT id);

private:
    std::string m_text;
};
