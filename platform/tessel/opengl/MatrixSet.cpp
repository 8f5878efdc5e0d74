#include "platform/tessel/opengl/MatrixSet.h"

#include <cmath>
#include <numbers>

namespace Tessel::OpenGL {

namespace {

constexpr std::size_t kSize = 4;

MatrixSet::Matrix multiply(const MatrixSet::Matrix& a, const MatrixSet::Matrix& b)
{
    MatrixSet::Matrix result{};
    for (std::size_t column = 0; column < kSize; ++column) {
        for (std::size_t row = 0; row < kSize; ++row) {
            for (std::size_t k = 0; k < kSize; ++k) {
                result[column * kSize + row] += a[k * kSize + row] * b[column * kSize + k];
            }
        }
    }
    return result;
}

} // namespace

void MatrixSet::reset()
{
    mProjection = kIdentity;
    mModelView = kIdentity;
    mStack.clear();
}

bool MatrixSet::setOrtho(double left, double right, double bottom, double top, double nearZ,
                         double farZ)
{
    const double width = right - left;
    const double height = top - bottom;
    const double depth = farZ - nearZ;
    if (width == 0.0 || height == 0.0 || depth == 0.0) {
        return false;
    }
    mProjection = kIdentity;
    mProjection[0] = 2.0 / width;
    mProjection[5] = 2.0 / height;
    mProjection[10] = -2.0 / depth;
    mProjection[12] = -(right + left) / width;
    mProjection[13] = -(top + bottom) / height;
    mProjection[14] = -(farZ + nearZ) / depth;
    return true;
}

void MatrixSet::translate(double x, double y, double z)
{
    Matrix step = kIdentity;
    step[12] = x;
    step[13] = y;
    step[14] = z;
    mModelView = multiply(mModelView, step);
}

void MatrixSet::scale(double x, double y, double z)
{
    Matrix step = kIdentity;
    step[0] = x;
    step[5] = y;
    step[10] = z;
    mModelView = multiply(mModelView, step);
}

void MatrixSet::rotate(double degrees)
{
    const double angle = degrees * std::numbers::pi / 180.0;
    Matrix step = kIdentity;
    step[0] = std::cos(angle);
    step[1] = std::sin(angle);
    step[4] = -step[1];
    step[5] = step[0];
    mModelView = multiply(mModelView, step);
}

void MatrixSet::pop()
{
    if (!mStack.empty()) {
        mModelView = mStack.back();
        mStack.pop_back();
    }
}

std::array<float, 16> MatrixSet::product() const
{
    const Matrix exact = multiply(mProjection, mModelView);
    std::array<float, 16> result{};
    for (std::size_t i = 0; i < exact.size(); ++i) {
        result[i] = static_cast<float>(exact[i]);
    }
    return result;
}

} // namespace Tessel::OpenGL
