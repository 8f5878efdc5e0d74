#include "gui/RecentPaths.h"

#include "core/Property.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace VELIX {

namespace {

/// One spelling for each file, so that it is listed once.
QString normal(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

RecentPaths::RecentPaths(Property& settings, QString key)
    : mSettings(settings), mKey(std::move(key))
{}

std::string RecentPaths::keyOf(int index) const
{
    return (mKey + QString::number(index + 1)).toStdString();
}

QStringList RecentPaths::paths() const
{
    QStringList paths;
    for (int i = 0; i < kCount; ++i) {
        const QString path = QString::fromStdString(mSettings.getString(keyOf(i), {}));
        if (!path.isEmpty()) {
            paths.append(path);
        }
    }
    return paths;
}

void RecentPaths::add(const QString& path)
{
    QStringList list = paths();
    list.removeAll(normal(path));
    list.prepend(normal(path));
    store(list);
}

void RecentPaths::remove(const QString& path)
{
    QStringList list = paths();
    list.removeAll(path);
    store(list);
}

void RecentPaths::store(const QStringList& paths)
{
    for (int i = 0; i < kCount; ++i) {
        mSettings.setString(keyOf(i), paths.value(i).toStdString());
    }
}

} // namespace VELIX
