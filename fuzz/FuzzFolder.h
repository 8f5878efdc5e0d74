#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

namespace VELIX::Fuzz {

/// The folder in which one fuzz target puts its input for the code under test, which reads files.
/// It is in memory where the system has such a folder, and is removed with the process.
class FuzzFolder
{
public:
    FuzzFolder();

    QString path() const { return mFolder.path(); }
    QString path(const char* name) const;
    /// Writes a file of the folder, over an earlier one, and returns its path.
    QString write(const char* name, const std::uint8_t* bytes, std::size_t size) const;
    QByteArray read(const char* name) const;
    void remove(const char* name) const;

private:
    QTemporaryDir mFolder;
};

/// Ends the process with a sentence unless `holds`, as a crash that a fuzzer reports.
void require(bool holds, const char* sentence);

/// Discards the diagnostic lines: damaged input causes thousands of them.
void silenceDiagnostics();

} // namespace VELIX::Fuzz
