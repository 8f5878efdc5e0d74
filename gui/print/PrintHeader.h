#pragma once

#include <QCoreApplication>
#include <QString>

namespace VELIX {

class RecordData;

/// What is written above every printed page, beside the title of the view.
struct PrintHeader
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::PrintHeader)

public:
    /// Names a record, with its date in the user's language.
    /// \param cardFolder of the card that it is from
    /// \param name of what is loaded
    static PrintHeader of(const RecordData& record, const QString& cardFolder, const QString& name);

    QString card;   ///< name of the card
    QString record; ///< what of it is loaded, as "Cycle 3, flight 2"
    QString date;   ///< of the record; empty if unknown
};

} // namespace VELIX
