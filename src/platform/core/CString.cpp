#include "platform/core/CString.h"

#include "platform/core/ResourceModule.h"
#include "platform/core/StringTable.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>

namespace {

const char* const kWhitespace = " \t\r\n\v\f";

int Clamp(int value, int low, int high) {
    return std::max(low, std::min(value, high));
}

int LowerByte(char c) {
    return std::tolower(static_cast<unsigned char>(c));
}

} // namespace

CString::CString(const char* text, int length) {
    if (text && length > 0) {
        m_text.assign(text, static_cast<size_t>(length));
    }
}

CString::CString(char ch, int repeat) : m_text(static_cast<size_t>(std::max(repeat, 0)), ch) {}

CString& CString::operator=(const char* text) {
    m_text = text ? text : "";
    return *this;
}

CString& CString::operator=(char ch) {
    m_text.assign(1, ch);
    return *this;
}

char CString::GetAt(int index) const {
    return (index >= 0 && index < GetLength()) ? m_text[static_cast<size_t>(index)] : '\0';
}

CString& CString::operator+=(const CString& other) {
    m_text += other.m_text;
    return *this;
}

CString& CString::operator+=(const char* text) {
    if (text) {
        m_text += text;
    }
    return *this;
}

CString& CString::operator+=(char ch) {
    m_text += ch;
    return *this;
}

CString operator+(const CString& a, const CString& b) {
    CString result(a);
    result += b;
    return result;
}

CString operator+(const CString& a, const char* b) {
    CString result(a);
    result += b;
    return result;
}

CString operator+(const char* a, const CString& b) {
    CString result(a);
    result += b;
    return result;
}

CString operator+(const CString& a, char b) {
    CString result(a);
    result += b;
    return result;
}

CString operator+(char a, const CString& b) {
    CString result(a);
    result += b;
    return result;
}

int CString::Compare(const char* text) const {
    return std::strcmp(GetString(), text ? text : "");
}

int CString::CompareNoCase(const char* text) const {
    const char* a = GetString();
    const char* b = text ? text : "";
    for (;; ++a, ++b) {
        const int ca = LowerByte(*a);
        const int cb = LowerByte(*b);
        if (ca != cb || ca == 0) {
            return ca - cb;
        }
    }
}

