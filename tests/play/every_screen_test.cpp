// What holds on every screen: a press that is let go elsewhere leaves no trace, a press from before a screen
// or a question does nothing there, and the play screen stands as it would be drawn afresh.
#include <algorithm>
#include <memory>

#include "content/game_flow.h"
#include "platform/frame.h"
#include "rules/tiles.h"
#include "shell/play/play_view.h"
#include "shell/widgets/mouse.h"
#include "shell/widgets/places.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

constexpr Point nothing{404, 300};
constexpr Point yesButton{167, 262};
constexpr Rect cursor{16, 180, 240, 184};  // it blinks

using Rects = std::vector<Rect>;

// The middles of all cells of all widgets that the current screen tests on a press, but those of the stats:
// a press there counts wherever it is let go.
std::vector<Point> pressPlaces() {
    std::vector<Point> places;
    for (const WidgetRow& row : widgetsInUse()) {
        const Button& b = widget(row.id);
        if (b.hidden || row.id == id::stats) continue;
        for (int y = b.y + b.cellHeight / 2; y < b.y + b.height; y += b.cellHeight)
            for (int x = b.x + b.cellWidth / 2; x < b.x + b.width; x += b.cellWidth) places.push_back({x, y});
    }
    return places;
}

// Where, apart from those places, the frame differs from an earlier one, as text; empty where it does not.
std::string difference(const Image& before, const Rects& apart) {
    const auto isApart = [&](int x, int y) {
        return std::ranges::any_of(apart, [=](const Rect& r) { return contains(r, x, y); });
    };
    for (int i = 0; i < frameWidth * frameHeight; ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (before.pixels[at] != screen().pixels[at] && !isApart(i % frameWidth, i / frameWidth))
            return "from " + std::to_string(i % frameWidth) + ", " + std::to_string(i / frameWidth) + " on";
    }
    return {};
}

// The records but for the screen that is shown.
std::string records() {
    Prefs kept = prefs;
    kept.currentScreen = 0;
    return gameBytes() + std::string(reinterpret_cast<const char*>(&kept), sizeof kept) +
           std::to_string(ui.targetMode);
}

}  // namespace

class EveryScreenTest : public PlayTest {
  protected:
    void SetUp() override {
        PlayTest::SetUp();
        script.startScenario(5).check([] {
            constexpr std::array tiles{enc::Gold, enc::Door,        enc::Ghost, enc::Thief,
                                       enc::Cave, enc::OozingFilth, enc::Demon};
            for (int i = 0; i < columnCount * rowCount; ++i)
                cell(i % columnCount, i / columnCount) = tiles[static_cast<std::size_t>(i * 5 % columnCount)];
            giveHero(50);
            seedRolls(3);
            openPlayScreen();
        });
    }
    // Presses every place of the screen that is open then, and lets go elsewhere.
    void pressAll(const Rects& apart = {}) {
        script.move(boardCell(1, 1)).move(nothing).check([=] {
            Script presses;
            for (const Point at : pressPlaces()) {
                auto before = std::make_shared<Image>();
                const auto stands = [=] { return difference(*before, apart).empty(); };
                presses.check([=] { *before = screen(); }).press(at);
                presses.check([=] { EXPECT_FALSE(stands()) << at.x << ", " << at.y; }).release(nothing);
                presses.check([=] { EXPECT_TRUE(stands()) << at.x << ", " << at.y; });
            }
            playNext(presses);
        });
    }
    // With the button down on each place of the screen that those keys open from the play screen.
    void holdInto(const std::string& keys, const std::string& title) {
        script.type(keys).check([=] {
            Script holds;
            for (const Point at : pressPlaces()) {
                auto before = std::make_shared<std::string>();
                holds.key("q").check([=] { *before = records(); });
                holds.press(at).type(keys).release(at).screen(title);
                holds.key("q").press(at).type(keys).key("q").release(at).screen("Gloomdeck 1.2");
                holds.check([=] { EXPECT_EQ(records(), *before) << at.x << ", " << at.y; }).type(keys);
            }
            playNext(holds.key("q"));
        });
    }
    // What stands on the play screen is what openPlayScreen draws, but for what no drawing afresh knows: the
    // information area, the icon of a mode that was, scorches and highlights.
    void expectFresh(const char* when) {
        script.move(nothing).check([=] {
            Rects apart{place::infoArea, place::modeIcon};
            for (int i = 0; i < columnCount * rowCount; ++i) {
                const Rect r = boardGrid.cell(i % columnCount, i / columnCount);
                if (pixelAt(r.x1 + 4, r.y1 + 4) == flatColour(tile::scorch)) apart.push_back(r);
            }
            for (int item = 0; item < itemCount; ++item)
                if (itemType(item).highlightTurns > 0) apart.push_back(place::countBox(item));
            const Image standing = screen();
            openPlayScreen();
            EXPECT_EQ(difference(standing, apart), "") << when;
            screen() = standing;
            frameChanged();
        });
    }
};

TEST_F(EveryScreenTest, APressThatIsLetGoElsewhereLeavesTheFrameAsItWas) {
    pressAll();
    for (const char* key : {"P", "T", "H"}) {
        script.key(key);
        pressAll();
        script.key("q");
    }
    script.key("H").key(keycode::up).key(keycode::up);
    pressAll();
    script.key("q").key("N").key("y");
    pressAll({cursor});
    script.key(keycode::left);
    pressAll({cursor});
    script.key(keycode::enter).key(keycode::space).hurry().clearBoard();  // the first stage of a campaign
    pressAll();
    finish();
}

TEST_F(EveryScreenTest, APressFromBeforeAScreenOrAQuestionDoesNothingThereNorAfterIt) {
    for (const auto& [keys, title] : {std::pair{"P", "Preferences"}, {"T", "Train or trade"}, {"H", "Help"}})
        holdInto(keys, title);
    script.press(boardCell(2, bottomRow))
        .type("Ny")
        .release({228, 208})
        .screen("Select a game")
        .key(keycode::enter);
    for (const char* key : {"R", "N", "Q"}) {
        script.press(yesButton).key(key).release(yesButton).key("n").screen("Gloomdeck 1.2");
        script.press(boardCell(2, bottomRow)).key(key).key("n").release(boardCell(2, bottomRow));
    }
    script.check([] { EXPECT_EQ(game.turns, 0); });
    finish();
}

TEST_F(EveryScreenTest, ThePlayScreenStandsAsItWouldBeDrawnAfresh) {
    script.check([] {
        game.turns = 1;  // no hint
        openPlayScreen();
    });
    expectFresh("at first");
    for (const int item : {suns, shields, keys}) {
        script.click(statsCell(item));
        expectFresh("after an item");
    }
    for (const int item : {lightningBolts, bombs, hands}) {
        script.click(statsCell(item)).move(boardCell(3, 2)).key(keycode::escape);
        expectFresh("after a cancel");
        script.click(statsCell(item)).click(boardCell(3, 2));
        expectFresh("after an aimed item");
    }
    for (int turn = 0; turn < 3 * columnCount; ++turn) {
        script.click(boardCell(turn % columnCount, bottomRow));
        expectFresh("after a turn");
    }
    for (const char* key : {"P", "T", "H", "Q"}) {
        script.move(boardCell(4, 4)).key(key).key("n").key(keycode::escape);
        expectFresh("after a return");
    }
    script.hurry().clearBoard();
    expectFresh("at the end");
    finish();
}

}  // namespace gloomdeck
