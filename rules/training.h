// Spending gold: the rows of the training screen and their purchases.
#pragma once

#include <array>
#include <cstdint>
#include <string>

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

/// Buys a training step of a skill, or what an offer offers; with too little gold a message says so.
void Train(int skill);
void Trade(int offer);

void DrawTrainingRow(int skill);
void DrawTradeRow(int offer);
void DrawTrainingGold();
void ShowTrainingMessage(const std::string& text);

}  // namespace gloomdeck
