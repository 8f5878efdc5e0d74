#include "gui/RecentMenu.h"

#include "core/Property.h"
#include "gui/look/ImageHandler.h"

#include <QActionGroup>
#include <QDir>
#include <QFileInfo>

namespace VELIX {

namespace {

constexpr int kLongestText = 360; ///< pixels

/// A card may only be out of its reader; a project of a folder that is still there was deleted.
bool isGone(RecentMenu::Kind kind, const QString& path)
{
    const QFileInfo file(path);
    return kind == RecentMenu::Kind::Projects && !file.exists() && file.dir().exists();
}

QString homeShortened(const QString& path)
{
    const QString home = QDir::homePath() + QLatin1Char('/');
    return path.startsWith(home) ? QStringLiteral("~/") + path.mid(home.size()) : path;
}

} // namespace

RecentMenu::RecentMenu(Kind kind, Property& settings, QActionGroup& group, QWidget* parent)
    : QMenu(kind == Kind::Cards ? tr("&Recent Cards") : tr("Recent Pro&jects"), parent),
      mKind(kind),
      mSettings(settings),
      mPaths(settings,
             kind == Kind::Cards ? QStringLiteral("RecentCard") : QStringLiteral("RecentProject")),
      mGroup(group)
{
    setObjectName(kind == Kind::Cards ? QStringLiteral("menuRecentCards")
                                      : QStringLiteral("menuRecentProjects"));
    setToolTipsVisible(true);
    setIcon(ImageHandler::instance().icon(QStringLiteral("recent")));
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::slotFill);
    connect(this, &QMenu::triggered, this,
            [this](QAction* action) { emit signalChosen(action->data().toString()); });
    slotFill();
}

void RecentMenu::add(const QString& path)
{
    mPaths.add(path);
    mSettings.writeXmlFile();
}

void RecentMenu::slotFill()
{
    clear();
    int number = 0;
    for (const QString& path : mPaths.paths()) {
        if (isGone(mKind, path)) {
            mPaths.remove(path); // written with the next change of a setting
        } else {
            mGroup.addAction(addEntry(path, ++number));
        }
    }
    if (number == 0) {
        addAction(tr("None opened yet"))->setEnabled(false);
    }
}

QAction* RecentMenu::addEntry(const QString& path, int number)
{
    QString text = fontMetrics().elidedText(homeShortened(path), Qt::ElideMiddle, kLongestText);
    text.replace(QLatin1Char('&'), QStringLiteral("&&"));
    QAction* action = addAction(QStringLiteral("&%1  %2").arg(number).arg(text));
    action->setData(path);
    action->setToolTip(path);
    action->setStatusTip(path);
    return action;
}

} // namespace VELIX
