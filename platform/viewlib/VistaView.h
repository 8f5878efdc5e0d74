#pragma once

#include "platform/viewlib/ViewError.h"

#include <memory>
#include <string>
#include <vector>

namespace Vista2D {

/// A panel of instruments that a text file describes and named variables move.
///
/// docs/view-file.md describes the file's format. A bound instrument shows the variable NAME in
/// the colour that the variable NAME_STATE asks for: 0 normal, 1 warning, 2 limit; it is blank
/// while NAME_MISSING is set and not 0. Variables may be set at any time and outlive the
/// description.
///
/// All but draw() works without an OpenGL context.
class VistaView
{
public:
    VistaView();
    ~VistaView();
    VistaView(const VistaView&) = delete;
    VistaView& operator=(const VistaView&) = delete;

    /// Replaces the description; false if the file cannot be read, and nothing changes then.
    /// Mistakes in it are no failure, see errors().
    bool load(const std::string& path);
    /// Replaces the description by one in memory, UTF-8.
    void loadText(const std::string& text);
    /// Returns the mistakes in the description, by line.
    [[nodiscard]] const std::vector<ViewError>& errors() const;
    /// Whether anything in the description depends on a variable.
    [[nodiscard]] bool knows(const std::string& name) const;

    /// Has draw() draw (1) or not (0, the default).
    void startView(int running);
    /// 0, the default: the panel paints its own background; else what was drawn before shows
    /// through.
    void setBackgroundMode(int mode);
    /// Returns the colour of the panel's background, 0xAARRGGBB.
    [[nodiscard]] unsigned int background() const;

    /// NaN takes the variable's value away: its instruments are blank then.
    void setVar(const char* name, double value);
    void setVar(const char* name, long value);

    /// Takes the layout that is largest in so much room, in any unit, if the description has
    /// several, and sets the variables TALL and LOW to 0 or 1.
    void setRoom(double width, double height);
    /// Return the size of the panel in view units, of the layout in use; 0 before a description was
    /// loaded.
    [[nodiscard]] double width() const;
    [[nodiscard]] double height() const;

    /// Whether a drawing would differ from the last one, at the same place and size.
    [[nodiscard]] bool changed() const;
    /// Draws the panel into the current OpenGL context, a compatibility profile, with its
    /// projection, model-view matrix and viewport: x from 0 to width(), y from 0 (the panel's upper
    /// edge) to height(). The context's state is as before afterwards.
    /// \param shown 1: the panel; 0: nothing
    void draw(int shown);

private:
    struct Parts;
    std::unique_ptr<Parts> mParts;
};

} // namespace Vista2D
