#include "desktop/text_viewer.h"
