#include "gui/profile/ProfileInstaller.h"

#include "core/Diagnostics.h"
#include "profile/Profile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace VELIX {

namespace {

bool isSameFile(const QString& a, const QString& b)
{
    const QString path = QFileInfo(a).canonicalFilePath();
    return !path.isEmpty() && path == QFileInfo(b).canonicalFilePath();
}

bool copyFile(const QString& file, const QString& destination)
{
    QFile source(file);
    QSaveFile target(destination);
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly)) {
        return false;
    }
    const QByteArray content = source.readAll();
    // Flushed here: the closing takes a part that went in before the disk was full for the whole.
    return source.error() == QFileDevice::NoError && target.write(content) == content.size() &&
           target.flush() && target.commit();
}

} // namespace

bool ProfileInstaller::isProfile(const QString& file)
{
    return Profile().loadProfile(file) != 0;
}

Outcome ProfileInstaller::install(const QString& file, const QString& destination)
{
    Diagnostics::print("Copy profile to <%s>\n", destination.toUtf8().constData());
    return isSameFile(file, destination) || copyFile(file, destination)
               ? Outcome::success()
               : Outcome::failure(tr("Profile Installation failed !"));
}

} // namespace VELIX
