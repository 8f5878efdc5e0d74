#pragma once

#include "platform/viewlib/ViewModel.h"

#include <QImage>

#include <vector>

namespace Vista2D {

class ViewVariables;

/// A view as a picture. What stands still is painted once for a scale and kept, so that a frame
/// costs what moves in it.
class ViewCanvas
{
public:
    static constexpr int kLargestEdge = 8192; ///< pixels

    /// The scale at which the picture is made where another one is asked for: the same, but for
    /// pictures beyond all screens.
    [[nodiscard]] static double usableScale(const ViewModel& model, double scale);

    /// The view with the values of the variables.
    /// \param scale pixels per view unit, a usable one
    /// \param hasGround whether the view's ground is painted; else it is transparent
    const QImage& picture(const ViewModel& model, const ViewVariables& variables, double scale,
                          bool hasGround);
    /// To be called when the model was replaced.
    void forget();
    /// Whether the next picture at the same scale would be another one.
    [[nodiscard]] bool isOutdated(const ViewVariables& variables) const;

private:
    void findConditions(const ViewModel& model);
    [[nodiscard]] bool isStillAsBefore(const ViewTruths& truths) const;
    void paintStill(const ViewModel& model, const ViewVariables& variables);
    void paintFrame(const ViewModel& model, const ViewVariables& variables);

    QImage mStill;
    QImage mFrame;
    double mScale = 0.0;
    bool mHasGround = true;
    unsigned long mRevision = 0;
    std::vector<bool> mMovesStill; ///< of each condition: whether what stands still depends on it
    ViewTruths mTruths;
};

} // namespace Vista2D
