// Spending gold: what is for sale, and the purchases.
#pragma once
#include <array>
#include <cstdint>

#include "rules/codes.h"

namespace gloomdeck {

struct TradeOffer {
    Item item;
    std::int32_t price;  // in gold
    std::int32_t amount;
};

inline constexpr int tradeOfferCount = 3;
inline constexpr int trainingRows = skillCount + tradeOfferCount;  ///< the skills, then the offers
extern const std::array<TradeOffer, tradeOfferCount> TradeOffers;
const TradeOffer& tradeOffer(int offer);

/// Buys a training step of a skill, or what an offer offers; false with too little gold, and nothing
/// changes.
bool buyTraining(int skill);
bool buyOffer(int offer);

}  // namespace gloomdeck
