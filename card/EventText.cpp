#include "card/EventText.h"

#include "core/RecordEntry.h"
#include "profile/ProfileParameter.h"

namespace VELIX {

void describeEvent(RecordLimit& event, double time, const QString& device,
                   const ProfileParameter& parameter, const QString& value, const QString& label)
{
    const QString name = device + QLatin1Char(' ') + parameter.name;
    const QString valueAndLabel = value + QLatin1Char(' ') + label;
    event.time = time;
    event.key = timeKey(time);
    event.name = name.toStdString();
    event.value = valueAndLabel.toStdString();
    event.text = name + QLatin1Char(' ') + valueAndLabel;
}

} // namespace VELIX
