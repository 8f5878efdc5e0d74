#include "views/events/DialogDataLimit.h"

#include "card/LimitFinder.h"
#include "card/RecordData.h"

namespace VELIX {

DialogDataLimit::DialogDataLimit(const Profile& profile, DialogService& dialogs, QWidget* parent)
    : DialogDataEvents(profile, dialogs,
                       {tr("Warning/Limit Exceed"),
                        tr("No limit or warning exceeded in this record."),
                        tr("No parameter profile is installed, so limits cannot be judged."),
                        QStringLiteral("VelixLimits.csv")},
                       parent)
{}

void DialogDataLimit::updateProfile()
{
    updateRecord(record());
}

DialogDataEvents::Events DialogDataLimit::findEvents(RecordData& record,
                                                     const Profile& profile) const
{
    record.limits = findLimits(record, profile);
    Events events;
    events.reserve(record.limits.size());
    for (const RecordLimit& event : record.limits) {
        events.push_back(&event);
    }
    return events;
}

} // namespace VELIX
