#include "desktop/print_preview.h"
