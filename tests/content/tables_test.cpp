// One number for all built-in tables and texts: whoever changes it says in the commit what is another now.
#include "autoplayer/autoplayer_table.h"
#include "content/campaigns.h"
#include "content/locations.h"
#include "content/scenarios.h"
#include "content/story_texts.h"
#include "help/help_texts.h"
#include "rules/training.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

// FNV-1a over the texts and numbers that are handed to it.
struct Signature {
    std::uint64_t value = 0xCBF29CE484222325U;
    void add(std::string_view text) {
        for (const char c : text) value = (value ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
        add(static_cast<std::int64_t>(text.size()));
    }
    void add(std::int64_t number) { value = (value ^ static_cast<std::uint64_t>(number)) * 0x100000001B3U; }
    template <typename... Values>
    void all(const Values&... values) {
        (add(values), ...);
    }
};

void addCatalogue(Signature& s) {
    for (const EncounterType& t : EncounterTable)
        s.all(t.name, t.tile, t.ghostMayEnter, t.filthMaySpread, t.sunChance, t.shieldChance,
              t.lightningChance, t.monster, t.description);
    for (const MonsterType& t : MonsterTable)
        s.all(t.healthThreshold, t.dice[0], t.dice[1], t.dice[2], t.bonus, t.becomes);
    for (const ItemType& t : ItemTable)
        s.all(t.name, t.tile, t.usable, t.description, t.highlightTurns, t.turnChange);
    for (const SkillType& t : SkillTable)
        s.all(t.name, t.tile, t.statsRow, t.price, t.description, t.highlightTurns);
    for (const PowerType& t : PowerTable) s.all(t.name, t.tile, t.description);
    for (const TradeOffer& t : TradeOffers) s.all(t.item, t.price, t.amount);
    for (const AutoplayerRow& t : AutoplayerTable)
        s.all(t.poweredValue, t.baseValue, t.easyValue, t.hardValue, t.worstValue, t.category, t.bottomOnly);
}

void addContent(Signature& s) {
    for (int i = 0; i < locationCount; ++i) {
        s.all(locationRow(i).name, locationRow(i).backgroundTile, locationRow(i).deckLength);
        for (int code = 0; code < encounterCount; ++code) s.add(dealPercentage(i, code));
    }
    for (const Scenario& t : ScenarioTable) {
        s.all(t.name, t.difficulty, t.trainingAllowed, t.tradingAllowed, t.pictureTile,
              difficultyName(t.difficulty));
        for (const int location : t.columnLocations) s.add(location);
    }
    for (int i = 0; i < scenarioTableSize; ++i) s.add(scenarioAtPosition(i));
    for (const Campaign& t : CampaignTable) {
        s.all(t.name, t.difficulty, t.scenarioCount, t.pictureTile);
        for (const int stage : t.stages) s.add(stage);
    }
    for (int i = 0; i < campaignCount; ++i)
        for (int number = 0; number < storyTextCount; ++number) s.add(storyText(i, number));
    for (const HelpLine& line : basicHelp) s.add(line.text);
    for (const HelpLine& line : keyboardHelp) s.add(line.text);
    s.add(autoplayerHelp);
}

}  // namespace

using TablesTest = GameTest;

TEST_F(TablesTest, StandAsTheyAlwaysDid) {
    Signature s;
    addCatalogue(s);
    addContent(s);
    EXPECT_EQ(s.value, 5720975338697014173U);
}

}  // namespace gloomdeck
