#pragma once

namespace VELIX {

/// Settings of the toolkit that every program with windows needs alike.
class Toolkit
{
public:
    /// Widget style, OpenGL format and scaling. To be called before the application object exists,
    /// since the toolkit heeds them only then.
    static void prepare();
};

} // namespace VELIX
