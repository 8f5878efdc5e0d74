#pragma once

#include "platform/viewlib/ViewModel.h"

#include <QImage>

#include <vector>

namespace Vista2D {

class ViewVariables;

/// Paints a view into an image. What does not move is painted once for a scale and kept, so that a
/// frame costs what moves in it.
class ViewCanvas
{
public:
    static constexpr int kLargestEdge = 8192; ///< pixels

    /// Returns the scale at which a frame is made: the given one, unless the frame would be larger
    /// than any screen.
    [[nodiscard]] static double usableScale(const ViewModel& model, double scale);

    /// Returns the view with the values of the variables.
    /// \param scale pixels per view unit, a usable one
    /// \param hasBackground whether the view's background is painted; else it is transparent
    const QImage& frame(const ViewModel& model, const ViewVariables& variables, double scale,
                        bool hasBackground);
    /// Forgets what was painted. To be called when the model was replaced.
    void forget();
    /// Whether the next frame at the same scale would be another one.
    [[nodiscard]] bool isOutdated(const ViewVariables& variables) const;

private:
    void findConditions(const ViewModel& model);
    [[nodiscard]] bool isStillAsBefore(const ConditionResults& results) const;
    void paintStill(const ViewModel& model, const ViewVariables& variables);
    void paintFrame(const ViewModel& model, const ViewVariables& variables);

    QImage mStill;
    QImage mFrame;
    double mScale = 0.0;
    bool mHasBackground = true;
    unsigned long mRevision = 0;
    std::vector<bool> mMovesStill; ///< of each condition: whether what does not move depends on it
    ConditionResults mResults;
};

} // namespace Vista2D
