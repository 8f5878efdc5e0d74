#include "views/fault/WidgetFaultMatrix.h"

#include "card/FaultWord.h"
#include "card/RecordData.h"
#include "gui/look/Palette.h"
#include "views/common/RecordTable.h"
#include "views/fault/WidgetErrorItem.h"
#include "views/fault/WidgetErrorTime.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr int kTitlePixels = 16;
constexpr int kBold = 75;
constexpr int kHeaderPixels = 8;
constexpr int kHeaderHeight = 14; // leaves room for the row and a scroll bar below it
constexpr int kColumnWidth = 15;
constexpr int kRowHeight = 150;
constexpr int kTableHeight = 180;
constexpr int kNarrowTable = 639; // pixels; narrower ones scroll
constexpr int kNarrowColumn = 20;
constexpr int kMargin = 8;
constexpr int kSideMargin = 4; // narrow: a window of 1000 pixels then shows all columns
constexpr int kGap = 4;

/// Returns the first of `shown` adjacent columns that have the most bits with a type.
int firstColumnShown(const FaultMatrix& matrix, int bits, int shown)
{
    const auto isUsed = [&](int column) {
        const auto bit = matrix.bits.find(bits - 1 - column);
        return bit != matrix.bits.end() && bit->second.errorType != eErrorNone;
    };
    int best = 0;
    int most = 0;
    for (int first = 0; first + shown <= bits; ++first) {
        int used = 0;
        for (int column = first; column < first + shown; ++column) {
            used += isUsed(column) ? 1 : 0;
        }
        if (used > most) {
            most = used;
            best = first;
        }
    }
    return best;
}

/// The text that a copy of the table has for a bit: the cell itself is a widget.
class BitItem : public QTableWidgetItem
{
public:
    explicit BitItem(const WidgetErrorItem& cell) : mCell(cell)
    {
        setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    }

    QVariant data(int role) const override
    {
        if (role != Qt::DisplayRole || mCell.type() == eErrorNone) {
            return {};
        }
        return QStringLiteral("%1: %2").arg(mCell.text()).arg(mCell.errorState() ? 1 : 0);
    }

private:
    const WidgetErrorItem& mCell;
};

} // namespace

WidgetFaultMatrix::WidgetFaultMatrix(QWidget* parent)
    : QFrame(parent),
      mTitle(new QLabel(this)),
      mTime(new WidgetErrorTime(this)),
      mTable(new RecordTable(this))
{
    setFrameShape(QFrame::Panel);
    setFrameShadow(QFrame::Plain);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    createTitle();
    createTable();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kSideMargin, kMargin, kSideMargin, kGap);
    layout->setSpacing(kGap);
    layout->addWidget(mTitle);
    layout->addWidget(mTime);
    layout->addWidget(mTable);
    showFocus(false);
}

void WidgetFaultMatrix::createTitle()
{
    QFont font = mTitle->font();
    font.setPixelSize(kTitlePixels);
    font.setWeight(kBold);
    mTitle->setFont(font);
    // A font size that the user gives to all widgets would override the font. The colour is
    // named because the panel's frame takes that of the inherited text.
    mTitle->setStyleSheet(QStringLiteral("font-size: %1px; font-weight: bold; color: %2;")
                              .arg(kTitlePixels)
                              .arg(Palette::current().text.name()));
    mTitle->setAlignment(Qt::AlignCenter);
    mTitle->setTextFormat(Qt::PlainText);
    mTitle->setWordWrap(true);
}

void WidgetFaultMatrix::createTable()
{
    mTable->setRowCount(1);
    mTable->setColumnCount(kBits);
    mTable->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // A border would take pixels from the columns, and those that are left over at the right belong
    // to the panel, which frames the table.
    setStyleSheet(QStringLiteral("QTableWidget { border: none; background: transparent; }"));
    mTable->setFrameShape(QFrame::NoFrame);
    mTable->setFixedHeight(kTableHeight);
    mTable->verticalHeader()->hide();
    mTable->verticalHeader()->setMinimumSectionSize(kColumnWidth);
    mTable->setRowHeight(0, kRowHeight);

    QHeaderView* header = mTable->horizontalHeader();
    QFont font = header->font();
    font.setPixelSize(kHeaderPixels);
    header->setFont(font);
    header->setStyleSheet(QStringLiteral("QHeaderView { font-size: %1px; background: transparent; }"
                                         "QHeaderView::section { padding: 0; font-size: %1px; }")
                              .arg(kHeaderPixels));
    header->setFixedHeight(kHeaderHeight);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setMinimumSectionSize(kColumnWidth);
    QStringList labels;
    for (int column = 0; column < kBits; ++column) {
        mTable->setColumnWidth(column, kColumnWidth);
        labels.append(QString::number(kBits - 1 - column));
    }
    mTable->setHorizontalHeaderLabels(labels);
    mTable->installEventFilter(this);
    const QScrollBar* bar = mTable->horizontalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, this, &WidgetFaultMatrix::showAssigned);
    connect(bar, &QScrollBar::actionTriggered, this, [this] { mScrolled = true; });
}

