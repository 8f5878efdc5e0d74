#include "gui/MainPanes.h"

#include "gui/card/DialogCard.h"
#include "gui/look/Spacing.h"
#include "gui/profile/DialogProfile.h"
#include "gui/project/AppContext.h"
#include "views/window/DialogData.h"

#include <QApplication>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr int kLeftPaneMinimum = 310; ///< a cycle's line fits
constexpr int kLeftPaneMaximum = 330; ///< the data has the space

} // namespace

MainPanes::MainPanes(AppContext& context, DialogService& dialogs, QWidget* parent)
    : QSplitter(parent),
      mCard(new DialogCard(context.card)),
      mProfile(new DialogProfile(context.profile)),
      mData(new DialogData(context.profile, context.card, context.settings, dialogs, context.paths,
                           context.emuOnly))
{
    connect(mData, &DialogData::signalSelectParameters, mProfile, &DialogProfile::focusSearch);
    QWidget* left = createLeftPane();
    addWidget(left);
    addWidget(mData);
    setStretchFactor(0, 1);
    setStretchFactor(1, 2);
    left->setHidden(context.emuOnly);
}

QWidget* MainPanes::createLeftPane()
{
    auto* column = new QSplitter(Qt::Vertical);
    column->addWidget(mCard);
    column->addWidget(mProfile);
    column->setChildrenCollapsible(false);
    auto* pane = new QWidget;
    pane->setMinimumWidth(kLeftPaneMinimum);
    pane->setMaximumWidth(kLeftPaneMaximum);
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(Spacing::kMargin, Spacing::kMargin, 0, Spacing::kMargin);
    layout->addWidget(column);
    return pane;
}

void MainPanes::fitLeftPane()
{
    if (count() > 1) {
        setSizes({200, 1});
    }
}

void MainPanes::showProfile()
{
    mProfile->updateList();
    mData->loadProfile();
}

void MainPanes::showSelection()
{
    mProfile->updateProject();
    mData->updateProfile();
}

void MainPanes::showUnits()
{
    mProfile->updateUnits();
    mData->updateProfile();
}

QString MainPanes::helpTopic() const
{
    const QWidget* focus = QApplication::focusWidget();
    const auto holds = [focus](const QWidget* pane) {
        return focus != nullptr && pane->isAncestorOf(focus);
    };
    return holds(mCard)      ? QStringLiteral("cards")
           : holds(mProfile) ? QStringLiteral("parameters")
                             : mData->helpTopic();
}

} // namespace VELIX
