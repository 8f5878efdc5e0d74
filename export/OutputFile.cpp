#include "export/OutputFile.h"

#include "core/Diagnostics.h"
#include "core/Progress.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace VELIX {

namespace {

/// What is still buffered counts as well: closing a file does not report a full disk.
bool filled(QFileDevice& file, const std::function<bool(QIODevice&)>& fill)
{
    return fill(file) && file.flush();
}

Outcome failure(const QFileDevice& file)
{
    const QString text = file.errorString();
    return Outcome::failure(text.isEmpty() ? QStringLiteral("Unknown error") : text);
}

} // namespace

QString outputPath(const std::string& directory, const std::string& fileName)
{
    return QString::fromStdString(directory) + QLatin1Char('/') + QString::fromStdString(fileName);
}

QString absoluteOutputPath(const std::string& directory, const std::string& fileName)
{
    return QFileInfo(outputPath(directory, fileName)).absoluteFilePath();
}

Outcome writeOutputFile(const QString& path, const std::function<bool(QIODevice&)>& fill)
{
    const QFileInfo target(path);
    if (target.exists() && !target.isFile() && !target.isDir()) {
        QFile device(path);
        const bool written =
            device.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && filled(device, fill);
        return written ? Outcome::success() : failure(device);
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return failure(file);
    }
    if (!filled(file, fill)) {
        // A write that stopped half-way has no reason yet: the next one gets it.
        file.write("\n");
        file.flush();
        Outcome outcome = failure(file);
        file.cancelWriting();
        return outcome;
    }
    return file.commit() ? Outcome::success() : failure(file);
}

Outcome writeExport(const QString& path, const std::function<bool(QIODevice&)>& fill,
                    const Progress& progress)
{
    Outcome outcome = writeOutputFile(path, fill);
    if (progress.cancelled()) {
        return Outcome::cancellation();
    }
    if (!outcome.ok) {
        Diagnostics::print("could not write file <%s>: %s\n", path.toUtf8().constData(),
                           outcome.reason.toUtf8().constData());
    }
    return outcome;
}

} // namespace VELIX
