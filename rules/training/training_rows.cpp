// Bands of text and tile, the button where there is something to buy.
#include "rules/training/training_rows.h"

#include "platform/draw.h"
#include "platform/palette.h"
#include "rules/catalogue.h"
#include "rules/game_state.h"
#include "rules/hero.h"
#include "rules/training.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int bandLeft = 53;
constexpr int bandRight = 353;
constexpr int textLeft = 90;
constexpr Rect goldBox{80, 8, 144, 40};
constexpr Rect messageBox{176, 8, 376, 40};

void drawBand(int y, bool even, int tileNumber) {
    fillBox(bandLeft, y, bandRight, y + tile::size, even ? colour::loss : colour::panel);
    putTile(tileNumber, bandLeft, y, putTransparent);
}

void sayWhatIsNeeded(int price) {
    ShowTrainingMessage(" You need " + std::to_string(price) + " " + std::string(itemType(gold).name) + ".");
}

}  // namespace

void Train(int skill) {
    if (!buyTraining(skill)) return sayWhatIsNeeded(skillType(skill).price);
    DrawTrainingRow(skill);
    DrawTrainingGold();
}

void Trade(int offer) {
    if (!buyOffer(offer)) return sayWhatIsNeeded(tradeOffer(offer).price);
    DrawTradeRow(offer);
    DrawTrainingGold();
}

void DrawTrainingRow(int skill) {
    Button& plus = widget(id::training + skill);
    if (!TrainingAvailable()) {
        plus.hidden = true;
        return;
    }
    const SkillType& type = skillType(skill);
    showButton(plus, "");
    drawBand(plus.y, skill % 2 == 0, type.tile);
    if (level(skill) > highestTrainable) {
        plus.hidden = true;
        eraseButton(plus);
    }
    drawText(textLeft, plus.y + 4,
             std::to_string(type.price) + " gold for " + std::to_string(trainingStep) + "% " +
                 std::string(type.name));
    drawText(textLeft, plus.y + 18, " (Currently " + std::to_string(level(skill)) + "%)", colour::yellow);
}

void DrawTradeRow(int offer) {
    Button& plus = widget(id::training + skillCount + offer);
    if (!TradingAvailable()) {
        plus.hidden = true;
        return;
    }
    const TradeOffer& row = tradeOffer(offer);
    const ItemType& type = itemType(row.item);
    showButton(plus, "");
    drawBand(plus.y, offer % 2 == 0, type.tile);
    drawText(textLeft, plus.y + 6, std::to_string(row.price) + " gold for " + std::to_string(row.amount));
    drawText(textLeft, plus.y + 16,
             "  (" + std::string(type.name) + ": " + std::to_string(count(row.item)) + ")");
}

void DrawTrainingGold() {
    fillBox(goldBox.x1, goldBox.y1, goldBox.x2, goldBox.y2, colour::panel);
    putTile(itemType(gold).tile, goldBox.x1, goldBox.y1, putTransparent);
    drawText(117, 18, std::to_string(count(gold)) + " ");
}

void ShowTrainingMessage(const std::string& text) {
    fillBox(messageBox.x1, messageBox.y1, messageBox.x2, messageBox.y2, colour::panel);
    drawText(messageBox.x1, 18, text);
}

}  // namespace gloomdeck
