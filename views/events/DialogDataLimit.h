#pragma once

#include "views/events/DialogDataEvents.h"

namespace VELIX {

/// Lists the moments at which a parameter entered its warning or limit band.
class DialogDataLimit final : public DialogDataEvents
{
    Q_OBJECT

public:
    DialogDataLimit(const Profile& profile, DialogService& dialogs, QWidget* parent = nullptr);

    /// Finds the events again: other thresholds or units give other ones.
    void updateProfile() override;

private:
    Events findEvents(RecordData& record, const Profile& profile) const override;
};

} // namespace VELIX
