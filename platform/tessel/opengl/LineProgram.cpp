#include "platform/tessel/opengl/LineProgram.h"

#include "platform/tessel/opengl/Gl.h"
#include "platform/tessel/opengl/MatrixSet.h"

namespace Tessel::OpenGL {

namespace {

constexpr const char* kVertexSource = R"(#version 120
attribute vec2 position;
uniform mat4 matrix;
void main() { gl_Position = matrix * vec4(position, 0.0, 1.0); }
)";

constexpr const char* kFragmentSource = R"(#version 120
uniform vec4 color;
void main() { gl_FragColor = color; }
)";

} // namespace

bool LineProgram::begin(const MatrixSet& matrices, const Color& color)
{
    if (!mProgram.create(kVertexSource, kFragmentSource)) {
        return false;
    }
    mProgram.use();
    glUniformMatrix4fv(mProgram.uniform("matrix"), 1, GL_FALSE, matrices.product().data());
    glUniform4f(mProgram.uniform("color"), color.red, color.green, color.blue, color.alpha);
    glEnableVertexAttribArray(ShaderProgram::Position);
    glVertexAttribPointer(ShaderProgram::Position, 2, GL_FLOAT, GL_FALSE, 0, nullptr);
    return true;
}

void LineProgram::end()
{
    glDisableVertexAttribArray(ShaderProgram::Position);
    glUseProgram(0);
}

} // namespace Tessel::OpenGL
