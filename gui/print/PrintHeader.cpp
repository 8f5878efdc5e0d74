#include "gui/print/PrintHeader.h"

#include "card/RecordData.h"

#include <QDir>
#include <QLocale>

namespace VELIX {

PrintHeader PrintHeader::of(const RecordData& record, const QString& cardFolder,
                            const QString& name)
{
    const QDateTime& date =
        record.flight.dateTime.isValid() ? record.flight.dateTime : record.startDateTime;
    //: Format of a date and time of day on paper
    const QString format = tr("d MMMM yyyy, hh:mm 'UTC'");
    return {QDir(cardFolder).dirName(), name, QLocale().toString(date, format)};
}

} // namespace VELIX
