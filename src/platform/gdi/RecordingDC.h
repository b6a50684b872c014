#pragma once
// A device context that keeps every drawing call with its resolved state and coordinates,
// for tests that check what was drawn and how, without pixels.

#include "platform/gdi/CDC.h"

#include <vector>

namespace seisplot {

// The device a recorder stands for.
struct RecordingDevice {
    int width = 1000; // pixels
    int height = 1000;
    int dpi = 96;
    int numColors = -1; // -1 colour, 2 monochrome
    int technology = DT_RASDISPLAY;
    bool printing = false;
    // A device with a fixed-pitch font of its own: every character advances this many pixels,
    // ascent and descent are 0.8 and 0.2 of the font's height (0: Qt's fonts, as painted).
    int characterPixels = 0;
};

class RecordingDC : public CDC {
public:
    explicit RecordingDC(RecordingDevice device = {});
    const std::vector<DrawCall>& Calls() const;
    void Clear();

private:
    explicit RecordingDC(std::shared_ptr<Surface> surface);
    // Held here too, so that the calls outlive DeleteDC.
    std::shared_ptr<Surface> m_recorder;
    std::vector<DrawCall>* m_calls;
};

} // namespace seisplot
