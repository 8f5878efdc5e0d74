#include "views/events/DialogDataWarning.h"

#include "card/RecordData.h"
#include "card/WarningFinder.h"

namespace VELIX {

DialogDataWarning::DialogDataWarning(const Profile& profile, DialogService& dialogs,
                                     QWidget* parent)
    : DialogDataEvents(profile, dialogs,
                       {tr("Warning Lamps"), tr("No warning lamp was lit in this record."),
                        tr("No parameter profile was installed when this record was loaded, so "
                           "its warning lamps are not known. Load the record again once a "
                           "profile is installed."),
                        QStringLiteral("VelixWarningLamps.csv")},
                       parent)
{}

DialogDataEvents::Events DialogDataWarning::findEvents(RecordData& record,
                                                       const Profile& profile) const
{
    record.warnings = findWarnings(record, profile);
    Events events;
    events.reserve(record.warnings.size());
    for (const RecordWarning& event : record.warnings) {
        events.push_back(&event);
    }
    return events;
}

} // namespace VELIX
