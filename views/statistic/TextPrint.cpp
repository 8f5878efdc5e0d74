#include "views/statistic/TextPrint.h"

#include "gui/look/Palette.h"

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QPainter>

namespace VELIX {

namespace {

constexpr double kFontSize = 10.0; // points

} // namespace

TextPrint::TextPrint(const QString& html, QPaintDevice& device, const QSizeF& room) : mRoom(room)
{
    QFont font;
    font.setPointSizeF(kFontSize);
    mDocument.setDefaultFont(font);
    mDocument.setDocumentMargin(0.0);
    mDocument.documentLayout()->setPaintDevice(&device);
    mDocument.setDefaultStyleSheet(
        QStringLiteral("td, th { padding: 2px 12px 2px 0px; white-space: nowrap; } "
                       "p { color: %1; margin-bottom: 8px; }")
            .arg(Palette::light().mutedText.name()));
    mDocument.setHtml(html);
    mDocument.setPageSize(room);
}

int TextPrint::pageCount() const
{
    return mDocument.pageCount();
}

void TextPrint::paintPage(QPainter& painter, int page) const
{
    const QRectF part(QPointF(0, page * mRoom.height()), mRoom);
    painter.save();
    painter.translate(-part.topLeft());
    painter.setClipRect(part);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = part;
    context.palette.setColor(QPalette::Text, Palette::light().text);
    mDocument.documentLayout()->draw(&painter, context);
    painter.restore();
}

} // namespace VELIX
