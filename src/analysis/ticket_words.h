// Tickets in words: as they are typed, and as they stand on a slip.
#pragma once

#include "analysis/tickets.h"

namespace quillon {

/// The pool of a type, boxed or not; none of a word that names none.
std::optional<Pool> poolIn(TextView type);

/// A ticket out of its type ("exacta", "trifecta box", "pick 4", "double"), its numbers ("1/2,3/2,3,4") and its
/// stake ("0.50"). A set of "all" takes everyone who runs in its field, which must be known. None where a word
/// is malformed or the sets are not as many as the type asks for.
std::optional<Ticket> ticketIn(TextView type, TextView numbers, TextView stake,
                               const std::vector<Field>& fields = {});

/// Money of at most two decimals, above 0 and at most 100,000, as cents.
std::optional<std::int64_t> centsIn(TextView money);

Text moneyText(std::int64_t cents); ///< "12.50"

Text typeText(const Ticket& ticket);    ///< "trifecta box"
Text numbersText(const Ticket& ticket); ///< "1/2,3/2,3,4"

} // namespace quillon
