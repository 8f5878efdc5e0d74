#include "fuzz/FuzzFolder.h"

#include "core/Diagnostics.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>

namespace VELIX::Fuzz {

namespace {

QString memoryFolder()
{
    const QString shared = QStringLiteral("/dev/shm");
    return QFileInfo(shared).isWritable() ? shared : QDir::tempPath();
}

} // namespace

void require(bool holds, const char* sentence)
{
    if (!holds) {
        std::fprintf(stderr, "fuzz: %s\n", sentence);
        std::abort();
    }
}

void silenceDiagnostics()
{
    static std::FILE* const nowhere = std::fopen("/dev/null", "w");
    Diagnostics::setStream(nowhere);
}

FuzzFolder::FuzzFolder() : mFolder(memoryFolder() + QStringLiteral("/velix-fuzz-XXXXXX"))
{
    require(mFolder.isValid(), "no folder for the input");
}

QString FuzzFolder::path(const char* name) const
{
    return mFolder.filePath(QString::fromLatin1(name));
}

QString FuzzFolder::write(const char* name, const std::uint8_t* bytes, std::size_t size) const
{
    QString target = path(name);
    QFile file(target);
    const auto length = static_cast<qint64>(size);
    require(file.open(QIODevice::WriteOnly) &&
                file.write(reinterpret_cast<const char*>(bytes), length) == length,
            "the input could not be written");
    return target;
}

QByteArray FuzzFolder::read(const char* name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void FuzzFolder::remove(const char* name) const
{
    QFile::remove(path(name));
}

} // namespace VELIX::Fuzz