CString CString::Mid(int first) const {
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const {
    first = Clamp(first, 0, GetLength());
    count = Clamp(count, 0, GetLength() - first);
    return CString(m_text.substr(static_cast<size_t>(first), static_cast<size_t>(count)));
}

CString CString::Left(int count) const {
    return Mid(0, count);
}

CString CString::Right(int count) const {
    count = Clamp(count, 0, GetLength());
    return Mid(GetLength() - count, count);
}

CString CString::SpanExcluding(const char* charSet) const {
    return Left(static_cast<int>(std::strcspn(GetString(), charSet ? charSet : "")));
}

CString CString::Tokenize(const char* tokens, int& start) const {
    if (start < 0 || start >= GetLength()) {
        start = -1;
        return CString();
    }
    const std::string_view set = tokens ? tokens : "";
    size_t begin = m_text.find_first_not_of(set, static_cast<size_t>(start));
    if (begin == std::string::npos) {
        start = -1;
        return CString();
    }
    size_t end = m_text.find_first_of(set, begin);
    if (end == std::string::npos) {
        end = m_text.size();
    }
    start = static_cast<int>(std::min(end + 1, m_text.size() + 1));
    return CString(m_text.substr(begin, end - begin));
}

int CString::Find(char ch, int start) const {
    if (start < 0 || start >= GetLength()) {
        return -1;
    }
    const size_t at = m_text.find(ch, static_cast<size_t>(start));
    return at == std::string::npos ? -1 : static_cast<int>(at);
}

int CString::Find(const char* sub, int start) const {
    if (!sub || start < 0 || start > GetLength()) {
        return -1;
    }
    const size_t at = m_text.find(sub, static_cast<size_t>(start));
    return at == std::string::npos ? -1 : static_cast<int>(at);
}

int CString::ReverseFind(char ch) const {
    const size_t at = m_text.rfind(ch);
    return at == std::string::npos ? -1 : static_cast<int>(at);
}

int CString::FindOneOf(const char* charSet) const {
    const size_t at = m_text.find_first_of(charSet ? charSet : "");
    return at == std::string::npos ? -1 : static_cast<int>(at);
}

CString& CString::MakeUpper() {
    for (char& c : m_text) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return *this;
}

CString& CString::MakeLower() {
    for (char& c : m_text) {
        c = static_cast<char>(LowerByte(c));
    }
    return *this;
}

CString& CString::Trim() {
    return TrimRight().TrimLeft();
}
CString& CString::Trim(char target) {
    return TrimRight(target).TrimLeft(target);
}
CString& CString::Trim(const char* targets) {
    return TrimRight(targets).TrimLeft(targets);
}
CString& CString::TrimLeft() {
    return TrimLeft(kWhitespace);
}
CString& CString::TrimRight() {
    return TrimRight(kWhitespace);
}

CString& CString::TrimLeft(char target) {
    const char set[2] = {target, '\0'};
    return TrimLeft(set);
}

CString& CString::TrimRight(char target) {
    const char set[2] = {target, '\0'};
    return TrimRight(set);
}

CString& CString::TrimLeft(const char* targets) {
    const size_t first = m_text.find_first_not_of(targets ? targets : "");
    m_text.erase(0, first == std::string::npos ? m_text.size() : first);
    return *this;
}

CString& CString::TrimRight(const char* targets) {
    const size_t last = m_text.find_last_not_of(targets ? targets : "");
    m_text.erase(last == std::string::npos ? 0 : last + 1);
    return *this;
}

int CString::Replace(char oldCh, char newCh) {
    int count = 0;
    for (char& c : m_text) {
        if (c == oldCh) {
            c = newCh;
            ++count;
        }
    }
    return count;
}

int CString::Replace(const char* oldText, const char* newText) {
    if (!oldText || !*oldText) {
        return 0;
    }
    const std::string_view from = oldText;
    const std::string_view to = newText ? newText : "";
    int count = 0;
    size_t at = 0;
    while ((at = m_text.find(from, at)) != std::string::npos) {
        m_text.replace(at, from.size(), to);
        at += to.size();
        ++count;
    }
    return count;
}

int CString::Remove(char ch) {
    const auto removed = std::erase(m_text, ch);
    return static_cast<int>(removed);
}

int CString::Delete(int index, int count) {
    index = std::max(index, 0);
    if (count > 0 && index < GetLength()) {
        m_text.erase(static_cast<size_t>(index), static_cast<size_t>(count));
    }
    return GetLength();
}

void CString::FormatV(const char* format, va_list args) {
    va_list probe;
    va_copy(probe, args);
    const int length = std::vsnprintf(nullptr, 0, format, probe);
    va_end(probe);
    if (length < 0) {
        m_text.clear();
        return;
    }
    std::string text(static_cast<size_t>(length), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, args);
    m_text = std::move(text);
}

void CString::Format(const char* format, ...) {
    va_list args;
    va_start(args, format);
    FormatV(format, args);
    va_end(args);
}

void CString::Format(UINT formatId, ...) {
    const CString format = seisplot::LoadLibraryString(formatId);
    va_list args;
    va_start(args, formatId);
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#endif
    FormatV(format.GetString(), args);
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif
    va_end(args);
}

void CString::AppendFormat(const char* format, ...) {
    CString tail;
    va_list args;
    va_start(args, format);
    tail.FormatV(format, args);
    va_end(args);
    m_text += tail.m_text;
}

char* CString::GetBuffer() {
    return m_text.data();
}

char* CString::GetBuffer(int minLength) {
    if (minLength > GetLength()) {
        m_text.resize(static_cast<size_t>(minLength), '\0');
    }
    return m_text.data();
}

void CString::ReleaseBuffer(int newLength) {
    if (newLength < 0) {
        newLength = static_cast<int>(std::strlen(m_text.c_str()));
    }
    m_text.resize(static_cast<size_t>(std::min(newLength, GetLength())));
}

BOOL CString::LoadString(UINT id) {
    auto text = seisplot::FindResourceString(id);
    if (!text) {
        return FALSE;
    }
    *this = std::move(*text);
    return TRUE;
}
