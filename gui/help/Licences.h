#pragma once

#include <QCoreApplication>
#include <QString>

#include <vector>

namespace VELIX {

/// The terms of the program, of what is linked to it, and of the data that it shows.
class Licences
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::Licences)

public:
    struct Entry
    {
        QString name;    ///< of the work
        QString licence; ///< in a few words; empty for the text of a licence itself
        QString path;    ///< built-in file with notice and text, in English as its authors wrote it
    };

    /// In the order in which they are listed.
    static std::vector<Entry> entries();
    /// The text of an entry; empty if the file is not built in.
    static QString text(const Entry& entry);
};

} // namespace VELIX
