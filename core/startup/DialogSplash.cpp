#include "core/startup/DialogSplash.h"

#include "core/startup/splash.xpm"

#include <QCoreApplication>
#include <QPainter>

namespace VELIX {

namespace {

constexpr int kCloseAfterMs = 3000;
constexpr QColor kTextColor(0, 0, 200);
constexpr int kTextLeft = 5;       // pixels, as all below
constexpr int kFirstBaseline = 30; // from the top
constexpr int kLineDistance = 15;
constexpr int kFontSize = 12;

} // namespace

DialogSplash& DialogSplash::instance()
{
    // Never destroyed: a widget must not outlive the application object, as a static one would.
    static DialogSplash* splash = new DialogSplash;
    return *splash;
}

DialogSplash::DialogSplash() : QSplashScreen(QPixmap(splash_xpm))
{
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, &DialogSplash::slotTimeout);
    show();
    repaint();
}

void DialogSplash::addEntry(const QString& text)
{
    mEntries.append(text);
    while (mEntries.size() > kMaxEntries) {
        mEntries.removeFirst();
    }
    // A window that the display has not brought up yet cannot be painted.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    repaint();
}

void DialogSplash::finish()
{
    mTimer.start(kCloseAfterMs);
}

void DialogSplash::slotTimeout()
{
    close();
}

void DialogSplash::drawContents(QPainter* painter)
{
    QFont lineFont = font();
    lineFont.setPixelSize(kFontSize);
    painter->setFont(lineFont);
    painter->setPen(kTextColor);
    int baseline = kFirstBaseline;
    for (const QString& entry : mEntries) {
        painter->drawText(kTextLeft, baseline, entry);
        baseline += kLineDistance;
    }
}

void DialogSplash::mousePressEvent(QMouseEvent* /*event*/)
{
    close();
}

} // namespace VELIX
