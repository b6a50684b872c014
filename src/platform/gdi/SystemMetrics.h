#pragma once
// The size of the screen: the primary screen's, in pixels (800 by 600 on the offscreen
// platform that runs without a display).

inline constexpr int SM_CXSCREEN = 0;
inline constexpr int SM_CYSCREEN = 1;

// SM_CXSCREEN or SM_CYSCREEN; 0 for anything else.
int GetSystemMetrics(int index);
