// Pictures must be told apart from far away, in grey and without green or red cones, wherever they are shown.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "art/eyesight.h"
#include "art/shapes.h"
#include "tests/art/tiles_under_test.h"

namespace gloomdeck::art {
namespace {

using View = Colour (*)(Colour);
constexpr View views[] = {grey, deuteranopia, protanopia};

Canvas plain(Colour c) { return Canvas().fill(everywhere(), c); }

const std::vector<Canvas>& floors() {
    static const std::vector<Canvas> grounds = [] {
        std::vector<Canvas> all;
        for (const int number : terrains) all.push_back(tile(number));
        return all;
    }();
    return grounds;
}

const std::vector<Canvas>& interfaceGrounds() {
    static const std::vector<Canvas> grounds{plain(dimGround), plain(slateGround), plain(panelGround),
                                             plain(0), tile(70)};
    return grounds;
}

// A tile as it is seen on each ground in each view, always in the same order.
using Looks = std::vector<Squint>;

Looks looksOf(int number, const std::vector<Canvas>& grounds = floors()) {
    Looks looks;
    for (const View view : views) {
        for (const Canvas& ground : grounds) looks.push_back(squint(seenOver(tile(number), ground, view)));
    }
    return looks;
}

double closest(const Looks& a, const Looks& b) {
    double nearest = 1e9;
    for (std::size_t i = 0; i < a.size(); ++i) nearest = std::min(nearest, squintDistance(a[i], b[i]));
    return nearest;
}

std::vector<int> together(std::initializer_list<std::span<const int>> groups) {
    std::vector<int> all;
    for (const std::span<const int> group : groups) all.insert(all.end(), group.begin(), group.end());
    return all;
}

void expectApart(const std::vector<int>& numbers, const std::vector<Canvas>& grounds, double least) {
    std::map<int, Looks> looks;
    for (const int number : numbers) looks.emplace(number, looksOf(number, grounds));
    for (const auto& [a, looksOfA] : looks) {
        for (const auto& [b, looksOfB] : looks) {
            if (a >= b) continue;
            EXPECT_GE(closest(looksOfA, looksOfB), least) << a << " and " << b;
        }
    }
}

// The least distances are those of the closest pairs there have been: the shield's boost and toughness on a
// floor, the bolt and its boost on a panel, both in grey.
TEST(Legibility, AnyTwoThingsDifferAtAGlance) {
    expectApart(together({encounters, items, markedGold, skillsAndPowers}), floors(), 24.19);
    expectApart(together({items, markedGold, skillsAndPowers}), interfaceGrounds(), 22.12);
}

TEST(Legibility, TheHarderVersionOfAThingIsUnmistakable) {
    for (const auto& [easy, hard] : {std::pair{93, 82}, {5, 28}, {69, 18}, {17, 41}}) {
        EXPECT_GE(closest(looksOf(easy), looksOf(hard)), 35) << easy << " and " << hard;
    }
}

TEST(Legibility, MarkedGoldTellsItsMarks) {
    for (const auto& [a, b] : {std::pair{75, 74}, {75, 68}, {74, 68}}) {
        EXPECT_GE(closest(looksOf(a), looksOf(b)), 25) << a << " and " << b;
    }
}

// Mean luma of the pixels that pass.
template <class Test>
double meanLuma(const Canvas& t, Test counts) {
    double sum = 0;
    int n = 0;
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            if (!t.painted(x, y) || !counts(luma(t.colour(x, y)))) continue;
            sum += luma(t.colour(x, y));
            ++n;
        }
    }
    return n > 0 ? sum / n : 0;
}

TEST(Legibility, BodiesStandOutFromEveryTerrain) {
    std::vector<int> bodies(std::begin(encounters), std::end(encounters));
    bodies.insert(bodies.end(), std::begin(items), std::end(items));
    for (const int ground : terrains) {
        const double below = meanLuma(tile(ground), [](double) { return true; });
        EXPECT_LT(below, 50) << ground;
        for (const int number : bodies) {
            if (number == 50) continue;  // darkness is meant to be dark
            const double body = meanLuma(tile(number), [](double v) { return v > 30; });
            EXPECT_GE(std::fabs(body - below), 45) << number << " on " << ground;
        }
    }
}

// Pixels of a tile whose luma differs that much from what is under them.
int pixelsApart(const Canvas& over, const Canvas& under, double least) {
    int n = 0;
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            const double here = over.painted(x, y) ? luma(over.colour(x, y)) : luma(under.colour(x, y));
            n += std::fabs(here - luma(under.colour(x, y))) >= least ? 1 : 0;
        }
    }
    return n;
}

TEST(Legibility, NothingIsSeenOnThePanelsAndOnEveryFloor) {
    std::vector<Canvas> grounds = floors();
    grounds.push_back(plain(panelGround));
    for (const Canvas& ground : grounds) {
        EXPECT_GE(pixelsApart(tile(100), ground, 45), 30) << "on ground " << &ground - grounds.data();
    }
}

}  // namespace
}  // namespace gloomdeck::art
