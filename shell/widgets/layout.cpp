// The table of places, and the records that start from it.
#include "shell/widgets/layout.h"

#include <array>

#include "shell/widgets/places.h"

namespace gloomdeck {

namespace {

std::array<Button, widgetCount> widgets;

struct Placement {
    int id;
    int x;
    int y;
    int width;
    int height;
    int cellWidth;
    int cellHeight;
    const char* caption;
};

// The buttons of the bottom row, from the right; there is a gap beside Exit.
constexpr int bottomWidth = 63;
constexpr int bottomTop = 464;
constexpr int exitX = 337;
constexpr int helpX = exitX - 132;
constexpr int prefsX = helpX - 66;
constexpr int replayX = prefsX - 66;
constexpr int newX = replayX - 66;

// clang-format off
constexpr std::array placements{
    //                                    x    y          w            h    cell
    Placement{id::tabs,           8,       8,         156,         16,  78,          16, ""},
    Placement{id::helpMenu,       5,       20,        83,          144, 85,          16, ""},
    Placement{id::list,           260,     8,         140,         70,  140,         10, ""},
    Placement{id::done,           168,     264,       48,          16,  48,          16, ""},
    Placement{id::selectionExit,  104,     264,       48,          16,  48,          16, ""},
    Placement{id::exit,           exitX,   bottomTop, bottomWidth, 16,  bottomWidth, 16, "Exit"},
    Placement{id::help,           helpX,   bottomTop, bottomWidth, 16,  bottomWidth, 16, "Help"},
    Placement{id::prefs,          prefsX,  bottomTop, bottomWidth, 16,  bottomWidth, 16, "Prefs"},
    Placement{id::replay,         replayX, bottomTop, bottomWidth, 16,  bottomWidth, 16, "Replay "},
    Placement{id::newGame,        newX,    bottomTop, bottomWidth, 16,  bottomWidth, 16, "New"},
    Placement{id::continueGame,   150,     240,       74,          16,  74,          16, "Continue"},
    Placement{id::next,           0,       0,         64,          16,  64,          16, "Next >"},
    Placement{id::prev,           0,       0,         64,          16,  64,          16, "< Prev"},
    Placement{id::speedUp,        252,     124,       16,          16,  16,          16, "+"},
    Placement{id::speedDown,      140,     124,       16,          16,  16,          16, "-"},
};
// clang-format on

void placeWidget(const Placement& p) {
    Button& b = widget(p.id);
    b.x = p.x;
    b.y = p.y;
    b.width = p.width;
    b.height = p.height;
    b.cellWidth = p.cellWidth;
    b.cellHeight = p.cellHeight;
    b.caption = p.caption;
}

void placeRows() {
    for (int row = 0; row < trainingRows; ++row)
        placeWidget({id::training + row, 16, 48 + 35 * row, 32, 32, 32, 32, "+"});
    for (int row = 0; row < toggleRows; ++row)
        placeWidget(
            {id::toggle + row, 98, SwitchTable[static_cast<std::size_t>(row)].top, 52, 16, 52, 16, "on/off"});
}

void placeGrid(int widgetId, int gridId, const Grid& g) {
    placeWidget({widgetId, g.x, g.y, g.width(), g.height(), tile::size, tile::size, ""});
    widget(widgetId).gridId = gridId;
    widget(widgetId).kind = WidgetKind::tileGrid;
}

}  // namespace

Button& widget(int widgetId) {
    const bool known = widgetId > 0 && widgetId < widgetCount;
    return widgets[static_cast<std::size_t>(known ? widgetId : 0)];
}

void layOutWidgets() {
    for (Button& b : widgets) initButton(b);
    widgets[0].hidden = true;
    for (const Placement& p : placements) placeWidget(p);
    placeRows();
    placeGrid(id::board, grid::board, boardGrid);
    placeGrid(id::stats, grid::stats, statsGrid);
    for (const int bottom : {id::exit, id::help, id::prefs, id::replay, id::newGame})
        widget(bottom).hotkeyLetter = true;
    widget(id::continueGame).hidden = true;
}

}  // namespace gloomdeck
