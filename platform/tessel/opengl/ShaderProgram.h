#pragma once

namespace Tessel::OpenGL {

/// A pair of shaders linked to a program. Made in the context that is current at create(); the
/// same one, or one of its share group, must be current for every later call and at destruction.
class ShaderProgram
{
public:
    /// Attribute numbers that all programs of this library share.
    enum Attribute : unsigned int {
        Position = 0,
        VertexColor = 1,
        TextureCoordinate = 1,
        Aside = 2 ///< "aside", in programs that have it
    };

    ShaderProgram() = default;
    ~ShaderProgram();
    ShaderProgram(const ShaderProgram&) = delete;
    ShaderProgram& operator=(const ShaderProgram&) = delete;

    /// Attribute 0 is called "position", attribute 1 as given (null: there is none). Once the
    /// graphics system has refused the sources, they are not tried again before release().
    [[nodiscard]] bool create(const char* vertexSource, const char* fragmentSource,
                              const char* secondAttribute = nullptr);
    void use() const;
    /// -1 if the program has no such uniform.
    [[nodiscard]] int uniform(const char* name) const;
    void release();

private:
    unsigned int mProgram = 0;
    bool mRefused = false;
};

} // namespace Tessel::OpenGL
