#include "app/ports.h"

namespace quillon {

Ports ports;

} // namespace quillon
