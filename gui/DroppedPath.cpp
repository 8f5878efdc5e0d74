#include "gui/DroppedPath.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace VELIX {

DroppedPath DroppedPath::of(const QMimeData* data)
{
    const QString path = data->urls().value(0).toLocalFile();
    const QFileInfo file(path);
    if (path.isEmpty() || !file.exists()) {
        return {};
    }
    if (file.isDir()) {
        return {Kind::Card, file.absoluteFilePath()};
    }
    const QString suffix = file.suffix();
    if (suffix.compare(QLatin1String("xml"), Qt::CaseInsensitive) == 0) {
        return {Kind::Project, file.absoluteFilePath()};
    }
    for (const char* record : {"CAN", "can", "xcb"}) {
        if (suffix == QLatin1String(record)) {
            return {Kind::Card, file.absolutePath()};
        }
    }
    return {};
}

} // namespace VELIX
