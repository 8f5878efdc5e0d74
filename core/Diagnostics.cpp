#include "core/Diagnostics.h"

#include <cstdarg>

namespace VELIX {

namespace {
std::FILE* gStream = nullptr;
} // namespace

void Diagnostics::setStream(std::FILE* stream)
{
    gStream = stream;
}

std::FILE* Diagnostics::stream()
{
    return gStream != nullptr ? gStream : stdout;
}

void Diagnostics::print(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::vfprintf(stream(), format, arguments);
    va_end(arguments);
}

} // namespace VELIX
