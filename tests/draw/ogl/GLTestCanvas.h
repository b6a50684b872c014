#pragma once
// A headless OpenGL picture for the tests of the OpenGL twins: one logical unit to a pixel,
// integer points on pixel centres, y up from the bottom-left pixel.

#include "platform/gl/HeadlessGLContext.h"

#include <GL/gl.h>

#include <functional>
#include <vector>

namespace seisplot::test {

struct GLCanvas {
    static constexpr int kWidth = 200;
    static constexpr int kHeight = 150;
    HeadlessGLContext gl{kWidth, kHeight};

    GLCanvas() {
        glMatrixMode(GL_PROJECTION);
        glOrtho(-0.5, kWidth - 0.5, -0.5, kHeight - 0.5, -1.0, 1.0);
        glMatrixMode(GL_MODELVIEW);
    }
    // The pixel whose centre is the point (x, y).
    COLORREF At(int x, int y) const { return gl.Pixel(x, kHeight - 1 - y); }
    int Count(COLORREF colour) const {
        int n = 0;
        for (COLORREF c : gl.Pixels()) {
            n += c == colour ? 1 : 0;
        }
        return n;
    }
    void Fill(int x1, int y1, int x2, int y2, COLORREF colour) {
        glColor3ub(GetRValue(colour), GetGValue(colour), GetBValue(colour));
        glRecti(x1, y1, x2, y2);
    }
};

// What `draw` sends down the pipeline, as OpenGL's feedback mode reports it in window
// coordinates.
inline std::vector<GLfloat> Feedback(const std::function<void()>& draw) {
    std::vector<GLfloat> buffer(1 << 16);
    glFeedbackBuffer(static_cast<GLsizei>(buffer.size()), GL_2D, buffer.data());
    glRenderMode(GL_FEEDBACK);
    draw();
    buffer.resize(static_cast<std::size_t>(glRenderMode(GL_RENDER)));
    return buffer;
}

} // namespace seisplot::test
