#include "platform/tessel/opengl/TextureProgram.h"

#include "platform/tessel/opengl/Gl.h"
#include "platform/tessel/opengl/MatrixSet.h"

#include <cstddef>

namespace Tessel::OpenGL {

namespace {

constexpr const char* kVertexSource = R"(#version 120
attribute vec2 position;
attribute vec2 textureCoordinate;
uniform mat4 matrix;
varying vec2 place;
void main()
{
    place = textureCoordinate;
    gl_Position = matrix * vec4(position, 0.0, 1.0);
}
)";

constexpr const char* kFragmentSource = R"(#version 120
uniform sampler2D image;
uniform vec4 color;
uniform float coverage;
varying vec2 place;
void main()
{
    vec4 texel = texture2D(image, place);
    vec4 tint = vec4(color.rgb * color.a, color.a);
    gl_FragColor = tint * mix(texel, vec4(texel.a), coverage);
}
)";

} // namespace

bool TextureProgram::begin(const MatrixSet& matrices, const Color& color, Content content)
{
    if (!mProgram.create(kVertexSource, kFragmentSource, "textureCoordinate")) {
        return false;
    }
    mProgram.use();
    glUniformMatrix4fv(mProgram.uniform("matrix"), 1, GL_FALSE, matrices.product().data());
    glUniform4f(mProgram.uniform("color"), color.red, color.green, color.blue, color.alpha);
    glUniform1f(mProgram.uniform("coverage"), content == Content::Coverage ? 1.0F : 0.0F);
    glUniform1i(mProgram.uniform("image"), 0);
    glEnableVertexAttribArray(ShaderProgram::Position);
    glVertexAttribPointer(ShaderProgram::Position, 2, GL_FLOAT, GL_FALSE, sizeof(Vertex), nullptr);
    glEnableVertexAttribArray(ShaderProgram::TextureCoordinate);
    glVertexAttribPointer(
        ShaderProgram::TextureCoordinate, 2, GL_FLOAT, GL_FALSE, sizeof(Vertex),
        reinterpret_cast<const void*>(offsetof(Vertex, u))); // NOLINT: how an offset is said
    return true;
}

void TextureProgram::end()
{
    glDisableVertexAttribArray(ShaderProgram::Position);
    glDisableVertexAttribArray(ShaderProgram::TextureCoordinate);
    glUseProgram(0);
}

} // namespace Tessel::OpenGL
