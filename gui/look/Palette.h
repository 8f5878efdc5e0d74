#pragma once

#include <QColor>

class QApplication;
class QPalette;

namespace VELIX {

/// The colours of one look, by role. Style sheet and painting code both take them from here.
///
/// Colour means something: accent is the cursor and the selection, warning and limit are states
/// of the engine, healthy is the absence of both. Decoration takes line and mutedText.
struct Palette
{
    enum class Look { Light, Dark };

    Look look = Look::Light;
    QColor window;       ///< background of windows and panels
    QColor surface;      ///< background of tables, trees and editors
    QColor header;       ///< background of table headers and group titles
    QColor line;         ///< borders and the grid of tables
    QColor controlLine;  ///< borders of what can be operated
    QColor text;         ///< on window, surface, header, hover, pressed and accentSoft
    QColor mutedText;    ///< secondary text on window and surface
    QColor disabledText; ///< what cannot be used now; weaker than any readable text
    QColor accent;       ///< cursor, selection, links, focus
    QColor accentText;   ///< on accent
    QColor accentSoft;   ///< background of checked buttons and of the current menu item
    QColor hover;        ///< background under the mouse
    QColor pressed;      ///< background of a pressed button
    QColor handle;       ///< scroll bar and splitter handles
    QColor progress;     ///< done part of a progress bar; text is written on it
    QColor healthy;
    QColor warning;
    QColor limit;
    QColor lcdPanel;           ///< background of digital displays, dark in both looks
    QColor lcdDigits;          ///< on lcdPanel
    QColor tableSelection;     ///< background of the selected table row, the same in both looks
    QColor tableSelectionText; ///< on tableSelection

    static const Palette& light();
    static const Palette& dark();
    static const Palette& of(Look look);

    /// The look of a desktop: dark where its text is lighter than its windows.
    [[nodiscard]] static Look lookOf(const QPalette& desktop);

    /// The palette in force; light until apply() was called.
    static const Palette& current();

    /// Puts the desktop's look in force for the whole program, once at start-up and before
    /// images are loaded and widgets are made.
    static void apply(QApplication& application);
    /// The same with a look of the user's choice.
    static void apply(QApplication& application, Look look);

    /// The palette for all that the style sheet leaves to the widget style.
    [[nodiscard]] QPalette toQPalette() const;

    /// The palette of digital displays, whose segments have no lit or shaded edges. Set it on the
    /// display, which the style sheet leaves alone.
    [[nodiscard]] QPalette toDisplayPalette() const;

    /// Contrast ratio of two opaque colours by WCAG 2.1: 1 (none) to 21 (black on white).
    [[nodiscard]] static double contrast(const QColor& a, const QColor& b);

    /// Text colour for a background that comes from data, such as a cell coloured by a profile:
    /// the light look's text, or white where that is easier to read, or black where neither
    /// reaches 4.5.
    [[nodiscard]] static QColor textOn(const QColor& background);
};

} // namespace VELIX
