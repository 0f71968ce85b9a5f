#include "screen/ports.h"

namespace quillon {

Ports ports;

} // namespace quillon
