#include "platform/tessel/opengl/ShaderProgram.h"

#include "platform/tessel/opengl/Gl.h"

namespace Tessel::OpenGL {

namespace {

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

/// 0 if the shaders do not fit together.
GLuint link(GLuint vertex, GLuint fragment, const char* secondAttribute)
{
    const GLuint program = glCreateProgram();
    glAttachShader(program, vertex);
    glAttachShader(program, fragment);
    glBindAttribLocation(program, ShaderProgram::Position, "position");
    glBindAttribLocation(program, ShaderProgram::Aside, "aside");
    if (secondAttribute != nullptr) {
        glBindAttribLocation(program, 1, secondAttribute);
    }
    glLinkProgram(program);
    GLint linked = GL_FALSE;
    glGetProgramiv(program, GL_LINK_STATUS, &linked);
    if (linked == GL_TRUE) {
        return program;
    }
    glDeleteProgram(program);
    return 0;
}

} // namespace

ShaderProgram::~ShaderProgram()
{
    release();
}

bool ShaderProgram::create(const char* vertexSource, const char* fragmentSource,
                           const char* secondAttribute)
{
    if (mProgram != 0 || mRefused) {
        return mProgram != 0;
    }
    const GLuint vertex = compile(GL_VERTEX_SHADER, vertexSource);
    const GLuint fragment = compile(GL_FRAGMENT_SHADER, fragmentSource);
    if (vertex != 0 && fragment != 0) {
        mProgram = link(vertex, fragment, secondAttribute);
    }
    // The program keeps what it needs of them.
    glDeleteShader(vertex);
    glDeleteShader(fragment);
    mRefused = mProgram == 0;
    return mProgram != 0;
}

void ShaderProgram::use() const
{
    glUseProgram(mProgram);
}

int ShaderProgram::uniform(const char* name) const
{
    return glGetUniformLocation(mProgram, name);
}

void ShaderProgram::release()
{
    if (mProgram != 0) {
        glDeleteProgram(mProgram);
        mProgram = 0;
    }
    mRefused = false;
}

} // namespace Tessel::OpenGL
