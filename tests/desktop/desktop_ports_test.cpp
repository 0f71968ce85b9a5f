#include "desktop/window_test.h"
