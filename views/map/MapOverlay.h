#pragma once

#include "platform/tessel/opengl/TextureFont.h"
#include "platform/tessel/opengl/TriangleStrip.h"
#include "views/map/model/MapTexts.h"

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QStringList>

#include <optional>

namespace Tessel::OpenGL {
class GlHandler;
}

namespace VELIX {

struct MapColoring;

/// What is written over the map: attribution, scale bar, legend of the path and the read-out beside
/// the mouse. Coordinates are pixels of the frame buffer from the upper left corner. The context
/// rule of Tessel::OpenGL::Texture holds.
class MapOverlay
{
public:
    struct Content
    {
        MapScaleBar scale;
        double scalePixels = 0.0;            ///< length of the scale bar
        const MapColoring* legend = nullptr; ///< none: no legend
        std::optional<QPointF> aircraft;     ///< the legend keeps out of its way
        QString notice;                      ///< why there are no tiles; empty: there is none
        QStringList readout;                 ///< lines; none: no read-out
        QPointF mouse;
        std::optional<QPointF> mark; ///< the place of the path that the read-out is about
    };

    /// Loads the font for a frame buffer with so many pixels per logical pixel.
    void load(double ratio);
    /// The matrices make the frame buffer's pixels their units.
    void paint(Tessel::OpenGL::GlHandler& gl, const QSize& pixels, const Content& content);
    void release();

private:
    /// The lower ends of what is free at both sides.
    struct Room
    {
        double left = 0.0;
        double right = 0.0;
    };

    void fill(Tessel::OpenGL::GlHandler& gl, const QRectF& area,
              const Tessel::OpenGL::Color& color);
    void panel(Tessel::OpenGL::GlHandler& gl, const QRectF& area);
    [[nodiscard]] QStringList wrapped(const QString& text, double width) const;
    QRectF paintLines(Tessel::OpenGL::GlHandler& gl, const QString& text, double bottom);
    Room paintScale(Tessel::OpenGL::GlHandler& gl, const Content& content, const QRectF& texts);
    QRectF placeLegend(const QSizeF& size, const Room& room,
                       const std::optional<QPointF>& aircraft);
    void paintLegend(Tessel::OpenGL::GlHandler& gl, const Content& content, const Room& room);
    void paintReadout(Tessel::OpenGL::GlHandler& gl, const Content& content);

    Tessel::OpenGL::TextureFont mFont;
    Tessel::OpenGL::TriangleStrip mArea;
    QSize mPixels;
    double mRatio = 1.0;
    bool mLegendLeft = false; ///< where it was out of the aircraft's way last
};

} // namespace VELIX
