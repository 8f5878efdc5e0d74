#pragma once

#include <string>

namespace Vista2D {

/// A mistake in a view description. What has none is drawn all the same.
struct ViewError
{
    int line = 0;        ///< counted from 1; 0: the file as a whole
    std::string element; ///< the word that the line begins with; may be empty
    std::string message;
};

} // namespace Vista2D
