#pragma once

namespace Tessel::OpenGL {

/// Smooths the edges of lines drawn during its lifetime, if asked to.
class SmoothLines
{
public:
    explicit SmoothLines(bool on);
    ~SmoothLines();
    SmoothLines(const SmoothLines&) = delete;
    SmoothLines& operator=(const SmoothLines&) = delete;

private:
    bool mOn;
};

} // namespace Tessel::OpenGL
