#pragma once

#include "tools/democard/Message.h"

#include <vector>

namespace VELIX::Demo {

/// All messages of the demo engine, in the order in which they go out within a step.
const std::vector<Message>& messageTable();

} // namespace VELIX::Demo
