#pragma once

#include "views/events/DialogDataEvents.h"

namespace VELIX {

/// Lists the moments at which a warning lamp changed to a lit state.
class DialogDataWarning final : public DialogDataEvents
{
    Q_OBJECT

public:
    DialogDataWarning(const Profile& profile, DialogService& dialogs, QWidget* parent = nullptr);

    /// Does nothing: a lamp was lit whatever the profile says now, so the events stay until the
    /// next record.
    void updateProfile() override {}

private:
    Events findEvents(RecordData& record, const Profile& profile) const override;
};

} // namespace VELIX
