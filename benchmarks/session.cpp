#include "benchmarks/session.h"

#include <random>

#include "autoplayer/autoplayer.h"
#include "content/game_flow.h"
#include "content/scenarios.h"
#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/host_script.h"
#include "platform/input.h"
#include "platform/palette.h"
#include "platform/random.h"
#include "prefs/prefs.h"
#include "prefs/switches.h"
#include "rules/board.h"
#include "shell/play/play_view.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/tile_set.h"

namespace gloomdeck {

namespace {

std::mt19937_64 stream;

double nextOfStream() { return static_cast<double>(stream() >> 11) * 0x1.0p-53; }

}  // namespace

void startSession(const char* folder) {
    script::setFolder(folder);
    script::setFramePeriod(displayPeriod);
    layOutWidgets();
    openWindow(frameWidth, frameHeight);
    setDefaultColours(colour::text, colour::panel);
    loadTiles();
    useRandomSource(nextOfStream);
    prefs.GameSpeed = speedCount - 1;
    prefs.currentScreen = screen_id::play;
    prefs.campaignChoice = -1;
    prefs.switches = switchesWith(&SwitchType::allowsMoves);
}

void startGame(int scenario, std::uint64_t seed) {
    stream.seed(seed);
    game = {};
    prefs.scenarioChoice = scenario;
    startNewGame();
    openPlayScreen();
}

// The Space that stops the autoplayer's run is read before the move is played.
bool playMove() {
    keyTyped(inputQueue(), keycode::space);
    const int before = game.turns;
    RunAutoplayer();
    if (game.turns > before) return true;
    dropWaitingKeys(inputQueue());
    return false;
}

std::vector<GameState> positionsOfGames(std::uint64_t seeds, int step, int last) {
    std::vector<GameState> positions;
    for (int scenario = 0; scenario < scenarioTableSize; ++scenario)
        for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
            startGame(scenario, seed);
            for (int move = 1; move <= last && playMove(); ++move)
                if (move % step == 0) positions.push_back(game);
        }
    return positions;
}

}  // namespace gloomdeck
