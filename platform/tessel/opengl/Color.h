#pragma once

namespace Tessel::OpenGL {

/// A colour as fractions 0..1.
struct Color
{
    float red = 1.0F;
    float green = 1.0F;
    float blue = 1.0F;
    float alpha = 1.0F;
};

} // namespace Tessel::OpenGL
