#pragma once

#include "platform/viewlib/ViewInstruments.h"
#include "platform/viewlib/ViewModel.h"

namespace Vista2D {

class ViewSurface;
class ViewVariables;

/// Paints a view in two layers: what stands still as long as no condition changes, and above it
/// what moves with the values.
class ViewPainter
{
public:
    /// \param truths of the model's conditions, with these variables
    ViewPainter(const ViewModel& model, const ViewTruths& truths, const ViewVariables& variables,
                ViewSurface& surface)
        : mModel(model), mTruths(truths), mVariables(variables), mSurface(surface)
    {}

    void paintStill();
    void paintMoving();

private:
    [[nodiscard]] ViewReading reading(const ViewBinding& binding) const;
    void paintStill(const ViewElement& element);
    void paintMoving(const ViewElement& element);

    const ViewModel& mModel;
    const ViewTruths& mTruths;
    const ViewVariables& mVariables;
    ViewSurface& mSurface;
};

} // namespace Vista2D
