#include "views/PlaceholderView.h"
