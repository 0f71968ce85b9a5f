// The open card as one JSON document, for other programs: docs/card.schema.json says what it holds.
#pragma once

#include <string>

namespace quillon {

/// In UTF-8 and on one line; empty where no card is open. Texts are without the blanks at their ends, and what is
/// empty is left out.
std::string cardAsJson();

} // namespace quillon
