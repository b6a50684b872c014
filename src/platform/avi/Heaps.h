#pragma once
// Private heaps: blocks allocated from a heap are all freed when the heap is destroyed.

#include "platform/avi/SystemTypes.h"

inline constexpr DWORD HEAP_NO_SERIALIZE = 0x00000001;
inline constexpr DWORD HEAP_ZERO_MEMORY = 0x00000008;

// A heap; null when it cannot be made. The sizes are a hint: blocks are allocated as asked.
HANDLE HeapCreate(DWORD options, SIZE_T initialSize, SIZE_T maximumSize);
// A block of `bytes` (zero-filled with HEAP_ZERO_MEMORY); null when memory runs out.
LPVOID HeapAlloc(HANDLE heap, DWORD flags, SIZE_T bytes);
BOOL HeapFree(HANDLE heap, DWORD flags, LPVOID block);
// Frees every block still allocated and the heap itself.
BOOL HeapDestroy(HANDLE heap);
