#include "platform/tessel/opengl/LineStrips.h"

#include "platform/tessel/opengl/Blending.h"
#include "platform/tessel/opengl/Gl.h"
#include "platform/tessel/opengl/GlHandler.h"
#include "platform/tessel/opengl/LineRibbon.h"
#include "platform/tessel/opengl/StripSizes.h"

#include <optional>

namespace Tessel::OpenGL {

void LineStrips::clear()
{
    mVertices.clear();
    mStarts.clear();
    mBuffer.invalidate();
}

void LineStrips::beginStrip()
{
    const int start = static_cast<int>(mVertices.size());
    if (mStarts.empty() || mStarts.back() != start) {
        mStarts.push_back(start);
    }
}

void LineStrips::addVertex(float x, float y, float z)
{
    if (mStarts.empty()) {
        beginStrip();
    }
    mVertices.push_back(ColorProgram::vertex(x, y, z, mColor));
    mBuffer.invalidate();
}

/// The areas go to the graphics system and are not kept here.
void LineStrips::fillBuffer()
{
    std::vector<RibbonProgram::Vertex> areas;
    areas.reserve(mVertices.size() * 2 + mStarts.size() * 2);
    std::vector<int> sizes;
    fillStripSizes(mStarts, static_cast<int>(mVertices.size()), sizes);
    mFirsts.clear();
    mSizes.clear();
    for (std::size_t i = 0; i < mStarts.size(); ++i) {
        const std::size_t first = areas.size();
        appendRibbon(mVertices.data() + mStarts[i], static_cast<std::size_t>(sizes[i]), areas);
        mFirsts.push_back(static_cast<int>(first));
        mSizes.push_back(static_cast<int>(areas.size() - first));
    }
    mBuffer.bind(areas.data(), areas.size() * sizeof(RibbonProgram::Vertex));
}

void LineStrips::render(GlHandler& gl)
{
    if (mVertices.empty()) {
        return;
    }
    if (mBuffer.isCurrent()) {
        mBuffer.bind(nullptr, 0);
    } else {
        fillBuffer();
    }
    std::optional<Blending> blending;
    if (mAntiAliasing) {
        blending.emplace(Blending::Colors::Plain);
    }
    const Color* color = mVertexColors ? nullptr : &mColor;
    if (gl.ribbons().begin(gl.matrices(), mWidth, mAntiAliasing, color)) {
        glMultiDrawArrays(GL_TRIANGLE_STRIP, mFirsts.data(), mSizes.data(),
                          static_cast<GLsizei>(mFirsts.size()));
        RibbonProgram::end();
    }
    GlBuffer::unbind();
}

} // namespace Tessel::OpenGL
