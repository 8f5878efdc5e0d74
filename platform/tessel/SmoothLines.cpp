#include "platform/tessel/SmoothLines.h"

#include "platform/tessel/Gl.h"

namespace Tessel::OpenGL {

SmoothLines::SmoothLines(bool on) : mOn(on)
{
    if (mOn) {
        glPushAttrib(GL_COLOR_BUFFER_BIT | GL_LINE_BIT | GL_ENABLE_BIT);
        glEnable(GL_LINE_SMOOTH);
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    }
}

SmoothLines::~SmoothLines()
{
    if (mOn) {
        glPopAttrib();
    }
}

} // namespace Tessel::OpenGL
