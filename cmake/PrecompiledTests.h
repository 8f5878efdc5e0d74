// The same for tests.
#include "cmake/PrecompiledWidgets.h"

#include <gtest/gtest.h>
