// The widgets of the play screen, a row each, and what items do when they are clicked.
#include "shell/play_screen.h"

#include <array>
#include <string>

#include "autoplayer/autoplayer.h"
#include "platform/input.h"
#include "prefs/prefs.h"
#include "rules/catalogue.h"
#include "rules/game_state.h"
#include "rules/show.h"
#include "rules/spells.h"
#include "rules/training/training_screen.h"
#include "shell/board_clicks.h"
#include "shell/play/hover.h"
#include "shell/play/play_pieces.h"
#include "shell/play/play_view.h"
#include "shell/play/stats_column.h"
#include "shell/play/target_mode.h"
#include "shell/widgets/hit_test.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

namespace {

int cast(void (*spell)()) {
    spell();
    return 1;
}

int arm(int mode) {
    setTargetMode(mode);
    return 0;
}

int say(const std::string& text) {
    ShowMessage(text, 0);
    return 0;
}

int openTraining() {
    TrainingScreen();
    enterPlayScreen();
    return 0;
}

int useItem(int row, const std::string& name) {
    switch (row) {
        case suns: return cast(CastSun);
        case shields: return cast(CastShield);
        case bombs: return arm(target::bomb);
        case lightningBolts: return arm(target::lightning);
        case hands: return arm(target::hand);
        case gold: return openTraining();
        default: return say("You have " + std::to_string(count(row)) + " " + name + ".");
    }
}

void endHover(int gridWidget) {
    widget(gridWidget).hoverCol = -1;
    clearInfoArea();
}

void redrawPressedColumn() { drawColumn(widget(id::board).pressCol); }
void redrawPressedItem() { drawStatsCell(widget(id::stats).pressRow); }

int releaseOnBoard(const WidgetRow& /*row*/, const MouseState& mouse) {
    Button& board = widget(id::board);
    const int col = board.pressCol;
    int answer = 0;
    if (hitTest(board, mouse.x, mouse.y, Phase::release)) {
        answer = clickBoard(col, board.pressRow);
        endHover(id::board);
    }
    if (!answer) drawColumn(col);
    return answer;
}

// Wherever it was let go.
int releaseOnStats(const WidgetRow& /*row*/, const MouseState& /*mouse*/) {
    const int row = widget(id::stats).pressRow;
    const int answer = clickStats(row);
    drawStatsCell(row);
    endHover(id::stats);
    return answer;
}

constexpr std::array<WidgetRow, 8> widgets{{{.id = id::board,
                                             .release = releaseOnBoard,
                                             .redraw = redrawPressedColumn,
                                             .hover = hoverTile,
                                             .leave = leaveTile},
                                            {.id = id::stats,
                                             .release = releaseOnStats,
                                             .redraw = redrawPressedItem,
                                             .hover = hoverItem,
                                             .leave = leaveItem},
                                            {.id = id::newGame},
                                            {.id = id::exit},
                                            {.id = id::replay},
                                            {.id = id::help},
                                            {.id = id::prefs},
                                            {.id = id::continueGame}}};
constexpr std::size_t grids = 2;

std::span<const WidgetRow> widgetsOfPlay() {
    const std::span<const WidgetRow> all = widgets;
    return prefs.scenarioOver ? all.subspan(grids) : all;
}

}  // namespace

const Screen playScreen{screen_id::play, "Gloomdeck 1.2", widgetsOfPlay};

int clickStats(int row) {
    if (ui.targetMode != target::none) {
        ShowMessage("Spell canceled.", 0);
        return arm(target::none);
    }
    const ItemType& type = itemType(row);
    const std::string name(type.name);
    if (count(row) < 1 && row != gold) return say("You have no " + name + (type.usable ? " to use." : "."));
    return useItem(row, name);
}

void enterPlayScreen() {
    ui.targetMode = target::none;
    enterScreen(playScreen);
    widget(id::board).hoverCol = -1;
    widget(id::stats).hoverCol = -1;
    openPlayScreen();
    if (!closeRequestWaits()) RunAutoplayer();  // the game is kept as it stands
}

}  // namespace gloomdeck
