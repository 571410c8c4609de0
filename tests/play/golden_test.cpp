// The screens as whole frames, drawn with flat tiles.
#include "content/locations.h"
#include "shell/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

// A board and a hero that show everything that a play screen can: all codes, an eye, ends, all powers.
static void setTheScene() {
    makeEmptyBoard();
    for (int code = 0; code < enc::count; ++code) cell(code % 6, code / 6) = code;
    for (int col = 0; col < columnCount; ++col) column(col).location = col;
    column(5).drawn = locationRow(5).deckLength - 3;
    column(6).finished = 1;
    for (int item = 0; item < itemCount; ++item) count(item) = item * 13;
    for (int skill = 0; skill < skillCount; ++skill) level(skill) = skill * 19;
    for (int power = 0; power < powerCount; ++power) turnsLeft(power) = power * 5;
    game.turns = 123;
    game.scenario = 6;
}

TEST_F(PlayTest, EveryScreenLooksAsItDid) {
    const auto frame = [](const char* name) { return [=] { expectGoldenFrame(name); }; };
    Script script;
    script.passTitle().key(keycode::right).key(keycode::down).type(" II").check(frame("selection"));
    script.key(keycode::enter).check(setTheScene).key("P").button(id::toggle + 3).button(id::speedUp);
    script.check(frame("preferences")).button(id::toggle + 3).key("q").key("T").button(id::training);
    script.check(frame("training")).key("q").key("H").key(keycode::left).check(frame("help")).key("q");
    script.click(statsCell(keys)).click(statsCell(lightningBolts)).move(boardCell(4, 2)).check(frame("play"));
    EXPECT_EQ(run(script.closeWindow()), 0);
}

}  // namespace gloomdeck
