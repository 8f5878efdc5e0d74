#pragma once

namespace Tessel::Math::Filter {

/// One step of a first-order lag (PT1): the new output after the input held for a step.
///
/// The exact solution is used, output += (input - output) * (1 - exp(-step / timeConstant)), so
/// that the course does not depend on how a span of time is cut into steps and no step, however
/// long, overshoots the input.
/// timeConstant and step are in seconds: without a lag (timeConstant <= 0) the output is the input,
/// without a step (step <= 0) it stays as it was.
double pt1(double output, double input, double timeConstant, double step);

} // namespace Tessel::Math::Filter
