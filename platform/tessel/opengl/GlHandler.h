#pragma once

#include "platform/tessel/opengl/ColorProgram.h"
#include "platform/tessel/opengl/LineProgram.h"
#include "platform/tessel/opengl/MatrixSet.h"
#include "platform/tessel/opengl/RibbonProgram.h"
#include "platform/tessel/opengl/TextureProgram.h"

namespace Tessel::OpenGL {

/// What all primitives of one context share: the shader programs and the matrices in force.
///
/// It belongs to the context that is current at the first drawing; that context must be current
/// again for release() and at destruction.
class GlHandler
{
public:
    [[nodiscard]] MatrixSet& matrices() { return mMatrices; }
    [[nodiscard]] const MatrixSet& matrices() const { return mMatrices; }

    [[nodiscard]] LineProgram& lines() { return mLines; }
    [[nodiscard]] ColorProgram& colors() { return mColors; }
    [[nodiscard]] RibbonProgram& ribbons() { return mRibbons; }
    [[nodiscard]] TextureProgram& textures() { return mTextures; }

    /// Gives the programs back to the graphics system; they are made again when needed.
    void release();

private:
    MatrixSet mMatrices;
    LineProgram mLines;
    ColorProgram mColors;
    RibbonProgram mRibbons;
    TextureProgram mTextures;
};

} // namespace Tessel::OpenGL
