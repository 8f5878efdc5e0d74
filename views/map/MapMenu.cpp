#include "views/map/MapMenu.h"

#include "profile/DataType.h"
#include "profile/Profile.h"
#include "views/map/MapSelection.h"
#include "views/map/model/MapTexts.h"

#include <QActionGroup>
#include <QMouseEvent>

#include <algorithm>

namespace VELIX {

namespace {

/// Stays open while its entries are ticked, since most users tick more than one.
class TickMenu : public QMenu
{
public:
    using QMenu::QMenu;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        QAction* action = actionAt(event->pos());
        if (action != nullptr && action->isCheckable() && action->isEnabled()) {
            action->trigger();
        } else {
            QMenu::mouseReleaseEvent(event);
        }
    }
};

} // namespace

MapMenu::MapMenu(const Profile& profile, MapSelection& selection, QWidget* parent)
    : QMenu(parent), mProfile(profile), mSelection(selection)
{
    addValues();
    addColors();
}

void MapMenu::addValues()
{
    mValues = new TickMenu(tr("Show Values"), this);
    mValues->setObjectName(QStringLiteral("mapValues"));
    addMenu(mValues);
    const auto shown = mSelection.values(mProfile);
    for (const ProfileParameter* parameter : mProfile.selectedParameters()) {
        QAction* action = mValues->addAction(MapTexts::label(mProfile, *parameter));
        action->setCheckable(true);
        action->setChecked(std::find(shown.begin(), shown.end(), parameter) != shown.end());
        connect(action, &QAction::toggled, this,
                [this, name = parameter->fullName](bool on) { showValue(name, on); });
    }
    mValues->setEnabled(!mValues->isEmpty());
    disableWhatHasNoRoom();
}

void MapMenu::showValue(const QString& fullName, bool shown)
{
    if (mSelection.setValueShown(mProfile, fullName, shown)) {
        emit signalValuesChanged();
    }
    disableWhatHasNoRoom();
}

void MapMenu::disableWhatHasNoRoom()
{
    const bool full =
        mSelection.values(mProfile).size() >= static_cast<std::size_t>(MapSelection::kMostValues);
    for (QAction* action : mValues->actions()) {
        action->setEnabled(action->isChecked() || !full);
    }
}

void MapMenu::addColors()
{
    QMenu* colors = addMenu(tr("Colour Path by"));
    colors->setObjectName(QStringLiteral("mapColors"));
    auto* group = new QActionGroup(colors);
    addColor(*colors, *group, tr("Altitude"), {});
    colors->addSeparator();
    for (const ProfileParameter* parameter : mProfile.selectedParameters()) {
        const bool isNumber = extractionOf(parameter->dataType) != EExtraction::None;
        if (isNumber && parameter->velixDataType != QLatin1String("Altitude")) {
            addColor(*colors, *group, MapTexts::label(mProfile, *parameter), parameter->fullName);
        }
    }
}

/// An empty name means the altitude, as in the selection.
void MapMenu::addColor(QMenu& menu, QActionGroup& group, const QString& text,
                       const QString& fullName)
{
    const ProfileParameter* current = mSelection.color(mProfile);
    QAction* action = menu.addAction(text);
    action->setActionGroup(&group);
    action->setCheckable(true);
    action->setChecked(fullName == (current != nullptr ? current->fullName : QString()));
    connect(action, &QAction::triggered, this, [this, fullName] {
        mSelection.setColor(fullName);
        emit signalColorChanged();
    });
}

} // namespace VELIX
