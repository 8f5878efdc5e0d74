#pragma once

#include "platform/viewlib/ViewError.h"

#include <QString>

#include <vector>

namespace Vista2D {

/// The mistakes found so far. A file that is no view at all does not fill the memory with them.
class ViewErrors
{
public:
    void add(int line, const QString& element, const QString& message);
    [[nodiscard]] const std::vector<ViewError>& list() const { return mList; }

private:
    std::vector<ViewError> mList;
};

} // namespace Vista2D
