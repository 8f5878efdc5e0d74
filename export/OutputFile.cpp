#include "export/OutputFile.h"

#include "core/Diagnostics.h"

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

int writeExport(const std::string& directory, const std::string& fileName,
                const std::function<bool(QIODevice&)>& fill, const bool& cancelled, QString& error)
{
    const QString path =
        QString::fromStdString(directory) + QLatin1Char('/') + QString::fromStdString(fileName);
    error = writeOutputFile(path, fill);
    if (cancelled) {
        error.clear();
        return 0;
    }
    if (!error.isEmpty()) {
        Diagnostics::print("could not write file <%s>: %s\n", path.toUtf8().constData(),
                           error.toUtf8().constData());
        return 0;
    }
    return 1;
}

} // namespace VELIX
