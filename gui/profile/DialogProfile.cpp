#include "gui/profile/DialogProfile.h"

#include "gui/look/CopyFilter.h"
#include "gui/look/ImageHandler.h"
#include "gui/look/Palette.h"
#include "gui/look/Spacing.h"
#include "gui/look/TreeColumn.h"
#include "gui/look/WidgetHint.h"
#include "profile/Profile.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSet>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr int kBlinkMs = 250;
constexpr int kParameterRole = Qt::UserRole;
constexpr int kDeviceRole = Qt::UserRole + 1;

ProfileParameter* parameterOf(const QTreeWidgetItem& item)
{
    return item.data(0, kParameterRole).value<ProfileParameter*>();
}

Qt::CheckState checkState(const ProfileParameter& parameter)
{
    return parameter.selected ? Qt::Checked : Qt::Unchecked;
}

/// Names of the devices that the user closed, so that they stay closed in the next list.
QSet<QString> closedDevices(const QTreeWidget& tree)
{
    QSet<QString> closed;
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = tree.topLevelItem(i);
        if (!item->isExpanded()) {
            closed.insert(item->data(0, kDeviceRole).toString());
        }
    }
    return closed;
}

} // namespace

DialogProfile::DialogProfile(Profile& profile, QWidget* parent)
    : QWidget(parent),
      mProfile(profile),
      mTree(new QTreeWidget(this)),
      mSearch(new QLineEdit(this)),
      mCount(new QLabel(this)),
      mButtonClear(new QPushButton(tr("Clear"), this)),
      mButtonConfirm(new QPushButton(tr("Confirm Selection"), this)),
      mHint(new WidgetHint(this)),
      mPages(new QStackedWidget(this))
{
    qRegisterMetaType<ProfileParameter*>("VELIX::ProfileParameter*");
    createTree();
    mHint->setHint(tr("No profile installed. Parameters come from a profile file."),
                   tr("Install New Profile"));
    mPages->addWidget(createPage());
    mPages->addWidget(mHint);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mPages);

    connect(mTree, &QTreeWidget::itemChanged, this, &DialogProfile::slotItemChanged);
    connect(mSearch, &QLineEdit::textChanged, this, &DialogProfile::slotFilter);
    connect(mButtonClear, &QPushButton::clicked, this, &DialogProfile::slotClear);
    connect(mButtonConfirm, &QPushButton::clicked, this, &DialogProfile::slotConfirm);
    connect(mHint, &WidgetHint::signalLink, this, &DialogProfile::signalInstallProfile);
    connect(&mTimerBlink, &QTimer::timeout, this, &DialogProfile::slotTimeout);
    updateList();
}

void DialogProfile::createTree()
{
    mTree->setHeaderLabels({tr("Selected Parameters")});
    mTree->setUniformRowHeights(true);
    mTree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    mTree->setObjectName(QStringLiteral("treeParameters"));
    mTree->setAccessibleName(tr("Selected Parameters"));
    CopyFilter::install(mTree);
    mTree->setContextMenuPolicy(Qt::ActionsContextMenu); // by mouse and by key
    const auto addEntry = [this](const QString& text, bool selected) {
        auto* action = new QAction(text, mTree);
        connect(action, &QAction::triggered, this, [this, selected] { selectShown(selected); });
        mTree->addAction(action);
    };
    addEntry(tr("Select &All Shown"), true);
    addEntry(tr("Select &None Shown"), false);
}

