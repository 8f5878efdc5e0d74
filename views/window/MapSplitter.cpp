#include "views/window/MapSplitter.h"

#include "gui/look/ImageHandler.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QToolButton>

namespace VELIX {

namespace {

constexpr int kIconSize = 32;

/// The buttons' ids.
enum EMapLayout { eMapHidden = 0, eMapBeside = 1, eMapBelow = 2 };

} // namespace

MapSplitter::MapSplitter(QWidget* pages, QWidget* map, QBoxLayout& buttonRow, QWidget* parent)
    : QSplitter(Qt::Horizontal, parent), mButtons(new QButtonGroup(this))
{
    addWidget(pages);
    addWidget(map);
    setSizes({200, 300});
    addButtons(buttonRow);
    connect(this, &QSplitter::splitterMoved, this, &MapSplitter::followHandle);
    connect(mButtons, &QButtonGroup::idClicked, this, &MapSplitter::signalArrangement);
}

void MapSplitter::addButtons(QBoxLayout& row)
{
    const auto addButton = [&](EMapLayout id, const char* icon, const QString& tip) {
        auto* button = new QToolButton; // as a child of the splitter it would be a pane
        button->setObjectName(QStringLiteral("buttonMap%1").arg(id));
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setIconSize({kIconSize, kIconSize});
        button->setIcon(ImageHandler::instance().icon(QLatin1String(icon)));
        button->setToolTip(tip);
        button->setAccessibleName(tip);
        mButtons->addButton(button, id);
        row.addWidget(button);
    };
    addButton(eMapHidden, "map-none", tr("Hide Map Display"));
    addButton(eMapBeside, "map-horizontal", tr("Tile Map Display Horizontally"));
    addButton(eMapBelow, "map-vertical", tr("Tile Map Display Vertically"));
    mButtons->button(eMapBeside)->setChecked(true);
}

void MapSplitter::arrange(int id)
{
    if (id == eMapHidden) {
        setSizes({100, 0});
        return;
    }
    if (id != eMapBeside && id != eMapBelow) {
        return;
    }
    setOrientation(id == eMapBeside ? Qt::Horizontal : Qt::Vertical);
    const QList<int> shares = sizes();
    if (shares.contains(0)) {
        const int half = (shares[0] + shares[1]) / 2;
        setSizes({half, half});
    }
}

/// The buttons show the present arrangement, also after the handle was dragged.
void MapSplitter::followHandle()
{
    const EMapLayout shown = orientation() == Qt::Horizontal ? eMapBeside : eMapBelow;
    mButtons->button(sizes().last() == 0 ? eMapHidden : shown)->setChecked(true);
}

} // namespace VELIX
