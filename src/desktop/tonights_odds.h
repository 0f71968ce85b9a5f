// The odds on offer tonight, as the user types them in: kept beside a card, never in its file.
#pragma once

#include "core/text.h"

#include <map>
#include <tuple>

namespace quillon {

/// Which entry of which card.
struct OddsPlace {
    Text cardName{}; ///< "M1_20260314"
    int race = 0;
    int entry = 0;

    bool operator<(const OddsPlace& other) const {
        return std::tie(cardName, race, entry) < std::tie(other.cardName, other.race, other.entry);
    }
};

class TonightsOdds {
public:
    virtual ~TonightsOdds() = default;

    /// As typed; empty where nothing was.
    virtual Text odds(const OddsPlace& place) const = 0;
    virtual void keep(const OddsPlace& place, const Text& odds) = 0;
};

/// Kept for the run.
class OddsInMemory : public TonightsOdds {
public:
    Text odds(const OddsPlace& place) const override;
    void keep(const OddsPlace& place, const Text& odds) override;

private:
    std::map<OddsPlace, Text> odds_;
};

} // namespace quillon
