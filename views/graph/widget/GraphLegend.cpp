#include "views/graph/widget/GraphLegend.h"

#include "views/graph/model/GraphModel.h"
#include "views/graph/widget/GraphCanvas.h"
#include "views/graph/widget/GraphTexts.h"

#include <QCoreApplication>

#include <algorithm>

namespace VELIX {

namespace {

constexpr int kSwatch = 10;
constexpr int kLeftAligned = Qt::AlignLeft | Qt::AlignVCenter;

} // namespace

void GraphLegend::paint() const
{
    const GraphLayout& parts = mCanvas.scene.layout;
    if (parts.legendKind() == GraphLayout::Legend::None) {
        return;
    }
    paintHeader();
    for (int row = 0; row < parts.legendShown(); ++row) {
        paintEntry(row);
    }
    const int others = static_cast<int>(mCanvas.scene.listed.size()) - parts.legendShown();
    if (others > 0) {
        paintRest(others);
    }
}

void GraphLegend::paintHeader() const
{
    const GraphLayout& parts = mCanvas.scene.layout;
    const QRect header = parts.legendHeader();
    if (header.isEmpty()) {
        return;
    }
    const bool beside = parts.legendKind() == GraphLayout::Legend::NamesAndValues;
    const int indent = beside ? header.width() - parts.legendValuesWidth() : 2 * kSwatch;
    mCanvas.painter.setFont(mCanvas.scene.fixedFont);
    mCanvas.painter.setPen(GraphLook::mix(mCanvas.look.labelBack, mCanvas.look.label, 0.75));
    mCanvas.painter.drawText(header.adjusted(indent, 0, 0, 0), kLeftAligned,
                             GraphTexts::legendHeader(mCanvas.pointer.markersOn));
    mCanvas.painter.setFont(mCanvas.scene.font);
}

void GraphLegend::paintEntry(int row) const
{
    const unsigned int trace = mCanvas.scene.listed[static_cast<std::size_t>(row)];
    const QRect entry = mCanvas.scene.layout.legendEntry(row);
    const GraphLook& look = mCanvas.look;
    const bool shown = mCanvas.model.isShown(trace);
    const QFontMetrics fixed(mCanvas.scene.fixedFont);
    const int line = std::max(mCanvas.metrics.height(), fixed.height());
    const bool selected = shown && mCanvas.scene.shown.size() > 1 && !look.onPaper &&
                          mCanvas.model.selectedTrace() == trace;
    if (selected) {
        mCanvas.painter.fillRect(entry, GraphLook::mix(look.labelBack, look.cursor(), 0.25));
    }
    paintSwatch(trace, QRect(entry.left(), entry.top() + (line - kSwatch) / 2, kSwatch, kSwatch));

    mCanvas.painter.setPen(shown ? look.label : GraphLook::mix(look.labelBack, look.label, 0.45));
    QRect name(entry.left() + 2 * kSwatch, entry.top(), entry.width() - 2 * kSwatch, line);
    const GraphLayout::Legend kind = mCanvas.scene.layout.legendKind();
    if (kind != GraphLayout::Legend::Names) {
        QRect values = name;
        if (kind == GraphLayout::Legend::NamesAboveValues) {
            values.translate(0, line - 1);
        } else {
            values.setLeft(entry.right() + 1 - mCanvas.scene.layout.legendValuesWidth());
            name.setRight(values.left() - GraphCanvas::kPadding);
        }
        mCanvas.painter.setFont(mCanvas.scene.fixedFont);
        mCanvas.painter.drawText(
            values, kLeftAligned,
            GraphTexts::legendValues(mCanvas.model, trace, mCanvas.pointer.markersOn));
        mCanvas.painter.setFont(mCanvas.scene.font);
    }
    mCanvas.painter.drawText(name, kLeftAligned,
                             mCanvas.metrics.elidedText(mCanvas.model.parameter(trace).name,
                                                        Qt::ElideRight, name.width()));
}

void GraphLegend::paintSwatch(unsigned int trace, const QRect& swatch) const
{
    if (mCanvas.model.isShown(trace)) {
        mCanvas.painter.fillRect(swatch, mCanvas.colorOf(trace));
    } else {
        mCanvas.fillFrame(swatch, mCanvas.colorOf(trace));
    }
}

void GraphLegend::paintRest(int count) const
{
    const GraphLayout& parts = mCanvas.scene.layout;
    const QRect line = parts.legendEntry(parts.legendShown()).adjusted(2 * kSwatch, 0, 0, 0);
    const QString text =
        QCoreApplication::translate("VELIX::GraphOverlay", "+ %n more", nullptr, count);
    mCanvas.painter.setPen(mCanvas.look.label);
    mCanvas.painter.drawText(line, kLeftAligned,
                             mCanvas.metrics.elidedText(text, Qt::ElideRight, line.width()));
}

} // namespace VELIX
