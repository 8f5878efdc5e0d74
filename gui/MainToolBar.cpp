#include "gui/MainToolBar.h"

#include "gui/MainActions.h"
#include "gui/look/QwtComboBox.h"
#include "gui/look/Spacing.h"
#include "profile/Profile.h"

#include <QAction>
#include <QLabel>

namespace VELIX {

namespace {

constexpr int kIconSize = 24;
constexpr int kSeparator = -1;
constexpr int kButtons[] = {eActionOpenCard,    eActionExportKml,     eActionExportCsv,
                            kSeparator,         eActionNewProject,    eActionOpenProject,
                            eActionSaveProject, eActionSaveProjectAs, kSeparator};

} // namespace

MainToolBar::MainToolBar(const MainActions& actions, QWidget* parent)
    : QToolBar(tr("Main Toolbar"), parent)
{
    setMovable(false);
    setIconSize({kIconSize, kIconSize});
    setContextMenuPolicy(Qt::PreventContextMenu); // it could not be shown again
    for (const int id : kButtons) {
        if (id == kSeparator) {
            addSeparator();
        } else {
            addAction(actions.action(id));
        }
    }
    mVariant = addSelector(tr("&Variant"), tr("Variant of the profile"));
    mVariant->setObjectName(QStringLiteral("selectorVariant"));
    mVariant->setPlaceholderText(tr("All variants"));
    connect(mVariant, qOverload<const QString&>(&QwtComboBox::signalActivated), this,
            &MainToolBar::signalVariant);

    mUnit = addSelector(tr("&Units"), tr("Unit system of all values"));
    mUnit->setObjectName(QStringLiteral("selectorUnit"));
    mUnit->addItem(tr("Metric"), int{eUnitMetric});
    mUnit->addItem(tr("Imperial"), int{eUnitImperial});
    connect(mUnit, qOverload<int>(&QwtComboBox::signalActivated), this, &MainToolBar::signalUnit);
}

QwtComboBox* MainToolBar::addSelector(const QString& label, const QString& tip)
{
    auto* box = new QwtComboBox(this);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    box->setToolTip(tip);
    auto* text = new QLabel(label, this);
    text->setBuddy(box);
    text->setContentsMargins(Spacing::kMargin, 0, Spacing::kGap, 0);
    addWidget(text);
    addWidget(box);
    return box;
}

void MainToolBar::fillVariants(const std::vector<ProfileVariant>& variants)
{
    mVariant->clear();
    for (const ProfileVariant& variant : variants) {
        mVariant->addItem(variant.name, variant.name);
    }
    mVariant->setEnabled(mVariant->count() > 0);
    mVariant->setToolTip(mVariant->count() > 0 ? tr("Variant of the profile")
                                               : tr("The profile has no variants"));
}

void MainToolBar::selectVariant(const QString& variant)
{
    mVariant->selectText(variant);
}

void MainToolBar::selectUnit(int unit)
{
    mUnit->selectData(unit);
}

} // namespace VELIX
