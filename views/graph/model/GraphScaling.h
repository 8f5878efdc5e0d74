#pragma once

#include "views/graph/model/GraphYScale.h"

namespace VELIX {

/// The rule by which traces get their Y scales: to fit their values, or from Ymin to Ymax for all.
/// Numbers that are not finite are ignored.
class GraphScaling
{
public:
    void setAutoScale(bool on) { mAutoScale = on; }
    /// Margin of the automatic scale as a fraction of the values' distance; negative is ignored.
    void setSpread(double spread);
    /// Fixes the scale at Ymin..Ymax even while autoscale is on.
    void setRangeOn(bool on) { mRangeOn = on; }
    [[nodiscard]] bool rangeOn() const { return mRangeOn; }
    void setYmin(double ymin);
    void setYmax(double ymax);
    [[nodiscard]] double ymin() const { return mYmin; }
    [[nodiscard]] double ymax() const { return mYmax; }

    /// Whether scales depend on the values.
    [[nodiscard]] bool fitsValues() const { return mAutoScale && !mRangeOn; }
    /// The scale of values from @p low to @p high while scales depend on values.
    [[nodiscard]] GraphYScale fitted(double low, double high) const;
    /// The scale from Ymin to Ymax.
    [[nodiscard]] GraphYScale fixed() const { return GraphYScale::fixed(mYmin, mYmax); }

private:
    bool mAutoScale = true;
    double mSpread = GraphYScale::kDefaultSpread;
    bool mRangeOn = false;
    double mYmin = -0.5;
    double mYmax = 1.5;
};

} // namespace VELIX
