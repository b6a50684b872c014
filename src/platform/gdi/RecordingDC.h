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
