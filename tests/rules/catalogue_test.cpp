// What every row of the catalogue must keep, whatever its numbers.
#include "rules/catalogue.h"

#include <set>

#include "shell/tiles.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

using CatalogueTest = GameTest;

TEST_F(CatalogueTest, EveryRowCanBeShownAndOnlyGoldIsBothMetAndOwned) {
    std::set<std::string_view> names;
    std::set<int> tiles;
    const auto check = [&](const auto& table, std::size_t shared) {
        const std::size_t before = names.size();
        for (const auto& row : table) {
            EXPECT_TRUE(!row.name.empty() && row.name.size() <= 20 && row.description.back() == '.')
                << row.name;
            EXPECT_TRUE(row.tile >= 1 && row.tile <= tile::count) << row.name;
            tiles.insert(row.tile);
            names.insert(row.name);
        }
        EXPECT_EQ(names.size(), before + table.size() - shared);
        EXPECT_EQ(tiles.size(), names.size()) << "two types look the same";
    };
    check(EncounterTable, 0);
    check(ItemTable, 1);
    check(SkillTable, 0);
    check(PowerTable, 0);
}

}  // namespace gloomdeck