QWidget* DialogProfile::createPage()
{
    const ImageHandler& images = ImageHandler::instance();
    mSearch->setObjectName(QStringLiteral("searchParameters"));
    mSearch->setPlaceholderText(tr("Search parameters"));
    mSearch->setAccessibleName(mSearch->placeholderText());
    mSearch->setClearButtonEnabled(true);
    mSearch->addAction(images.icon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    mCount->setObjectName(QStringLiteral("countParameters"));
    mCount->setProperty("role", QStringLiteral("muted"));
    mButtonClear->setObjectName(QStringLiteral("buttonClear"));
    mButtonClear->setIcon(images.icon(QStringLiteral("clear")));
    mButtonClear->setToolTip(tr("Show no parameter at all"));
    mButtonConfirm->setObjectName(QStringLiteral("buttonConfirm"));
    mButtonConfirm->setIcon(images.icon(QStringLiteral("confirm")));
    mButtonConfirm->setToolTip(tr("Show the ticked parameters in all views"));

    auto* page = new QWidget(this);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Spacing::kGap);
    buttons->addWidget(mButtonClear);
    buttons->addWidget(mButtonConfirm, 1);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, Spacing::kMargin, 0, 0);
    layout->setSpacing(Spacing::kGap);
    layout->addWidget(mSearch);
    layout->addWidget(mTree, 1);
    layout->addWidget(mCount);
    layout->addLayout(buttons);
    setTabOrder(mSearch, mTree);
    setTabOrder(mTree, mButtonClear);
    setTabOrder(mButtonClear, mButtonConfirm);
    return page;
}

void DialogProfile::updateList()
{
    updateProfile(mTree, mProfile.data());
    slotFilter(mSearch->text());
    mPages->setCurrentIndex(mProfile.isEmpty() ? 1 : 0);
}

void DialogProfile::updateProfile(QTreeWidget* tree, ProfileInfo& info)
{
    const QScopedValueRollback<bool> updating(mUpdating, true);
    const QSet<QString> closed = closedDevices(*tree);
    tree->clear();
    int number = 0;
    QList<QTreeWidgetItem*> items;
    for (ProfileDevice& device : info.devices) {
        auto* item = new QTreeWidgetItem;
        item->setText(0, QStringLiteral("%1 %2").arg(++number).arg(device.name));
        item->setData(0, kDeviceRole, device.name);
        for (auto& [id, parameter] : device.parameters) {
            addParameter(item, parameter);
        }
        // Ticking the device ticks its parameters.
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
        items.append(item);
    }
    tree->addTopLevelItems(items);
    for (QTreeWidgetItem* item : qAsConst(items)) {
        item->setExpanded(!closed.contains(item->data(0, kDeviceRole).toString()));
    }
    TreeColumn::fit(*tree);
    updateCount();
}

void DialogProfile::addParameter(QTreeWidgetItem* device, ProfileParameter& parameter)
{
    auto* item = new QTreeWidgetItem(device);
    item->setData(0, kParameterRole, QVariant::fromValue(&parameter));
    item->setText(0, mProfile.format(parameter).label(NumberFormat::EUnitOf::List));
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(0, checkState(parameter));
}

void DialogProfile::forEachItem(
    const std::function<void(QTreeWidgetItem&, ProfileParameter&)>& function)
{
    const QScopedValueRollback<bool> updating(mUpdating, true);
    for (int i = 0; i < mTree->topLevelItemCount(); ++i) {
        QTreeWidgetItem* device = mTree->topLevelItem(i);
        for (int j = 0; j < device->childCount(); ++j) {
            function(*device->child(j), *parameterOf(*device->child(j)));
        }
    }
}

void DialogProfile::updateUnits()
{
    forEachItem([this](QTreeWidgetItem& item, const ProfileParameter& parameter) {
        item.setText(0, mProfile.format(parameter).label(NumberFormat::EUnitOf::List));
    });
    TreeColumn::fit(*mTree);
}

void DialogProfile::updateProject()
{
    forEachItem([](QTreeWidgetItem& item, const ProfileParameter& parameter) {
        item.setCheckState(0, checkState(parameter));
    });
    updateCount();
}

void DialogProfile::updateCount()
{
    mSelected = 0;
    mTotal = 0;
    for (const ProfileDevice& device : mProfile.data().devices) {
        for (const auto& [id, parameter] : device.parameters) {
            mSelected += parameter.selected ? 1 : 0;
            ++mTotal;
        }
    }
    showCount();
}

