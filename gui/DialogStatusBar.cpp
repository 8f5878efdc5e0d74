#include "gui/DialogStatusBar.h"

#include <QLabel>
#include <QLayout>
#include <QProgressBar>

namespace VELIX {

namespace {

constexpr int kProgressWidth = 200;
constexpr int kProgressHeight = 16;
constexpr int kPercentDone = 100;
constexpr int kRepaintMs = 250;

} // namespace

DialogStatusBar::DialogStatusBar(QWidget* parent)
    : QStatusBar(parent), mText(new QLabel(this)), mProgress(new QProgressBar(this))
{
    mText->setTextFormat(Qt::PlainText);
    // A long sentence must not widen the window; the tool tip has it in full.
    mText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    mProgress->setRange(0, kPercentDone);
    mProgress->setFixedSize(kProgressWidth, kProgressHeight);
    mProgress->setTextVisible(false);
    mProgress->setAccessibleName(tr("Progress"));
    mProgress->hide();
    addWidget(mText, 1);
    addPermanentWidget(mProgress);
    mProgress->hide();
}

void DialogStatusBar::beginWork(const QString& text)
{
    mWorking = true;
    clearMessage();
    mText->setText(text);
    mProgress->setValue(0);
    mProgress->show();
    layout()->activate();
    repaint();
    mSincePainted.start();
}

void DialogStatusBar::endWork()
{
    mWorking = false;
    mProgress->hide();
    updateText();
}

void DialogStatusBar::setProgress(int percent)
{
    mProgress->setValue(
        qBound(0, percent, kPercentDone)); // repaints itself when it grew by a pixel
    mProgress->setVisible(mWorking || percent < kPercentDone);
    if (mWorking && mSincePainted.elapsed() > kRepaintMs) {
        window()->repaint();
        mSincePainted.restart();
    }
}

void DialogStatusBar::showLoaded(const QString& text)
{
    mLoadedText = text;
    updateText();
}

void DialogStatusBar::showNotice(const QString& sentence)
{
    mNoticeText = sentence;
    updateText();
}

void DialogStatusBar::updateText()
{
    const QString both = mLoadedText.isEmpty() || mNoticeText.isEmpty()
                             ? mLoadedText + mNoticeText
                             : mLoadedText + QStringLiteral("   \u2013   ") + mNoticeText;
    mText->setText(both);
    mText->setToolTip(both);
}

} // namespace VELIX
