#include "platform/tessel/LineProgram.h"

#include "platform/tessel/Gl.h"
#include "platform/tessel/MatrixSet.h"

namespace Tessel::OpenGL {

namespace {

constexpr GLuint kPosition = 0;

constexpr const char* kVertexSource = R"(#version 120
attribute vec2 position;
uniform mat4 matrix;
void main() { gl_Position = matrix * vec4(position, 0.0, 1.0); }
)";

constexpr const char* kFragmentSource = R"(#version 120
uniform vec4 color;
void main() { gl_FragColor = color; }
)";

/// 0 if the source does not compile.
GLuint compile(GLenum kind, const char* source)
{
    const GLuint shader = glCreateShader(kind);
    glShaderSource(shader, 1, &source, nullptr);
    glCompileShader(shader);
    GLint compiled = GL_FALSE;
    glGetShaderiv(shader, GL_COMPILE_STATUS, &compiled);
    if (compiled == GL_TRUE) {
        return shader;
    }
    glDeleteShader(shader);
    return 0;
}

} // namespace

LineProgram::~LineProgram()
{
    release();
}

bool LineProgram::begin(const MatrixSet& matrices, const Color& color)
{
    if (mProgram == 0 && !create()) {
        return false;
    }
    glUseProgram(mProgram);
    glUniformMatrix4fv(mMatrix, 1, GL_FALSE, matrices.product().data());
    glUniform4f(mColor, color.red, color.green, color.blue, color.alpha);
    glEnableVertexAttribArray(kPosition);
    glVertexAttribPointer(kPosition, 2, GL_FLOAT, GL_FALSE, 0, nullptr);
    return true;
}

void LineProgram::end()
{
    glDisableVertexAttribArray(kPosition);
    glUseProgram(0);
}

void LineProgram::release()
{
    if (mProgram != 0) {
        glDeleteProgram(mProgram);
        mProgram = 0;
    }
    mRefused = false;
}

bool LineProgram::create()
{
    if (mRefused) {
        return false;
    }
    mRefused = true;
    const GLuint vertex = compile(GL_VERTEX_SHADER, kVertexSource);
    const GLuint fragment = compile(GL_FRAGMENT_SHADER, kFragmentSource);
    if (vertex != 0 && fragment != 0) {
        const GLuint program = glCreateProgram();
        glAttachShader(program, vertex);
        glAttachShader(program, fragment);
        glBindAttribLocation(program, kPosition, "position");
        glLinkProgram(program);
        GLint linked = GL_FALSE;
        glGetProgramiv(program, GL_LINK_STATUS, &linked);
        if (linked == GL_TRUE) {
            mProgram = program;
            mMatrix = glGetUniformLocation(program, "matrix");
            mColor = glGetUniformLocation(program, "color");
            mRefused = false;
        } else {
            glDeleteProgram(program);
        }
    }
    // The program keeps what it needs of them.
    glDeleteShader(vertex);
    glDeleteShader(fragment);
    return mProgram != 0;
}

} // namespace Tessel::OpenGL
