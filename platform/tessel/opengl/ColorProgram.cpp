#include "platform/tessel/opengl/ColorProgram.h"

#include "platform/tessel/opengl/Gl.h"
#include "platform/tessel/opengl/MatrixSet.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Tessel::OpenGL {

namespace {

constexpr const char* kVertexSource = R"(#version 120
attribute vec3 position;
attribute vec4 vertexColor;
uniform mat4 matrix;
varying vec4 color;
void main()
{
    color = vertexColor;
    gl_Position = matrix * vec4(position, 1.0);
}
)";

constexpr const char* kFragmentSource = R"(#version 120
varying vec4 color;
void main() { gl_FragColor = color; }
)";

std::uint8_t byteOf(float fraction)
{
    return static_cast<std::uint8_t>(std::lround(std::clamp(fraction, 0.0F, 1.0F) * 255.0F));
}

const void* offset(std::size_t bytes)
{
    return reinterpret_cast<const void*>(bytes); // NOLINT: the interface's way to say an offset
}

} // namespace

ColorProgram::Vertex ColorProgram::vertex(float x, float y, float z, const Color& color)
{
    return {
        x, y, z, byteOf(color.red), byteOf(color.green), byteOf(color.blue), byteOf(color.alpha)};
}

bool ColorProgram::begin(const MatrixSet& matrices)
{
    if (!mProgram.create(kVertexSource, kFragmentSource, "vertexColor")) {
        return false;
    }
    mProgram.use();
    glUniformMatrix4fv(mProgram.uniform("matrix"), 1, GL_FALSE, matrices.product().data());
    glEnableVertexAttribArray(ShaderProgram::Position);
    glVertexAttribPointer(ShaderProgram::Position, 3, GL_FLOAT, GL_FALSE, sizeof(Vertex),
                          offset(offsetof(Vertex, x)));
    glEnableVertexAttribArray(ShaderProgram::VertexColor);
    glVertexAttribPointer(ShaderProgram::VertexColor, 4, GL_UNSIGNED_BYTE, GL_TRUE, sizeof(Vertex),
                          offset(offsetof(Vertex, red)));
    return true;
}

void ColorProgram::end()
{
    glDisableVertexAttribArray(ShaderProgram::Position);
    glDisableVertexAttribArray(ShaderProgram::VertexColor);
    glUseProgram(0);
}

} // namespace Tessel::OpenGL
