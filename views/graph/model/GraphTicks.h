#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace VELIX {

/// A tick of an axis of the graph.
struct GraphTick
{
    double value = 0.0;    ///< seconds on the time axis, else the trace's unit
    double position = 0.0; ///< pixels from the axis' minimum, 0 to its length
    bool major = false;    ///< false: a subdivision, never labelled
    QString label;         ///< empty when not labelled
};

/// Grid steps, tick positions and tick labels of the graph's axes.
namespace GraphTicks {

/// Extent of a label in pixels along its axis: its width on the time axis, its height on the Y
/// axis.
using LabelExtent = std::function<double(const QString&)>;

/// The step between two ticks, computed in single precision throughout: 1, 2, 5 or 10 times a power
/// of ten, at least so large that ticks are @p spacing pixels apart. For steps between 1 and 10 the
/// power stays 1, so that there the step is 2, 5 or 10.
/// @param length of the axis in pixels
/// @param spacing wanted distance of two ticks in pixels
/// @param step the step; -1 when not even two ticks fit, or when the range is empty or not finite
/// @param subdivisions how many parts a step is divided into, 4 or 5; 0 when there is no step
void getAutoPara(float minimum, float maximum, float length, float spacing, float* step,
                 int* subdivisions);

/// Decimals that labels need at a step: none from 10 on, else one more than the step's order of
/// magnitude, so that steps 1 and 5 both give one and step 0.1 two. 0 for a step that is not
/// positive.
[[nodiscard]] int decimalsForStep(float step);

/// The printf format of labels at a step, for example "%.2f".
void getAutoFormat(float step, QString& format);

/// "h:mm:ss" of a time that is not negative, with as many further decimals of the second as asked
/// for; empty for negative times. The time is rounded to the decimals.
[[nodiscard]] QString timeLabel(double seconds, int decimals = 0);

/// Ticks of the time axis from left to right, subdivisions included. The step widens until the
/// labels, as wide as
/// @p labelWidth says, keep at least @p gap pixels apart. Steps below a second give labels with
/// decimals, since neighbours would read the same otherwise. Empty when the axis is too short for
/// two labels.
/// @param length of the axis in pixels
[[nodiscard]] std::vector<GraphTick> timeTicks(double xmin, double xmax, double length,
                                               const LabelExtent& labelWidth, double gap = 24.0);

/// Ticks of a Y axis from bottom to top, subdivisions included, in the same way.
/// @param length of the axis (in split mode: of the band) in pixels
/// @param labelHeight pixels of a line of text
/// @param gap least distance between two labels in pixels
[[nodiscard]] std::vector<GraphTick> valueTicks(double ymin, double ymax, double length,
                                                double labelHeight, double gap = 16.0);

} // namespace GraphTicks

} // namespace VELIX
