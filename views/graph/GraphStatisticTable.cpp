#include "views/graph/GraphStatisticTable.h"

#include "gui/look/CopyFilter.h"
#include "views/graph/model/GraphModel.h"
#include "views/graph/model/GraphTicks.h"
#include "views/graph/widget/GraphTexts.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

enum EColumn { eName, eMinimum, eMaximum, eAverage, eUnit, eColumnCount };

constexpr int kGap = 4;
constexpr int kLeastRowHeight = 22;
constexpr int kRowMargin = 6;
constexpr int kHeadingMargin = 20;
constexpr int kMostRows = 5; ///< rows that need no scrolling; the graph has the space
constexpr int kSwatch = 12;
constexpr int kDecimals = 2; // of seconds

QIcon swatchOf(const GraphModel::Color& color)
{
    QPixmap swatch(kSwatch, kSwatch);
    swatch.fill(QColor::fromRgbF(static_cast<double>(color[0]), static_cast<double>(color[1]),
                                 static_cast<double>(color[2])));
    return QIcon(swatch);
}

Qt::Alignment alignmentOf(int column)
{
    const bool isNumber = column != eName && column != eUnit;
    return (isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

} // namespace

GraphStatisticTable::GraphStatisticTable(QWidget* parent)
    : QWidget(parent), mHeading(new QLabel(this)), mTable(new QTableWidget(0, eColumnCount, this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, kGap, 0, 0);
    layout->setSpacing(kGap);
    layout->addWidget(mHeading);
    layout->addWidget(mTable);
    mHeading->setProperty("role", QStringLiteral("muted")); // the style sheet colours it
    mHeading->setWordWrap(true);
    mHeading->setContentsMargins(2 * kGap, 0, 2 * kGap, 0);
    createTable();
    fitHeight();
}

void GraphStatisticTable::createTable()
{
    mTable->setObjectName(QStringLiteral("tableStatistic"));
    mTable->setAccessibleName(tr("Minimum, maximum and average of the traces"));
    mTable->setHorizontalHeaderLabels(
        {tr("Parameter"), tr("Minimum"), tr("Maximum"), tr("Average"), tr("Unit")});
    mTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    mTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    mTable->setTabKeyNavigation(false);
    mTable->setWordWrap(false);
    mTable->setIconSize({kSwatch, kSwatch});
    mTable->verticalHeader()->hide();
    mTable->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    mTable->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    QHeaderView* header = mTable->horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionResizeMode(QHeaderView::Stretch);
    header->setSectionResizeMode(eUnit, QHeaderView::ResizeToContents);
    for (int column = 0; column < eColumnCount; ++column) {
        mTable->horizontalHeaderItem(column)->setTextAlignment(alignmentOf(column));
    }
    CopyFilter::install(mTable);
}

QString GraphStatisticTable::heading() const
{
    return mHeading->text();
}

void GraphStatisticTable::update(const GraphModel& model)
{
    const GraphMarkers& markers = model.markers();
    if (model.plotRevision() == mRevision && markers == mMarkers) {
        return;
    }
    mRevision = model.plotRevision();
    mMarkers = markers;
    showSpan(model);
    int row = 0;
    mTable->setRowCount(static_cast<int>(model.nrActive()));
    for (const unsigned int trace : model.displayOrder()) {
        if (model.parameter(trace).active) {
            showRow(row++, model, trace);
        }
    }
    fitHeight();
}

void GraphStatisticTable::showSpan(const GraphModel& model)
{
    const bool marked = !mMarkers.coincide();
    const double from = marked ? mMarkers.start() : model.xmin();
    const double to = marked ? mMarkers.stop() : model.xmax();
    const QString text = marked ? tr("Between the markers: %1 to %2, %3 s")
                                : tr("In the visible range: %1 to %2, %3 s");
    const auto time = [](double value) {
        const QString label = GraphTicks::timeLabel(std::abs(value), kDecimals);
        if (label.isEmpty()) { // beyond any clock
            return QString::number(value, 'f', kDecimals);
        }
        return value < 0.0 ? QLatin1Char('-') + label : label; // the margin before a record
    };
    mHeading->setText(text.arg(time(from), time(to), QString::number(to - from, 'f', kDecimals)));
}

void GraphStatisticTable::showRow(int row, const GraphModel& model, unsigned int trace)
{
    const GraphModel::ParStruct& parameter = model.parameter(trace);
    const GraphTrace::Statistics values = model.markerStatistics(trace);
    const auto number = [&](double value, int decimals) {
        return values.count == 0 ? QStringLiteral("---") : GraphTexts::fixed(value, decimals);
    };
    setCell(row, eName, parameter.name);
    mTable->item(row, eName)->setIcon(swatchOf(parameter.color));
    setCell(row, eMinimum, number(values.minimum, parameter.precision));
    setCell(row, eMaximum, number(values.maximum, parameter.precision));
    setCell(row, eAverage, number(values.average, std::max(parameter.precision, 1)));
    setCell(row, eUnit, parameter.unit);
}

void GraphStatisticTable::setCell(int row, int column, const QString& text)
{
    QTableWidgetItem* item = mTable->item(row, column);
    if (item == nullptr) {
        item = new QTableWidgetItem;
        item->setTextAlignment(alignmentOf(column));
        mTable->setItem(row, column, item);
    }
    if (item->text() != text) {
        item->setText(text);
    }
}

/// Rather a scroll bar than headings cut off, where the view is narrow.
void GraphStatisticTable::fitHeadings()
{
    QHeaderView* header = mTable->horizontalHeader();
    int width = 0;
    for (int column = 0; column < eColumnCount; ++column) {
        width = std::max(width, header->fontMetrics().horizontalAdvance(
                                    mTable->horizontalHeaderItem(column)->text()));
    }
    header->setMinimumSectionSize(width + kHeadingMargin);
}

void GraphStatisticTable::fitHeight()
{
    fitHeadings();
    const int rowHeight = std::max(kLeastRowHeight, mTable->fontMetrics().height() + kRowMargin);
    mTable->verticalHeader()->setMinimumSectionSize(rowHeight);
    mTable->verticalHeader()->setDefaultSectionSize(rowHeight);
    const int rows = std::clamp(mTable->rowCount(), 1, kMostRows);
    mTable->setFixedHeight(mTable->horizontalHeader()->sizeHint().height() + rows * rowHeight +
                           2 * mTable->frameWidth());
}

void GraphStatisticTable::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        // The table hears of a new font after its parent.
        QMetaObject::invokeMethod(
            this, [this] { fitHeight(); }, Qt::QueuedConnection);
    }
}

} // namespace VELIX
