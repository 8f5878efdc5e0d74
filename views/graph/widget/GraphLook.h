#pragma once

#include <QColor>

#include <array>

namespace VELIX {

/// Colours of the graph and which of its parts are shown.
struct GraphLook
{
    QColor back = QColor(0x00, 0x00, 0x00); ///< background of the plot
    QColor grid = QColor(0xff, 0x66, 0x66);
    QColor label = QColor(0x00, 0x00, 0x00);     ///< texts around the plot
    QColor labelBack = QColor(0xbb, 0xbb, 0xbb); ///< their background
    bool gridOn = true;
    bool cursorOn = true;
    bool legendOn = true;
    bool onPaper = false; ///< traces in colours readable on the plot, nothing that can be dragged

    /// Lines of the ticks, and of their subdivisions: weaker than any trace.
    [[nodiscard]] QColor majorGrid() const { return mix(back, grid, 0.45); }
    [[nodiscard]] QColor minorGrid() const { return mix(back, grid, 0.18); }
    /// Between the bands of the split display.
    [[nodiscard]] QColor separator() const { return mix(back, plotText(), 0.55); }
    /// Cursor line and readout; a blue that shows on the plot's background.
    [[nodiscard]] QColor cursor() const { return accentOn(back); }
    /// The frame of the plot while keys go to the graph.
    [[nodiscard]] QColor focus() const { return accentOn(labelBack); }
    /// Black or white, whichever is easier to read on the plot's background.
    [[nodiscard]] QColor plotText() const;
    /// Readable, but weaker than plotText().
    [[nodiscard]] QColor plotMutedText() const { return mix(back, plotText(), 0.68); }

    /// The colour in which a trace is drawn, given its own (red, green, blue, each 0 to 1).
    [[nodiscard]] QColor traceColor(const std::array<float, 3>& own) const;

    /// The accent of the look, light or dark, that shows best on a background.
    [[nodiscard]] static QColor accentOn(const QColor& background);
    /// A colour on the way from one (0) to another (1).
    [[nodiscard]] static QColor mix(const QColor& from, const QColor& to, double part);
    /// A trace's colour, moved towards black or white until texts in it are readable on a
    /// background.
    [[nodiscard]] static QColor readable(const QColor& color, const QColor& background);
};

} // namespace VELIX
