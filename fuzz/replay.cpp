// Runs a fuzz target over files, without a fuzzer: replay PATH...
// A folder means all files in it. The sanitizers report what goes wrong.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace {

QStringList filesOf(const QString& path)
{
    if (!QFileInfo(path).isDir()) {
        return {path};
    }
    QStringList files;
    const QDir folder(path);
    for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
        files.push_back(folder.filePath(name));
    }
    return files;
}

} // namespace

int main(int argc, char** argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const QString& path : filesOf(QString::fromLocal8Bit(argv[i]))) {
            QFile file(path);
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "replay: cannot read %s\n", qUtf8Printable(path));
                return 1;
            }
            // Named before it runs, so that a crash says which input caused it.
            std::printf("%s\n", qUtf8Printable(path));
            std::fflush(stdout);
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                   static_cast<std::size_t>(bytes.size()));
            ++count;
        }
    }
    std::printf("%d inputs replayed\n", count);
    return count > 0 ? 0 : 1;
}
