// What every row of the catalogue must keep, whatever its numbers.
#include "rules/catalogue.h"

#include <set>

#include "platform/random.h"
#include "shell/tiles.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

class CatalogueTest : public GameTest {};

bool isTile(int number) { return number >= 1 && number <= tile::count; }

bool isChance(int chance) { return chance == never || (chance >= 0 && chance <= 100); }

int damageWithDiceAt(int monsterRow, double share) {
    static double fixed;
    fixed = share;
    useRandomSource([] { return fixed; });
    return MonsterDamage(monsterRow);
}

}  // namespace

TEST_F(CatalogueTest, EveryRowCanBeShown) {
    std::set<std::string_view> names;
    std::set<int> tiles;
    const auto check = [&](const auto& row) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(!row.name.empty() && row.name.size() <= 20);
        EXPECT_TRUE(isTile(row.tile));
        EXPECT_EQ(row.description.back(), '.');
        tiles.insert(row.tile);
        names.insert(row.name);
    };
    for (const auto& row : EncounterTable) check(row);
    EXPECT_EQ(names.size(), EncounterTable.size());
    EXPECT_EQ(tiles.size(), EncounterTable.size()) << "two types look the same";
    for (const auto& row : ItemTable) check(row);
    for (const auto& row : SkillTable) check(row);
    for (const auto& row : PowerTable) check(row);
    const std::size_t all = EncounterTable.size() + ItemTable.size() + SkillTable.size() + PowerTable.size();
    EXPECT_EQ(names.size(), all - 1) << "only Gold is both met and owned";
    EXPECT_EQ(tiles.size(), all - 1);
}

TEST_F(CatalogueTest, NothingThatMovesMayReplaceTheEndOrItsOwnKind) {
    for (const enc::Code blocked : {enc::TheEnd, enc::Ghost, enc::Demon, enc::OozingFilth}) {
        EXPECT_FALSE(encounterType(blocked).ghostMayEnter) << encounterType(blocked).name;
        EXPECT_FALSE(encounterType(blocked).filthMaySpread) << encounterType(blocked).name;
    }
    for (const EncounterType& row : EncounterTable)
        EXPECT_TRUE(row.filthMaySpread || !row.ghostMayEnter) << row.name;
}

TEST_F(CatalogueTest, SpellsClearNothingThatOnlyGives) {
    for (const EncounterType& row : EncounterTable) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(isChance(row.sunChance) && isChance(row.shieldChance) && isChance(row.lightningChance));
        if (!row.ghostMayEnter && row.code != enc::TheEnd) continue;
        EXPECT_EQ(row.sunChance, never);
        EXPECT_EQ(row.shieldChance, never);
        EXPECT_EQ(row.lightningChance, never);
    }
    EXPECT_EQ(encounterType(enc::Darkness).sunChance, 100);
}

TEST_F(CatalogueTest, DamageSpansItsDice) {
    const std::pair<int, int> spans[monster::count] = {{1, 6},  {1, 20}, {1, 2}, {4, 6},
                                                       {3, 18}, {6, 15}, {4, 14}};
    for (int row = 0; row < monster::count; ++row) {
        EXPECT_EQ(damageWithDiceAt(row, 0.0), spans[row].first) << row;
        EXPECT_EQ(damageWithDiceAt(row, 0.999), spans[row].second) << row;
    }
    std::set<int> used;
    for (const EncounterType& row : EncounterTable)
        EXPECT_TRUE(row.monster == none || used.insert(row.monster).second) << row.name;
    EXPECT_EQ(used.size(), MonsterTable.size());
}

TEST_F(CatalogueTest, TheGoldPictureTellsWhatMayBeBought) {
    for (const int picture : {tile::gold, tile::goldTraining, tile::goldTrading, tile::goldBoth}) {
        itemType(gold).tile = picture;
        EXPECT_EQ(TrainingAvailable(), picture == tile::goldTraining || picture == tile::goldBoth);
        EXPECT_EQ(TradingAvailable(), picture == tile::goldTrading || picture == tile::goldBoth);
    }
}

}  // namespace gloomdeck
