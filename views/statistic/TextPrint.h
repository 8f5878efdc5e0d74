#pragma once

#include "views/common/Printable.h"

#include <QSizeF>
#include <QTextDocument>

namespace VELIX {

/// Prints rich text.
class TextPrint final : public PrintLayout
{
public:
    TextPrint(const QString& html, QPaintDevice& device, const QSizeF& room);

    [[nodiscard]] int pageCount() const override;
    void paintPage(QPainter& painter, int page) const override;

private:
    QTextDocument mDocument;
    QSizeF mRoom;
};

} // namespace VELIX
