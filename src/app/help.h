// Messages of the Help menu.
#pragma once

namespace quillon {

void About();   ///< the product and who publishes it
void Version(); ///< the product's version

} // namespace quillon
