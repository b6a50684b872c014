#pragma once
// Searching a folder for names that match a pattern, and removing files and folders.
//
// A pattern is a folder and a last part with the wildcards * (any run of characters) and ?
// (one character), matched without regard to case, as the system's file names are compared.
// The search lists what the folder holds when it starts, "." and ".." included when they
// match; removing entries meanwhile does not disturb it.

#include "platform/avi/SystemTypes.h"

inline constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 0x00000010;
inline constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x00000080;

struct WIN32_FIND_DATAA {
    DWORD dwFileAttributes = 0;
    ULONGLONG nFileSize = 0;
    char cFileName[MAX_PATH] = {};
};
using WIN32_FIND_DATA = WIN32_FIND_DATAA;

// The first match of `pattern`, in `data`; INVALID_HANDLE_VALUE when nothing matches (or the
// folder cannot be read).
HANDLE FindFirstFile(LPCSTR pattern, WIN32_FIND_DATAA* data);
// The next match; FALSE when there is none.
BOOL FindNextFile(HANDLE search, WIN32_FIND_DATAA* data);
BOOL FindClose(HANDLE search);

// Deletes a file (not a folder).
BOOL DeleteFile(LPCSTR path);
// Removes a folder; fails unless it is empty.
BOOL RemoveDirectory(LPCSTR path);
