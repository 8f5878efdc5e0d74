#pragma once

#include "views/common/TableCell.h"
#include "views/events/EventTint.h"

#include <QColor>
#include <QString>

namespace VELIX {

/// The time of an event. Its user data are milliseconds on the record's time axis, a double.
class EventTimeItem final : public TableCell
{
public:
    explicit EventTimeItem(double seconds) : mSeconds(seconds) {}

    QVariant data(int role) const override;

private:
    QString cellText() const override;
    QColor cellBackground() const override { return kTimeBackground; }

    double mSeconds;
};

/// What happened, on a light tint of the colour that says how grave it is.
class EventTextItem final : public TableCell
{
public:
    /// color: invalid for an event without one
    EventTextItem(const QString& text, const QColor& color) : mText(text), mTint(eventTint(color))
    {}

    QVariant data(int role) const override;

private:
    QString cellText() const override { return mText; }
    QColor cellBackground() const override { return mTint; }

    QString mText;
    QColor mTint;
};

} // namespace VELIX
