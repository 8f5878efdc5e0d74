#include "gui/ExportProgressBox.h"

#include <QApplication>
#include <QProgressDialog>

#include <limits>

namespace VELIX {

namespace {

constexpr int kRefreshMs = 20;
constexpr int kDone = 100;
constexpr int kLeastWidth = 420;

} // namespace

ExportProgressBox::ExportProgressBox(QWidget* window, const QString& title, const QString& text,
                                     int patience)
    : mWindow(window), mTitle(title), mText(text), mPatience(patience)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    mRunning.start();
}

ExportProgressBox::~ExportProgressBox()
{
    QApplication::restoreOverrideCursor();
}

void ExportProgressBox::createBox()
{
    mBox = std::make_unique<QProgressDialog>(mWindow);
    mBox->setWindowTitle(mTitle);
    mBox->setLabelText(mText);
    mBox->setRange(0, kDone);
    mBox->setWindowModality(Qt::ApplicationModal);
    mBox->setMinimumWidth(kLeastWidth);
    mBox->setMinimumDuration(std::numeric_limits<int>::max()); // it is shown here, not by itself
    mBox->setAutoClose(false);
    mBox->setAutoReset(false);
    mBox->show();
    QApplication::changeOverrideCursor(Qt::BusyCursor); // the box can be operated
}

bool ExportProgressBox::report(int percent)
{
    if (mBox == nullptr) {
        if (mRunning.elapsed() < mPatience) {
            return true;
        }
        createBox();
    } else if (mRefreshed.elapsed() < kRefreshMs) {
        return !mBox->wasCanceled();
    }
    mBox->setValue(percent);
    QApplication::processEvents();
    mRefreshed.start();
    return !mBox->wasCanceled();
}

} // namespace VELIX
