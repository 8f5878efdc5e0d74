#include "views/window/PageTabBar.h"

#include <QResizeEvent>
#include <QStyleOptionTab>
#include <QStylePainter>

namespace VELIX {

namespace {

constexpr int kIconTextGap = 4; // what a tab bar puts between its icon and its text
constexpr int kTextRoom = 10;   // what styles reserve after an icon for a text, besides its width

} // namespace

PageTabBar::PageTabBar(QWidget* parent) : QTabBar(parent)
{
    connect(this, &QTabBar::currentChanged, this, &PageTabBar::layOut);
}

/// A tab bar expects that tabs change their size when they become current only if a style sheet
/// says so; a resize event makes it lay out its tabs in any case.
void PageTabBar::layOut()
{
    QResizeEvent same(size(), size());
    resizeEvent(&same);
}

int PageTabBar::fullWidth() const
{
    int width = 0;
    for (int i = 0; i < count(); ++i) {
        width += QTabBar::tabSizeHint(i).width();
    }
    return width;
}

bool PageTabBar::isCompact(int index) const
{
    return index != currentIndex() && !tabIcon(index).isNull() && fullWidth() > width();
}

QSize PageTabBar::compactSize(int index) const
{
    const QSize full = QTabBar::tabSizeHint(index);
    const int text = fontMetrics().size(Qt::TextShowMnemonic, tabText(index)).width();
    return {full.width() - text - kIconTextGap - kTextRoom, full.height()};
}

QSize PageTabBar::tabSizeHint(int index) const
{
    return isCompact(index) ? compactSize(index) : QTabBar::tabSizeHint(index);
}

QSize PageTabBar::sizeHint() const
{
    return {fullWidth(), QTabBar::sizeHint().height()};
}

QSize PageTabBar::minimumSizeHint() const
{
    // Wide enough for any tab to be the current one, so that the window does not move.
    int icons = 0;
    int widest = 0;
    for (int i = 0; i < count(); ++i) {
        const int compact = compactSize(i).width();
        icons += compact;
        widest = std::max(widest, QTabBar::tabSizeHint(i).width() - compact);
    }
    return {icons + widest, QTabBar::sizeHint().height()};
}

void PageTabBar::tabInserted(int index)
{
    QTabBar::tabInserted(index);
    if (tabToolTip(index).isEmpty()) {
        setTabToolTip(index, tabText(index));
    }
}

void PageTabBar::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    const auto drawTab = [&](int index) {
        QStyleOptionTab option;
        initStyleOption(&option, index);
        if (isCompact(index)) {
            option.text.clear();
        }
        painter.drawControl(QStyle::CE_TabBarTab, option);
    };
    for (int i = 0; i < count(); ++i) {
        if (i != currentIndex()) {
            drawTab(i);
        }
    }
    if (currentIndex() >= 0) {
        drawTab(currentIndex()); // last, since it may overlap its neighbours
    }
}

} // namespace VELIX
