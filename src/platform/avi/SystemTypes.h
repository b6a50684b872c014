#pragma once
// The system's handles and results, as code written for it spells them: heaps, processes and
// file searches are handles, closed by the call that belongs to each.

#include "platform/core/Types.h"

#include <cstddef>
#include <cstdint>

using HANDLE = void*;
using LPVOID = void*;
using SIZE_T = std::size_t;
using HRESULT = LONG;

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005);
inline constexpr DWORD INFINITE = 0xFFFFFFFF;
inline constexpr std::size_t MAX_PATH = 260;
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(-1));

// Closes a process or thread handle (heaps and searches have their own closing calls).
BOOL CloseHandle(HANDLE handle);
