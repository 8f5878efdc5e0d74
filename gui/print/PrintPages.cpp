#include "gui/print/PrintPages.h"

#include "core/Revision.h"
#include "gui/look/Palette.h"
#include "gui/print/PrintHeader.h"
#include "views/common/Printable.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace VELIX {

namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kTitleSize = 13.0; // points, as all that follows
constexpr double kNoteSize = 8.0;
constexpr double kGap = 10.0;
constexpr double kRule = 0.75;

/// The parts of a page, in pixels of the device.
struct Frame
{
    explicit Frame(QPainter& painter) : page(painter.viewport())
    {
        QPaintDevice* device = painter.device();
        point = device->logicalDpiY() / kPointsPerInch;
        title.setPointSizeF(kTitleSize);
        title.setBold(true);
        note.setPointSizeF(kNoteSize);
        const double titleLine = QFontMetricsF(title, device).height();
        const double noteLine = QFontMetricsF(note, device).height();
        header = QRectF(page.left(), page.top(), page.width(), std::max(titleLine, 2 * noteLine));
        footer = QRectF(page.left(), page.bottom() - noteLine, page.width(), noteLine);
        room = page;
        room.setTop(header.bottom() + 2 * kGap * point);
        room.setBottom(footer.top() - kGap * point);
    }

    QRectF page;
    QRectF header;
    QRectF footer;
    QRectF room;
    QFont title;
    QFont note;
    double point;
};

void paintHeader(QPainter& painter, const Frame& frame, const QString& title,
                 const PrintHeader& header)
{
    painter.setPen(Palette::light().text);
    painter.setFont(frame.title);
    painter.drawText(frame.header, Qt::AlignLeft | Qt::AlignVCenter, title);

    QStringList first{header.card, header.record};
    first.removeAll(QString());
    painter.setPen(Palette::light().mutedText);
    painter.setFont(frame.note);
    painter.drawText(frame.header, Qt::AlignRight | Qt::AlignVCenter,
                     first.join(QStringLiteral(" \u00B7 ")) + QLatin1Char('\n') + header.date);
    const double height = kRule * frame.point;
    painter.fillRect(QRectF(frame.page.left(), frame.header.bottom() + kGap / 2 * frame.point,
                            frame.page.width(), height),
                     Palette::light().controlLine);
}

void paintFooter(QPainter& painter, const Frame& frame, const QString& number)
{
    painter.setPen(Palette::light().mutedText);
    painter.setFont(frame.note);
    painter.drawText(frame.footer, Qt::AlignLeft | Qt::AlignVCenter,
                     QString::fromStdString(Revision::getRevisionString()));
    painter.drawText(frame.footer, Qt::AlignRight | Qt::AlignVCenter, number);
}

} // namespace

bool PrintPages::paint(QPagedPaintDevice& device, const Printable& view, const PrintHeader& header,
                       Range range)
{
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    const Frame frame(painter);
    const auto layout = view.printLayout(device, frame.room.size());
    const int count = layout->pageCount();
    const int last = range.last > 0 ? std::min(range.last, count) : count;
    int painted = 0;
    for (int page = std::max(range.first, 1); page <= last; ++page) {
        if (painted > 0 && !device.newPage()) {
            return false;
        }
        paintHeader(painter, frame, view.printTitle(), header);
        paintFooter(painter, frame, tr("Page %1 of %2").arg(page).arg(count));
        painter.save();
        painter.translate(frame.room.topLeft());
        layout->paintPage(painter, page - 1);
        painter.restore();
        ++painted;
    }
    return painter.end() && painted > 0;
}

} // namespace VELIX
