// The turn counter's picture above the stats column: four turns make a day.

#include <array>
#include <string>

#include "platform/draw.h"
#include "platform/palette.h"
#include "rules/game_state.h"
#include "rules/show.h"
#include "shell/widgets/places.h"
#include "shell/widgets/tile_set.h"

namespace gloomdeck {

namespace {

constexpr std::array timesOfDay{tile::dawn, tile::noon, tile::dusk, tile::night};
constexpr int turnsPerDay = 4;

int indent(std::int64_t day) {
    if (day < 10) return 7;
    return day < 100 ? 3 : 0;
}

}  // namespace

void DrawDayDisplay() {
    const Rect& box = place::dayDisplay;
    fillBox(box.x1, box.y1, box.x2, box.y2, colour::panel);
    const std::int64_t time = ((std::int64_t{game.turns} % turnsPerDay) + turnsPerDay) % turnsPerDay;
    const std::int64_t day = (game.turns - time) / turnsPerDay + 1;
    const int left = timesOfDay[static_cast<std::size_t>(time)];
    putTile(left, box.x1, box.y1, putTransparent);
    putTile(left + 1, box.x1 + tile::size, box.y1, putTransparent);
    drawText(box.x1 + 22 + indent(day), box.y1 + 20, std::to_string(day));
}

}  // namespace gloomdeck
