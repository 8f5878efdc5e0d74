#pragma once

#include <array>
#include <vector>

namespace Tessel::OpenGL {

/// A projection and a model-view matrix with a stack.
///
/// Matrices are kept in double precision and column by column; product() is what a shader takes.
class MatrixSet
{
public:
    using Matrix = std::array<double, 16>;

    /// Both matrices become the identity; the stack is emptied.
    void reset();

    /// Replaces the projection: the box left..right, bottom..top, nearZ..farZ (along -z) fills the
    /// view port. A box without width, height or depth leaves the projection as it was and returns
    /// false.
    [[nodiscard]] bool setOrtho(double left, double right, double bottom, double top,
                                double nearZ = -1.0, double farZ = 1.0);

    /// Applied to the vertices before what the model-view matrix did so far.
    void translate(double x, double y, double z = 0.0);
    void scale(double x, double y, double z = 1.0);
    /// About the z axis, from x towards y.
    void rotate(double degrees);

    /// Keeps the model-view matrix for pop(). Without a kept one pop() does nothing.
    void push() { mStack.push_back(mModelView); }
    void pop();

    [[nodiscard]] const Matrix& projection() const { return mProjection; }
    [[nodiscard]] const Matrix& modelView() const { return mModelView; }
    /// projection x modelView.
    [[nodiscard]] std::array<float, 16> product() const;

private:
    static constexpr Matrix kIdentity{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

    Matrix mProjection = kIdentity;
    Matrix mModelView = kIdentity;
    std::vector<Matrix> mStack;
};

} // namespace Tessel::OpenGL
