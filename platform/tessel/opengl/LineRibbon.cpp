#include "platform/tessel/opengl/LineRibbon.h"

#include <cmath>
#include <utility>

namespace Tessel::OpenGL {

namespace {

constexpr float kMitre = 0.9F; // cosine of the turn: beyond it a mitre would be a spike

struct Direction
{
    float x = 1.0F;
    float y = 0.0F;
};

/// False if there is no way between the points.
bool direct(const ColorProgram::Vertex& from, const ColorProgram::Vertex& to, Direction& direction)
{
    const float x = to.x - from.x;
    const float y = to.y - from.y;
    const float length = std::hypot(x, y);
    if (!(length > 0.0F)) {
        return false;
    }
    direction = {x / length, y / length};
    return true;
}

class Ribbon
{
public:
    explicit Ribbon(std::vector<RibbonProgram::Vertex>& vertices) : mVertices(vertices) {}

    /// Both edges beside a point, for a line in this direction. Forward: that far along it.
    void across(const ColorProgram::Vertex& point, const Direction& way, float forward = 0.0F)
    {
        add(point, -way.y + forward * way.x, way.x + forward * way.y, 1);
        add(point, way.y + forward * way.x, -way.x + forward * way.y, -1);
    }
    void turn(const ColorProgram::Vertex& point, const Direction& before, const Direction& after)
    {
        const float cosine = before.x * after.x + before.y * after.y;
        if (cosine > kMitre) {
            const float size = 1.0F + cosine; // of the sum, times the mitre's own cosine
            across(point, {(before.x + after.x) / size, (before.y + after.y) / size});
            return;
        }
        const float beyond = cosine < 0.0F ? 1.0F : 0.0F;
        across(point, before, beyond);
        across(point, after, -beyond);
    }

private:
    void add(const ColorProgram::Vertex& point, float x, float y, int side)
    {
        mVertices.push_back(RibbonProgram::vertex(point, x, y, side));
    }

    std::vector<RibbonProgram::Vertex>& mVertices;
};

} // namespace

void appendRibbon(const ColorProgram::Vertex* points, std::size_t count,
                  std::vector<RibbonProgram::Vertex>& ribbon)
{
    if (count == 0) {
        return;
    }
    Ribbon edges(ribbon);
    const ColorProgram::Vertex* last = points;
    Direction before;
    bool begun = false;
    for (std::size_t i = 1; i < count; ++i) {
        Direction way;
        if (!direct(*last, points[i], way)) {
            continue;
        }
        if (begun) {
            edges.turn(*last, before, way);
        } else {
            edges.across(*last, way, -1.0F);
            begun = true;
        }
        before = way;
        last = &points[i];
    }
    if (!begun) {
        edges.across(*last, before, -1.0F);
    }
    edges.across(*last, before, 1.0F);
}

} // namespace Tessel::OpenGL
