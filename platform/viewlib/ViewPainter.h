#pragma once

#include "platform/viewlib/ViewModel.h"
#include "platform/viewlib/ViewReading.h"

namespace Vista2D {

class ViewSurface;
class ViewVariables;

/// Paints a view in two layers: what changes with a condition alone, and above it what moves
/// with the values.
class ViewPainter
{
public:
    /// \param results of the model's conditions, with these variables
    ViewPainter(const ViewModel& model, const ConditionResults& results,
                const ViewVariables& variables, ViewSurface& surface)
        : mModel(model), mResults(results), mVariables(variables), mSurface(surface)
    {}

    void paintStill();
    void paintMoving();

private:
    [[nodiscard]] ViewReading reading(const ViewBinding& binding) const;
    void paintStill(const ViewElement& element);
    void paintMoving(const ViewElement& element);

    const ViewModel& mModel;
    const ConditionResults& mResults;
    const ViewVariables& mVariables;
    ViewSurface& mSurface;
};

} // namespace Vista2D
