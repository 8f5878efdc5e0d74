#pragma once

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

namespace VELIX {

/// How far an export is: the busy cursor at first and, once it has taken half a second, a box with
/// a Cancel button.
///
/// While the box is shown, the windows paint and timers run, but only the box takes input.
class ExportProgressBox
{
public:
    static constexpr int kPatienceMs = 500;

    /// text: what is being written. patience: ms after which the box is shown.
    ExportProgressBox(QWidget* window, const QString& title, const QString& text,
                      int patience = kPatienceMs);
    ~ExportProgressBox();
    ExportProgressBox(const ExportProgressBox&) = delete;
    ExportProgressBox& operator=(const ExportProgressBox&) = delete;

    /// percent: 0 to 100. False once the user has cancelled.
    [[nodiscard]] bool report(int percent);

private:
    void createBox();

    QWidget* mWindow;
    QString mTitle;
    QString mText;
    int mPatience;
    QElapsedTimer mRunning;
    QElapsedTimer mRefreshed;
    std::unique_ptr<QProgressDialog> mBox;
};

} // namespace VELIX
