#pragma once

namespace Tessel::OpenGL {

/// Lets what is drawn during its lifetime show through, and puts the old state back.
class Blending
{
public:
    enum class Colors {
        Plain,        ///< colour and opacity are independent
        Premultiplied ///< colours are multiplied with their opacity already
    };

    explicit Blending(Colors colors);
    ~Blending();
    Blending(const Blending&) = delete;
    Blending& operator=(const Blending&) = delete;
};

} // namespace Tessel::OpenGL
