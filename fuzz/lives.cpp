#include "fuzz/lives.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "content/campaigns.h"
#include "content/scenarios.h"
#include "fuzz/fault.h"
#include "fuzz/player.h"
#include "platform/files.h"
#include "platform/frame.h"
#include "platform/host_script.h"
#include "prefs/prefs.h"
#include "prefs/saved_data.h"
#include "rules/game_state.h"
#include "shell/main_loop.h"
#include "shell/widgets/ui_state.h"
#include "tests/support/invariants.h"
#include "tests/support/reset.h"

namespace gloomdeck::fuzz {

namespace {

constexpr int mostLives = 4;
constexpr int patience = 300;            // polls of a busy program, after which the player goes on
constexpr long mostPollsToEnd = 100000;  // of a program that has been told to end
constexpr int smallSide = 16;
constexpr int mostCloses = 50;           // of a program at rest
constexpr double brokenDisplay = 1.0e6;  // takes no second picture, which leaves more time to play

struct Life {
    InputBytes* bytes = nullptr;
    Timing next;
    int busyPolls = 0;  // since the player did something
    int closes = 0;
    long pollsToEnd = 0;
    bool wholeFrame = true;
    bool sound = false;  // from here on the records keep all promises
};

Life life;

bool isOver() { return life.bytes->empty(); }

void play(InputQueue& queue) {
    life.busyPolls = 0;
    life.next = playNext(*life.bytes, queue);
}

// With records like these nothing can wrap around or point out of a table any more. Before they are read, no
// screen is the current one.
bool isFreshGame() {
    if (prefs.currentScreen != screen_id::play) return false;
    constexpr int most = 1000000;
    const auto modest = [](int value) { return value >= -most && value <= most; };
    for (int col = 0; col < columnCount; ++col)
        if (column(col).drawn != 0) return false;
    return std::all_of(game.inventory.begin(), game.inventory.end(), modest) &&
           std::all_of(game.powers.begin(), game.powers.end(), modest) && modest(game.turns) &&
           prefs.campaignChoice >= none && prefs.campaignChoice < campaignCount &&
           prefs.scenarioChoice >= 0 && prefs.scenarioChoice < scenarioTableSize;
}

// A damaged record may break any promise, until a new board is dealt over it.
void checkPromises() {
    const std::string broken = brokenInvariant();
    if (life.sound && !broken.empty()) fault(broken);
    life.sound = broken.empty() && (life.sound || isFreshGame());
}

bool whenIdle(InputQueue& queue) {
    if (!life.wholeFrame && screen().width > smallSide) openWindow(smallSide, smallSide);
    checkPromises();
    if (ui.lockDepth != 0) fault("the screen is locked at rest");
    if (!isOver()) {
        play(queue);
        return true;
    }
    if (++life.closes > mostCloses) fault("closing the window does not end the program");
    closeRequested(queue);
    return true;
}

bool whenPausing(InputQueue& queue) {
    if (life.next.pauses > 0 && --life.next.pauses == 0 && !isOver()) play(queue);
    return true;
}

bool atPoll(InputQueue& queue) {
    if (queue.ending) {
        if (++life.pollsToEnd > mostPollsToEnd) fault("the program does not end when it should");
        return true;
    }
    const bool due = life.next.polls > 0 && --life.next.polls == 0;
    const bool impatient = ++life.busyPolls > patience;
    if (!due && !impatient) return true;
    if (isOver())
        endRequested(queue);
    else
        play(queue);
    return true;
}

void start(const ProgramFolder& folder, InputBytes& bytes, bool wholeFrame, bool sound) {
    forgetProgram();
    life = {.bytes = &bytes, .next = {}, .wholeFrame = wholeFrame, .sound = sound};
    script::setFolder(folder.path);
    script::setFramePeriod(brokenDisplay);
    script::feedWhenIdle(whenIdle);
    script::feedWhenPausing(whenPausing);
    script::feedAtPoll(atPoll);
}

// What the next start would read must be what this run had.
void checkReading(const ProgramFolder& folder) {
    const GameState playedGame = game;
    Prefs playedPrefs = prefs;
    playedPrefs.reserved = 0;
    forgetProgram();
    script::setFolder(folder.path);
    if (LoadSavedData() != 1) fault("the saved files are not read");
    if (std::memcmp(&game, &playedGame, sizeof game) != 0) fault("another game is read than was saved");
    if (std::memcmp(&prefs, &playedPrefs, sizeof prefs) != 0) fault("other preferences are read");
}

void checkEnd(const ProgramFolder& folder, const SavedFiles& before, int exitCode) {
    if (exitCode != 0) fault("the exit code is " + std::to_string(exitCode));
    if (ui.lockDepth != 0) fault("the screen is locked at the end");
    checkPromises();
    const std::string wrong = savedFault(folder, before);
    if (!wrong.empty()) fault(wrong);
    if (fileExists(folder.newGameFile()) || fileExists(folder.nextPrefsFile()))
        fault("something is left beside the saved files");
    checkReading(folder);
}

void runOnce(const ProgramFolder& folder, InputBytes& bytes, bool wholeFrame, bool sound) {
    const SavedFiles before = savedFiles(folder);
    start(folder, bytes, wholeFrame, sound);
    try {
        runGloomdeck();
    } catch (const script::ProgramEnded& ended) {
        checkEnd(folder, before, ended.exitCode);
    } catch (const WindowLost&) {
        const SavedFiles now = savedFiles(folder);
        if (now.game.size() < before.game.size() || now.prefs.size() < before.prefs.size())
            fault("a lost window has cut the saved files");
    }
}

}  // namespace

void playLives(const ProgramFolder& folder, InputBytes& bytes, Records records) {
    const bool wholeFrame = bytes.below(8) == 1;
    int lives = 0;
    do {
        runOnce(folder, bytes, wholeFrame, records == Records::sound);
    } while (!bytes.empty() && ++lives < mostLives);
}

}  // namespace gloomdeck::fuzz
