#include "export/OutputFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace VELIX {

namespace {

/// What is still buffered counts as well: closing a file tells nobody that the disk was full.
bool filled(QFileDevice& file, const std::function<bool(QIODevice&)>& fill)
{
    return fill(file) && file.flush();
}

QString reason(const QFileDevice& file)
{
    const QString text = file.errorString();
    return text.isEmpty() ? QStringLiteral("Unknown error") : text;
}

} // namespace

QString writeOutputFile(const QString& path, const std::function<bool(QIODevice&)>& fill)
{
    const QFileInfo target(path);
    if (target.exists() && !target.isFile() && !target.isDir()) {
        QFile device(path);
        const bool written =
            device.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && filled(device, fill);
        return written ? QString() : reason(device);
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return reason(file);
    }
    if (!filled(file, fill)) {
        // A write that stopped half-way has told no reason yet: the next one gets it.
        file.write("\n");
        file.flush();
        QString why = reason(file);
        file.cancelWriting();
        return why;
    }
    return file.commit() ? QString() : reason(file);
}

} // namespace VELIX
