#include "gui/look/WrapLayout.h"

#include <algorithm>

namespace VELIX {

WrapLayout::WrapLayout(QWidget* parent, int gap) : QLayout(parent), mGap(gap) {}

WrapLayout::~WrapLayout() = default;

void WrapLayout::addItem(QLayoutItem* item)
{
    mItems.emplace_back(item);
}

QLayoutItem* WrapLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? mItems[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrapLayout::takeAt(int index)
{
    if (index < 0 || index >= count()) {
        return nullptr;
    }
    QLayoutItem* item = mItems[static_cast<std::size_t>(index)].release();
    mItems.erase(mItems.begin() + index);
    return item;
}

int WrapLayout::heightForWidth(int width) const
{
    return arrange({0, 0, width, 0}, false);
}

QSize WrapLayout::minimumSize() const
{
    QSize size;
    for (const auto& item : mItems) {
        size = size.expandedTo(item->minimumSize());
    }
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

/// Everything in one row.
QSize WrapLayout::sizeHint() const
{
    QSize size(0, 0);
    for (const auto& item : mItems) {
        const QSize wanted = item->sizeHint();
        size = QSize(size.width() + wanted.width() + (size.width() > 0 ? mGap : 0),
                     std::max(size.height(), wanted.height()));
    }
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void WrapLayout::setGeometry(const QRect& area)
{
    QLayout::setGeometry(area);
    arrange(area, true);
}

/// The height that the rows take in the width of an area; `move` also moves the items there.
int WrapLayout::arrange(const QRect& area, bool move) const
{
    const QRect inside = area.marginsRemoved(contentsMargins());
    QPoint corner = inside.topLeft();
    int rowHeight = 0;
    for (const auto& item : mItems) {
        const QSize size = item->sizeHint();
        const bool fits = corner.x() + size.width() <= inside.left() + inside.width();
        if (!fits && corner.x() > inside.left()) {
            corner = QPoint(inside.left(), corner.y() + rowHeight + mGap);
            rowHeight = 0;
        }
        if (move) {
            item->setGeometry(QRect(corner, size));
        }
        corner.rx() += size.width() + mGap;
        rowHeight = std::max(rowHeight, size.height());
    }
    return corner.y() + rowHeight - inside.top() + contentsMargins().top() +
           contentsMargins().bottom();
}

} // namespace VELIX
