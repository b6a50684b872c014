#pragma once
// Starting a program from a command line and waiting for it to end.
//
// The command line is read as the system's C runtime reads one: the program is its first
// word (a quoted one may hold blanks), found along PATH when it names no folder; arguments are
// separated by blanks, double quotes group blanks into one, and backslashes escape a quote
// only when they stand right before it. The program starts directly, without a shell. There
// is no console to make on this system: the program writes to the caller's terminal.

#include "platform/avi/SystemTypes.h"
#include "platform/core/CString.h"

#include <vector>

inline constexpr DWORD CREATE_NEW_CONSOLE = 0x00000010;
inline constexpr DWORD STARTF_USEPOSITION = 0x00000004;
inline constexpr DWORD STARTF_USECOUNTCHARS = 0x00000008;
inline constexpr DWORD WAIT_OBJECT_0 = 0x00000000;
inline constexpr DWORD WAIT_TIMEOUT = 0x00000102;
inline constexpr DWORD WAIT_FAILED = 0xFFFFFFFF;

// How the program's console would be placed and sized (kept for the caller; unused here).
struct STARTUPINFOA {
    DWORD cb = 0;
    LPSTR lpReserved = nullptr;
    LPSTR lpDesktop = nullptr;
    LPSTR lpTitle = nullptr;
    DWORD dwX = 0;
    DWORD dwY = 0;
    DWORD dwXSize = 0;
    DWORD dwYSize = 0;
    DWORD dwXCountChars = 0;
    DWORD dwYCountChars = 0;
    DWORD dwFillAttribute = 0;
    DWORD dwFlags = 0;
    WORD wShowWindow = 0;
};
using STARTUPINFO = STARTUPINFOA;

struct PROCESS_INFORMATION {
    HANDLE hProcess = nullptr;
    HANDLE hThread = nullptr;
    DWORD dwProcessId = 0;
    DWORD dwThreadId = 0;
};

// Starts the program of `commandLine` (`applicationName` and `environment` must be null: the
// program gets the caller's environment) in `currentDirectory` (null: the caller's). Without
// `inheritHandles` the program gets only the standard input, output and error streams.
// FALSE when it cannot start; otherwise the process and thread handles are the caller's to
// close. A process whose handle is closed before it ended is not waited for.
BOOL CreateProcess(LPCSTR applicationName, LPSTR commandLine, void* processAttributes,
                   void* threadAttributes, BOOL inheritHandles, DWORD creationFlags,
                   void* environment, LPCSTR currentDirectory, STARTUPINFOA* startupInfo,
                   PROCESS_INFORMATION* processInformation);

// Waits until the process of `handle` ends, at most `milliseconds` (INFINITE: without limit):
// WAIT_OBJECT_0 when it has ended, WAIT_TIMEOUT, or WAIT_FAILED for a handle that is no process.
DWORD WaitForSingleObject(HANDLE handle, DWORD milliseconds);

namespace seisplot {
// The words of a command line, the program first, as the C runtime splits it.
std::vector<CString> SplitCommandLine(const CString& commandLine);
} // namespace seisplot
