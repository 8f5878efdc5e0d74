#include "platform/tessel/opengl/StripSizes.h"

#include <cstddef>

namespace Tessel::OpenGL {

void fillStripSizes(const std::vector<int>& starts, int total, std::vector<int>& sizes)
{
    sizes.clear();
    for (std::size_t i = 0; i < starts.size(); ++i) {
        sizes.push_back((i + 1 < starts.size() ? starts[i + 1] : total) - starts[i]);
    }
}

} // namespace Tessel::OpenGL
