#pragma once

#include <QSplashScreen>
#include <QStringList>
#include <QTimer>

namespace VELIX {

/// The start-up image with the steps that start-up has reached written on it.
class DialogSplash : public QSplashScreen
{
    Q_OBJECT

public:
    /// Most lines that are shown; older ones make room.
    static constexpr int kMaxEntries = 15;

    /// Made and shown on the first call.
    static DialogSplash& instance();

    DialogSplash();

    /// Appends a line and paints it at once, since start-up keeps the event loop waiting.
    void addEntry(const QString& text);
    /// Closes the splash three seconds from now.
    void finish();

    const QStringList& entries() const { return mEntries; }

public slots:
    void slotTimeout();

protected:
    void drawContents(QPainter* painter) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QStringList mEntries;
    QTimer mTimer;
};

} // namespace VELIX
