#pragma once
// The framework's basic type names, as host code written for it spells them.

#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = unsigned int;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using LONGLONG = std::int64_t;
using ULONGLONG = std::uint64_t;
using BOOL = int;
using DATE = double;
// Colours 0x00BBGGRR, as the library's drawing functions take them (unsigned long).
using COLORREF = unsigned long;
using LPCTSTR = const char*;
using LPTSTR = char*;
using LPCSTR = const char*;
using LPSTR = char*;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;

inline constexpr BOOL TRUE = 1;
inline constexpr BOOL FALSE = 0;
