#pragma once

namespace Tessel::OpenGL {

class MatrixSet;

/// A colour as fractions 0..1.
struct Color
{
    float red = 1.0F;
    float green = 1.0F;
    float blue = 1.0F;
    float alpha = 1.0F;
};

/// The shader program that draws lines and points of one colour. One object serves all primitives
/// of a context.
///
/// Made at the first begin(), in the context that is current then; the same context must be
/// current for begin(), end() and release() and when the object is destroyed.
class LineProgram
{
public:
    LineProgram() = default;
    ~LineProgram();
    LineProgram(const LineProgram&) = delete;
    LineProgram& operator=(const LineProgram&) = delete;

    /// Puts the program in force and describes the bound vertex buffer to it. False if the
    /// graphics system refuses the program; nothing can be drawn then.
    [[nodiscard]] bool begin(const MatrixSet& matrices, const Color& color);
    static void end();
    void release();

private:
    bool create();

    unsigned int mProgram = 0;
    int mMatrix = -1;
    int mColor = -1;
    bool mRefused = false; ///< not tried again with every picture
};

} // namespace Tessel::OpenGL
