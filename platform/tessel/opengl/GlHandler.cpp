#include "platform/tessel/opengl/GlHandler.h"

namespace Tessel::OpenGL {

void GlHandler::release()
{
    mLines.release();
    mColors.release();
    mRibbons.release();
    mTextures.release();
}

} // namespace Tessel::OpenGL
