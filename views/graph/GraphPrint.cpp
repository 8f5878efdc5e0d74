#include "views/graph/GraphPrint.h"

#include "views/graph/GraphVectorPainter.h"

#include <QFontInfo>
#include <QPainter>

namespace VELIX {

namespace {

constexpr double kScreenDpi = 96.0;
constexpr double kFineness = 4.0; ///< columns of samples to a screen's pixel: 0.07 mm each
const QColor kPaper(Qt::white);
const QColor kInk(Qt::black);
const QColor kGrid(0x80, 0x80, 0x80);

} // namespace

GraphPrint::GraphPrint(const GraphModel& model, const GraphLook& look, bool markersOn,
                       const QFont& font, QPaintDevice& device, const QSizeF& room)
    : mModel(model),
      mLook(look),
      mMarkersOn(markersOn),
      mFont(font),
      mRoom(room),
      mPixel(device.logicalDpiX() / kScreenDpi)
{
    mLook.back = kPaper;
    mLook.labelBack = kPaper;
    mLook.label = kInk;
    mLook.grid = kGrid;
    mLook.onPaper = true;
    mLook.cursorOn = false;                          // its readouts would hide traces for good
    mFont.setPixelSize(QFontInfo(font).pixelSize()); // one in points would grow with the device
}

void GraphPrint::paintPage(QPainter& painter, int) const
{
    painter.save();
    painter.scale(mPixel, mPixel);
    GraphVectorPainter graph(mModel, mLook, mMarkersOn, (mRoom / mPixel).toSize(), mFont);
    graph.setFineness(kFineness);
    graph.paint(painter);
    painter.restore();
}

} // namespace VELIX
