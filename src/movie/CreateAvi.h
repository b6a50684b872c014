#pragma once
// CreateAvi: makes a movie of a folder of JPEG pictures with the FrameStitch tool, and may
// then delete the pictures.

#include "platform/core/CString.h"

// Runs `<toolFolder>/FrameStitch "<framesFolder>"`, followed by " -fpi <fpi>" (each picture
// shown for so many frames) when fpi is not 1 and " -nth <nth>" (every so many pictures) when
// nth is not 1, and waits for it to end; the tool's results are its own. With `deleteFrames`
// it then deletes the folder's *.jpg files and the folder, which stays when anything else is
// left in it. Returns 1 when the tool cannot start (the messages "Unable to run process:" and
// the command line are shown) or, when deleting, the folder holds no *.jpg file; else 0.
int CreateAvi(CString& toolFolder, CString& framesFolder, int deleteFrames, int fpi, int nth);
