// What is paid, and what it buys.
#include "rules/training.h"

#include "rules/catalogue.h"
#include "rules/game_state.h"
#include "rules/hero.h"

namespace gloomdeck {

// clang-format off
const std::array<TradeOffer, tradeOfferCount> TradeOffers{{
    // item    price  amount
    {keys,        10,      1},
    {torches,     10,      1},
    {health,      10,      5},
}};
// clang-format on

namespace {

bool pay(int price) {
    if (count(gold) < price) return false;
    addTo(count(gold), -price);
    return true;
}

}  // namespace

const TradeOffer& tradeOffer(int offer) { return TradeOffers[static_cast<std::size_t>(offer)]; }

bool buyTraining(int skill) {
    if (!pay(skillType(skill).price)) return false;
    addTo(level(skill), trainingStep);
    return true;
}

bool buyOffer(int offer) {
    const TradeOffer& bought = tradeOffer(offer);
    if (!pay(bought.price)) return false;
    addTo(count(bought.item), bought.amount);
    return true;
}

}  // namespace gloomdeck
