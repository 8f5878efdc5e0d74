#include "tools/velix-demo/ScreenshotFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QPixmap>
#include <QSaveFile>
#include <QWidget>

#include <utility>

namespace VELIX {

ScreenshotFolder::ScreenshotFolder(Kind kind, QString folder, QString language)
    : mKind(kind), mFolder(std::move(folder)), mLanguage(std::move(language))
{}

bool ScreenshotFolder::add(QWidget& widget, const QString& name, const QString& caption)
{
    mIndex << QStringLiteral("## %1\n").arg(caption)
           << QStringLiteral("![English](en/%1.png) ![German](de/%1.png)\n").arg(name);
    const QFileInfo file(QDir(mFolder), QStringLiteral("%1/%2.png").arg(mLanguage, name));
    return QDir().mkpath(file.path()) && widget.grab().save(file.filePath());
}

bool ScreenshotFolder::writeIndex() const
{
    QSaveFile file(QDir(mFolder).filePath(QStringLiteral("README.md")));
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.write("# VELIX in pictures\n\n"
               "All windows and dialogs on the demo card, in English and in German. "
               "`./dev screenshots` makes them.\n\n");
    file.write(mIndex.join(QLatin1Char('\n')).toUtf8());
    return file.commit();
}

} // namespace VELIX
