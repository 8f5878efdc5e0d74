#pragma once

#include "gui/WidgetHint.h"
#include "views/DataView.h"

namespace VELIX {

/// Holds the place of a view that this version does not have, with a sentence that says so.
class PlaceholderView : public WidgetHint, public DataView
{
public:
    using WidgetHint::WidgetHint;

    void setTime(double) override {}
    void updateRecord(RecordData*) override {}
    void updateProfile() override {}
};

} // namespace VELIX