void WidgetFaultMatrix::setData(const FaultMatrix& matrix)
{
    mMatrix = matrix;
    mRecord = nullptr;
    mTitle->setText(matrix.name);
    mTable->setAccessibleName(matrix.name);
    mTime->setData(matrix);
    for (int bit = 0; bit < kBits; ++bit) {
        auto* cell = new WidgetErrorItem;
        const auto assigned = matrix.bits.find(bit);
        if (assigned != matrix.bits.end()) {
            cell->setText(assigned->second.name);
            cell->setToolTip(assigned->second.name);
            cell->setType(assigned->second.errorType);
        } else {
            cell->setText(QStringLiteral("para.name")); // never seen: the cell has no type
            cell->setType(eErrorNone);
        }
        cell->setErrorState(false);
        mTable->setItem(0, kBits - 1 - bit, new BitItem(*cell));
        mTable->setCellWidget(0, kBits - 1 - bit, cell);
        mItems[static_cast<std::size_t>(bit)] = cell;
    }
}

void WidgetFaultMatrix::updateRecord(RecordData* record)
{
    mRecord = record;
    mTime->updateRecord(record);
    if (record == nullptr) {
        showWord(0);
    }
}

void WidgetFaultMatrix::moveBar(double seconds)
{
    mTime->setTime(seconds);
}

void WidgetFaultMatrix::setTime(double seconds)
{
    moveBar(seconds);
    if (mRecord != nullptr) {
        showWord(faultWordAt(mRecord->entries(mMatrix), seconds));
    }
}

void WidgetFaultMatrix::updateLiveData()
{
    if (mRecord != nullptr) {
        const RecordIdList* list = mRecord->find(mMatrix);
        showWord(list != nullptr ? faultWord(list->last) : 0);
    }
}

void WidgetFaultMatrix::showWord(std::uint32_t word)
{
    for (WidgetErrorItem* item : mItems) {
        if (item != nullptr) {
            item->setErrorState((word & 1) != 0);
        }
        word >>= 1;
    }
}

void WidgetFaultMatrix::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    fitColumns();
}

void WidgetFaultMatrix::fitColumns()
{
    const bool narrow = mTable->width() < kNarrowTable;
    const int width = narrow ? kNarrowColumn : (mTable->width() + 1) / kBits;
    QHeaderView* header = mTable->horizontalHeader();
    header->setMinimumSectionSize(width);
    for (int column = 0; column < kBits; ++column) {
        mTable->setColumnWidth(column, width);
    }
    // The shared width may be a pixel too much, which is no reason to scroll.
    mTable->setHorizontalScrollBarPolicy(narrow ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

/// Scrolls a table that shows only some of its columns to where the most bits are assigned, so that
/// it does not look as if the matrix had none.
void WidgetFaultMatrix::showAssigned()
{
    const int width = mTable->columnWidth(0);
    const int shown = mTable->viewport()->width() / width;
    if (mScrolled || shown >= kBits) {
        return;
    }
    const int first = firstColumnShown(mMatrix, kBits, shown);
    // The keyboard begins there too: the table would otherwise scroll back when it gets the focus.
    mTable->selectionModel()->setCurrentIndex(mTable->model()->index(0, first),
                                              QItemSelectionModel::NoUpdate);
    mTable->horizontalScrollBar()->setValue(first * width);
}

bool WidgetFaultMatrix::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        showFocus(event->type() == QEvent::FocusIn);
    }
    return QFrame::eventFilter(watched, event);
}

/// Shows the focus on the frame, since the cells cover what a table shows of it.
void WidgetFaultMatrix::showFocus(bool focused)
{
    QPalette frame = palette();
    frame.setColor(QPalette::WindowText,
                   focused ? Palette::current().accent : Palette::current().line);
    setPalette(frame);
}

} // namespace VELIX
