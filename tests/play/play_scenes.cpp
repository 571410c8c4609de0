// The scenes of the play screen: its pieces, and every tile met.
#include "content/game_flow.h"
#include "content/locations.h"
#include "content/scenarios.h"
#include "prefs/switches.h"
#include "shell/widgets/layout.h"
#include "tests/play/scenes.h"

namespace gloomdeck {

namespace {

// Every code twice, from the top left; two of them are eyes, one high up and one in the bottom row.
void everyCode() {
    for (int i = 0; i < columnCount * rowCount; ++i)
        cell(i % columnCount, i / columnCount) = i % encounterCount;
}

void leave(int col, int tiles) { column(col).drawn = locationRow(column(col).location).deckLength - tiles; }

// The ends of columns: some cells past one, a last tile, and a name.
void endings() {
    leave(0, 3);
    leave(2, 1);
    column(5).finished = 1;
}

void boost(int percent) { game.skills = {0, 0, percent, percent, percent, 0}; }

// Nothing is hovered after it.
void click(StagedPlay& play, Point at) { play.click(at).move(nothing); }

void aimAt(StagedPlay& play, int item, Point at) {
    click(play, statsCell(item));
    play.move(at);
    click(play, at);
}

}  // namespace

void playPieces(StagedPlay& play) {
    scene(play, "hovered tiles", [] {
        everyCode();
        endings();
        game.skills = {7, 0, 9, 11, 13, 95};
    });
    for (int i = 0; i < columnCount * rowCount; ++i) play.move(boardCell(i % columnCount, i / columnCount));
    for (int item = 0; item < itemCount; ++item) play.move(statsCell(item));
    play.move(boardCell(3, 3)).move({130, 160}).move(nothing).move(statsCell(gold)).leave();
    for (const int item : {lightningBolts, bombs, hands}) {
        scene(play, "aimed with item " + std::to_string(item), everyCode);
        click(play, statsCell(item));
        for (const Point at : {boardCell(3, 3), boardCell(1, 6), statsCell(keys)}) play.move(at);
        play.key("\x1B").click(statsCell(item)).click(statsCell(keys));
    }
    scene(play, "play, all held", everyCode);
    holdAll(play, playWidgets);
    scene(play, "stats row held", [] {});
    for (int item = 0; item < itemCount; ++item)
        if (item != gold && item != suns && item != shields) play.press(statsCell(item)).release(nothing);
    scene(play, "nothing to use", [] { giveHero(0); });
    for (int item = 0; item < itemCount; ++item)
        if (item != gold) click(play, statsCell(item));
    scene(play, "speeds", [] {});
    play.type("+++++-------");
    for (int location = 0; location < locationCount; ++location)
        scene(play, "finished " + std::to_string(location), [=] {
            for (int col = 0; col < columnCount; ++col) column(col).location = location;
            column(location % columnCount).finished = 1;
            everyCode();
            column(1).drawn = 8;
        });
    for (int turns = 0; turns < 8; ++turns)
        scene(play, "day " + std::to_string(turns), [=] {
            game.turns = turns * 57;
            game.scenario = turns % scenarioTableSize;
            game.skills = {turns, 2 * turns, 3 * turns, 4 * turns, 5 * turns, turns * 13};
            game.powers = {turns, 2 * turns, 3 * turns};
            giveHero(turns * 111 - 50);
        });
    for (int standing = -1; standing < 2; ++standing) {
        scene(play, "cleared with standing " + std::to_string(standing), [=] {
            for (int col = 0; col < columnCount; ++col) column(col).finished = 1;
            prefs.scenarioOver = 1;
            game.scoreStanding = standing;
        });
        play.move(boardCell(2, 2)).click(statsCell(bombs));
        holdAll(play, playWidgets);
    }
    scene(play, "powers run out", [] {
        game.powers = {2, 3, 1};
        game.skills[toughness] = 95;
        count(health) = 0;
        everyCode();
        cell(6, 5) = enc::HypnoEye;
        for (int col = 2; col < columnCount; ++col) cell(col, bottomRow) = enc::Empty;
    });
    for (int col = 2; col < 6; ++col) click(play, boardCell(col, bottomRow));
}

void playEncounters(StagedPlay& play) {
    const std::pair<const char*, void (*)()> settings[] = {
        {"", [] {}},
        {" with nothing", [] { giveHero(0); }},
        {" with skills", [] { game.skills = {60, 60, 60, 60, 60, 60}; }},
        {" under stasis", [] { turnsLeft(stasis) = 3; }},
        {" under deflection", [] { turnsLeft(deflection) = 3; }},
        {" under sight", [] { turnsLeft(magicSight) = 1; }},
        {" below an eye", [] { cell(3, 2) = cell(4, 4) = enc::HypnoEye; }},
        {" walled in", [] { fillBoard(enc::Door); }},
    };
    for (const auto& [where, prepare] : settings)
        for (int code = 0; code < encounterCount; ++code) {
            scene(play, std::string(encounterType(code).name) + where, [=, prepare = prepare] {
                std::fill_n(column(3).cells.begin(), rowCount, enc::Fruit);
                cell(2, bottomRow) = enc::Chest;
                prepare();
                cell(3, bottomRow) = code;
            });
            for (const int col : {3, 0, 1}) click(play, boardCell(col, bottomRow));
        }
}

void playSpells(StagedPlay& play) {
    for (const int item : {suns, shields})
        for (const int percent : {-100, 0, 50, 95})
            for (const int sight : {0, 2}) {
                const std::string name = "item " + std::to_string(item) + " at " + std::to_string(percent);
                scene(play, name + (sight ? " seeing" : ""), [=] {
                    everyCode();
                    boost(percent);
                    endings();
                    turnsLeft(magicSight) = sight;
                });
                click(play, statsCell(item));
            }
    for (int col = 0; col < columnCount; ++col)
        for (const int percent : {0, 95}) {
            scene(play, "bolt in " + std::to_string(col) + " at " + std::to_string(percent), [=] {
                everyCode();
                boost(percent);
                leave(0, 3);
                cell(0, 4) = cell(2, 3) = enc::TheEnd;
                column(5).finished = 1;
            });
            aimAt(play, lightningBolts, boardCell(col, 2));
        }
    for (const Point at : {Point{3, 3}, Point{0, 0}, Point{6, 6}, Point{1, 5}, Point{2, 1}}) {
        scene(play, "bomb at " + std::to_string(at.x) + ", " + std::to_string(at.y), [=] {
            everyCode();
            cell(3, 3) = enc::SkeletonKing;
        });
        aimAt(play, bombs, boardCell(at.x, at.y));
    }
    for (int code = 0; code < encounterCount; ++code) {
        scene(play, "hand on " + std::string(encounterType(code).name), [] {
            everyCode();
            cell(1, 5) = enc::HypnoEye;  // below another
        });
        aimAt(play, hands, boardCell(code % columnCount, code / columnCount));
    }
    scene(play, "hand below an eye", [] {
        everyCode();
        cell(1, 5) = enc::Meat;
        leave(4, 2);
    });
    aimAt(play, hands, boardCell(1, 5));
    aimAt(play, hands, boardCell(4, 1));
}

void playAutoplayer(StagedPlay& play) {
    const auto allowAll = [] {
        for (const Switch s : {Switch::goodStuff, Switch::fairlyEasy, Switch::obstacles, Switch::grief})
            setSwitch(s, true);
        giveHero(200);
        count(lightningBolts) = count(bombs) = 3;
    };
    for (const bool weapons : {false, true}) {
        scene(play, weapons ? "autoplayer with weapons" : "autoplayer", [=] {
            everyCode();
            for (int col = 0; col < columnCount; ++col) leave(col, 8);
            allowAll();
            setSwitch(Switch::spellsSkills, weapons);
        });
        play.click(boardCell(0, bottomRow));
    }
    scene(play, "autoplayer bombing eyes", [=] {
        fillBoard(enc::Skeleton);
        cell(0, 2) = cell(5, 5) = enc::HypnoEye;
        count(bombs) = 2;
        count(lightningBolts) = 0;
        setSwitch(Switch::grief, true);
        setSwitch(Switch::spellsSkills, true);
    });
    play.click(boardCell(0, bottomRow));
    scene(play, "autoplayer stopped", [=] {
        fillBoard(enc::Skeleton);
        allowAll();
    });
    play.then([](InputQueue& queue) {
        clickAt(queue, boardCell(0, bottomRow));
        keyTyped(queue, "z");
        keyTyped(queue, keycode::space);
    });
}

}  // namespace gloomdeck