void DialogProfile::showCount()
{
    mCount->setText(tr("%1 of %2 selected").arg(mSelected).arg(mTotal));
}

void DialogProfile::selectShown(bool selected)
{
    bool changed = false;
    forEachItem([&](QTreeWidgetItem& item, ProfileParameter& parameter) {
        if (!item.isHidden() && parameter.selected != selected) {
            parameter.selected = selected;
            item.setCheckState(0, checkState(parameter));
            changed = true;
        }
    });
    updateCount();
    if (changed) {
        startBlinking();
    }
}

void DialogProfile::focusSearch()
{
    mSearch->setFocus();
    mSearch->selectAll();
}

void DialogProfile::slotItemChanged(QTreeWidgetItem* item, int column)
{
    ProfileParameter* parameter = mUpdating || column != 0 ? nullptr : parameterOf(*item);
    if (parameter == nullptr) { // a device follows its parameters
        return;
    }
    const bool selected = item->checkState(0) == Qt::Checked;
    if (selected != parameter->selected) {
        parameter->selected = selected;
        mSelected += selected ? 1 : -1;
        showCount();
    }
    startBlinking();
}

void DialogProfile::startBlinking()
{
    if (!mTimerBlink.isActive()) {
        mTimerBlink.start(kBlinkMs);
    }
}

void DialogProfile::slotTimeout()
{
    setHighlighted(!mHighlighted);
}

void DialogProfile::slotConfirm()
{
    emit signalChanged();
    stopBlinking();
}

void DialogProfile::slotClear()
{
    for (ProfileDevice& device : mProfile.data().devices) {
        for (auto& [id, parameter] : device.parameters) {
            parameter.selected = false;
        }
    }
    updateProject();
    emit signalCleared();
    emit signalChanged();
    stopBlinking(); // the views show what is ticked: there is nothing left to confirm
}

void DialogProfile::slotFilter(const QString& text)
{
    const QString wanted = text.trimmed();
    for (int i = 0; i < mTree->topLevelItemCount(); ++i) {
        QTreeWidgetItem* device = mTree->topLevelItem(i);
        const bool wholeDevice = device->text(0).contains(wanted, Qt::CaseInsensitive);
        bool any = wholeDevice;
        for (int j = 0; j < device->childCount(); ++j) {
            QTreeWidgetItem* item = device->child(j);
            const bool found = wholeDevice || item->text(0).contains(wanted, Qt::CaseInsensitive);
            item->setHidden(!found);
            any = any || found;
        }
        device->setHidden(!any);
        // The tick of a device would also reach the parameters that are out of sight.
        const QScopedValueRollback<bool> updating(mUpdating, true);
        device->setFlags(wanted.isEmpty() || wholeDevice
                             ? device->flags() | Qt::ItemIsUserCheckable
                             : device->flags() & ~Qt::ItemIsUserCheckable);
    }
}

void DialogProfile::setHighlighted(bool highlighted)
{
    mHighlighted = highlighted;
    if (!highlighted) {
        mButtonConfirm->setStyleSheet({}); // first, since it brings back an older palette
        mButtonConfirm->setPalette({});    // that of all buttons
        return;
    }
    const Palette& look = Palette::current();
    QPalette colors = mButtonConfirm->palette();
    colors.setColor(QPalette::Button, look.accent);
    colors.setColor(QPalette::ButtonText, look.accentText);
    mButtonConfirm->setPalette(colors);
    // The program's style sheet hides the palette of a button, so its own one repeats it.
    mButtonConfirm->setStyleSheet(QStringLiteral("QPushButton {background: %1; color: %2;}")
                                      .arg(look.accent.name(), look.accentText.name()));
}

void DialogProfile::stopBlinking()
{
    mTimerBlink.stop();
    setHighlighted(false);
}

} // namespace VELIX
