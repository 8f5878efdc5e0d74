#include "views/fault/DialogDataErrorMatrix.h"

#include "gui/look/WidgetHint.h"
#include "profile/Profile.h"
#include "views/fault/WidgetFaultMatrix.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr int kLivePeriod = 50; // ms
constexpr int kMargin = 4;
constexpr int kGap = 8;

} // namespace

DialogDataErrorMatrix::DialogDataErrorMatrix(const Profile& profile, QWidget* parent)
    : QWidget(parent),
      mProfile(profile),
      mScrollArea(new QScrollArea(this)),
      mContainer(new QWidget),
      mHint(new WidgetHint(this))
{
    mUpdateTimer.setInterval(kLivePeriod);
    connect(&mUpdateTimer, &QTimer::timeout, this, &DialogDataErrorMatrix::slotTimeoutUpdate);
    connect(mHint, &WidgetHint::signalLink, this, &DialogDataErrorMatrix::signalInstallProfile);

    auto* panels = new QVBoxLayout(mContainer);
    panels->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    panels->setSpacing(kGap);
    mScrollArea->setWidget(mContainer);
    mScrollArea->setWidgetResizable(true);
    mScrollArea->setFrameShape(QFrame::NoFrame);
    mScrollArea->setAccessibleName(tr("Fault matrices"));

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mScrollArea, 0, 0);
    layout->addWidget(mHint, 0, 0);
    loadProfile();
}

void DialogDataErrorMatrix::loadProfile()
{
    mPanels.clear();
    QLayout* layout = mContainer->layout();
    while (QLayoutItem* item = layout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const ProfileDevice& device : mProfile.data().devices) {
        for (const FaultMatrix& matrix : device.errorMatrices) {
            auto* panel = new WidgetFaultMatrix;
            panel->setData(matrix);
            layout->addWidget(panel);
            mPanels[matrix.id] = panel;
        }
    }
    // Panels have a fixed height; the rest of the space stays free below them.
    static_cast<QVBoxLayout*>(layout)->addStretch(1);
    updateHint();
}

void DialogDataErrorMatrix::updateRecord(RecordData* record)
{
    mRecord = record;
    for (const auto& [id, panel] : mPanels) {
        panel->updateRecord(record);
    }
    updateHint();
}

void DialogDataErrorMatrix::setTime(double seconds)
{
    // Painting at once also paints all that is waiting to be painted, so the bars move before the
    // cells change.
    for (const auto& [id, panel] : mPanels) {
        panel->moveBar(seconds);
    }
    for (const auto& [id, panel] : mPanels) {
        panel->setTime(seconds);
    }
}

void DialogDataErrorMatrix::setVelixMode(int mode)
{
    mMode = mode;
    if (mode != 0) {
        mUpdateTimer.start();
    } else {
        mUpdateTimer.stop();
    }
    updateHint();
}

void DialogDataErrorMatrix::slotTimeoutUpdate()
{
    for (const auto& [id, panel] : mPanels) {
        panel->updateLiveData();
    }
}

/// Says what is missing where cells would look as if nothing had ever failed.
void DialogDataErrorMatrix::updateHint()
{
    WidgetHint::Message missing;
    if (mProfile.isEmpty()) {
        missing = WidgetHint::withoutProfile();
    } else if (mPanels.empty()) {
        missing.text = tr("The profile has no fault matrix. Choose another variant, "
                          "or a profile that has one.");
    } else if (mRecord == nullptr && mMode == 0) {
        missing = WidgetHint::withoutRecord();
    }
    mHint->showInsteadOf(mScrollArea, missing);
}

} // namespace VELIX
