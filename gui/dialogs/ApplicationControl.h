#pragma once

class QString;

namespace VELIX {

/// What windows ask of the application as a whole; the kernel provides it.
class ApplicationControl
{
public:
    virtual ~ApplicationControl() = default;

    /// Applies a style sheet file, extended by the font size in the settings, to all windows.
    virtual void loadStyleFile(const QString& path) = 0;
    /// Ends the program and starts it again with the same arguments.
    virtual void restart() = 0;
};

} // namespace VELIX
