#pragma once

#include "core/Diagnostics.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace VELIX::Test {

/// Collects the diagnostic lines that are printed while it lives.
class CapturedDiagnostics
{
public:
    CapturedDiagnostics() : mStream(open_memstream(&mText, &mLength))
    {
        Diagnostics::setStream(mStream);
    }
    ~CapturedDiagnostics()
    {
        Diagnostics::setStream(nullptr);
        std::fclose(mStream);
        std::free(mText); // NOLINT(cppcoreguidelines-no-malloc): the C library made it
    }
    CapturedDiagnostics(const CapturedDiagnostics&) = delete;
    CapturedDiagnostics& operator=(const CapturedDiagnostics&) = delete;

    std::string text()
    {
        std::fflush(mStream);
        return {mText, mLength};
    }

private:
    char* mText = nullptr;
    std::size_t mLength = 0;
    std::FILE* mStream;
};

} // namespace VELIX::Test
