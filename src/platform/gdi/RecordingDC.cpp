#include "platform/gdi/RecordingDC.h"

#include "platform/gdi/Surface_p.h"

#include <cstdlib>

namespace seisplot {
namespace {

class RecordingSurface final : public Surface {
public:
    explicit RecordingSurface(RecordingDevice device) : m_device(device) {}
    DeviceCaps Caps() const override {
        return {m_device.width,     m_device.height,     m_device.dpi,     m_device.dpi,
                m_device.numColors, m_device.technology, m_device.printing};
    }
    void Draw(const DrawCall& call, const DeviceClip&) override { calls.push_back(call); }
    FontMeasure MeasureFont(const LOGFONTA& font, int pixelHeight) const override {
        if (m_device.characterPixels == 0) {
            return Surface::MeasureFont(font, pixelHeight);
        }
        const double h = std::abs(pixelHeight);
        const double c = m_device.characterPixels;
        return {0.8 * h, 0.2 * h, 0.0, c, c, std::abs(pixelHeight)};
    }
    double TextAdvance(const LOGFONTA& font, int pixelHeight, const CString& text) const override {
        if (m_device.characterPixels == 0) {
            return Surface::TextAdvance(font, pixelHeight, text);
        }
        return static_cast<double>(m_device.characterPixels) * text.GetLength();
    }
    std::vector<DrawCall> calls;

private:
    RecordingDevice m_device;
};

} // namespace

RecordingDC::RecordingDC(RecordingDevice device)
    : RecordingDC(std::make_shared<RecordingSurface>(device)) {}

RecordingDC::RecordingDC(std::shared_ptr<Surface> surface)
    : CDC(surface), m_recorder(surface), m_calls(&static_cast<RecordingSurface&>(*surface).calls) {}

const std::vector<DrawCall>& RecordingDC::Calls() const {
    return *m_calls;
}
void RecordingDC::Clear() {
    m_calls->clear();
}

} // namespace seisplot
