#include "platform/viewlib/ViewErrors.h"

namespace Vista2D {

namespace {

constexpr std::size_t kMostErrors = 100;

} // namespace

void ViewErrors::add(int line, const QString& element, const QString& message)
{
    if (mList.size() < kMostErrors) {
        mList.push_back({line, element.toStdString(), message.toStdString()});
    } else if (mList.size() == kMostErrors) {
        mList.push_back({line, {}, "further mistakes are not listed"});
    }
}

} // namespace Vista2D
