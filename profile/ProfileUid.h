#pragma once

namespace VELIX {

/// Process-wide numbers of profile objects. They start at 1, so that 0 always means "none".
struct ProfileUid
{
    inline static int mUid = 1;

    static int next() { return mUid++; }
};

} // namespace VELIX
