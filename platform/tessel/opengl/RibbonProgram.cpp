#include "platform/tessel/opengl/RibbonProgram.h"

#include "platform/tessel/opengl/Gl.h"
#include "platform/tessel/opengl/MatrixSet.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace Tessel::OpenGL {

namespace {

/// Of a step aside; the source below has it, too.
constexpr float kUnit = 16000.0F;

constexpr const char* kVertexSource = R"(#version 120
attribute vec3 position;
attribute vec4 vertexColor;
attribute vec3 aside;
uniform mat4 matrix;
uniform vec2 viewport;
uniform float reach;
varying vec4 color;
varying float across;
void main()
{
    vec2 way = aside.xy / 16000.0;
    vec2 pixels = (matrix * vec4(way, 0.0, 0.0)).xy * viewport;
    float size = max(length(pixels), 1e-30);
    color = vertexColor;
    across = aside.z * reach;
    gl_Position = matrix * vec4(position, 1.0);
    gl_Position.xy += pixels * (length(way) * reach * 2.0 / size) / viewport;
}
)";

constexpr const char* kFragmentSource = R"(#version 120
uniform float reach;
uniform float hard;
varying vec4 color;
varying float across;
void main()
{
    gl_FragColor = vec4(color.rgb, color.a * clamp(max(reach - abs(across), hard), 0.0, 1.0));
}
)";

const void* offset(std::size_t bytes)
{
    return reinterpret_cast<const void*>(bytes); // NOLINT: the interface's way to say an offset
}

std::int16_t unitsOf(float step)
{
    return static_cast<std::int16_t>(std::lround(step * kUnit));
}

} // namespace

RibbonProgram::Vertex RibbonProgram::vertex(const ColorProgram::Vertex& point, float asideX,
                                            float asideY, int side)
{
    return {point, unitsOf(asideX), unitsOf(asideY), static_cast<std::int16_t>(side)};
}

bool RibbonProgram::begin(const MatrixSet& matrices, float width, bool smooth, const Color* color)
{
    if (!mProgram.create(kVertexSource, kFragmentSource, "vertexColor")) {
        return false;
    }
    std::array<GLint, 4> viewport{};
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    mProgram.use();
    glUniformMatrix4fv(mProgram.uniform("matrix"), 1, GL_FALSE, matrices.product().data());
    glUniform2f(mProgram.uniform("viewport"), static_cast<float>(viewport[2]),
                static_cast<float>(viewport[3]));
    // A soft edge fades over one pixel, half of it outside of the line.
    glUniform1f(mProgram.uniform("reach"), (width + (smooth ? 1.0F : 0.0F)) / 2.0F);
    glUniform1f(mProgram.uniform("hard"), smooth ? 0.0F : 1.0F);
    constexpr GLsizei kSize = sizeof(Vertex);
    glEnableVertexAttribArray(ShaderProgram::Position);
    glVertexAttribPointer(ShaderProgram::Position, 3, GL_FLOAT, GL_FALSE, kSize, nullptr);
    glEnableVertexAttribArray(ShaderProgram::Aside);
    glVertexAttribPointer(ShaderProgram::Aside, 3, GL_SHORT, GL_FALSE, kSize,
                          offset(offsetof(Vertex, asideX)));
    if (color != nullptr) {
        glDisableVertexAttribArray(ShaderProgram::VertexColor);
        glVertexAttrib4f(ShaderProgram::VertexColor, color->red, color->green, color->blue,
                         color->alpha);
    } else {
        glEnableVertexAttribArray(ShaderProgram::VertexColor);
        glVertexAttribPointer(ShaderProgram::VertexColor, 4, GL_UNSIGNED_BYTE, GL_TRUE, kSize,
                              offset(offsetof(ColorProgram::Vertex, red)));
    }
    return true;
}

void RibbonProgram::end()
{
    for (const unsigned int attribute :
         {ShaderProgram::Position, ShaderProgram::VertexColor, ShaderProgram::Aside}) {
        glDisableVertexAttribArray(attribute);
    }
    glUseProgram(0);
}

} // namespace Tessel::OpenGL
