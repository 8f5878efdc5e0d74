#pragma once

#include <QElapsedTimer>
#include <QStatusBar>

class QLabel;
class QProgressBar;

namespace VELIX {

/// The main window's status bar: what is loaded, the last failure in words, and the progress of
/// the current work.
class DialogStatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit DialogStatusBar(QWidget* parent = nullptr);

    /// Shows a text and the progress bar until endWork(), drawing at once: the event loop does
    /// not run meanwhile, so that nothing else can start. Progress then repaints the whole window
    /// now and again, since other windows may have wiped parts of it.
    void beginWork(const QString& text);
    void endWork();
    /// percent: 0 to 100, values beyond are cut. Without work begun, 100 hides the bar.
    void setProgress(int percent);

    /// What is loaded; stays until the next call.
    void showLoaded(const QString& text);
    /// A failure or result in words, beside what is loaded; empty takes it away.
    void showNotice(const QString& sentence);

    QString loaded() const { return mLoadedText; }
    QString notice() const { return mNoticeText; }

private:
    void updateText();

    QLabel* mText;
    QProgressBar* mProgress;
    bool mWorking = false;
    QElapsedTimer mSincePainted;
    QString mLoadedText;
    QString mNoticeText;
};

} // namespace VELIX
