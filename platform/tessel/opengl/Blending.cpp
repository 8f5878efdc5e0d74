#include "platform/tessel/opengl/Blending.h"

#include "platform/tessel/opengl/Gl.h"

namespace Tessel::OpenGL {

Blending::Blending(Colors colors)
{
    glPushAttrib(GL_COLOR_BUFFER_BIT | GL_ENABLE_BIT);
    glEnable(GL_BLEND);
    // The opacity of the target must stay whole: windows are composed with it.
    glBlendFuncSeparate(colors == Colors::Plain ? GL_SRC_ALPHA : GL_ONE, GL_ONE_MINUS_SRC_ALPHA,
                        GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
}

Blending::~Blending()
{
    glPopAttrib();
}

} // namespace Tessel::OpenGL
