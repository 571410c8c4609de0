// A player in steps: each is handed out when the program has come to rest after the one before.
#pragma once

#include <deque>
#include <functional>
#include <string>

#include "platform/geometry.h"
#include "platform/input_queue.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

Point boardCell(int col, int row);  ///< the cell's middle
Point statsCell(int item);
Point widgetCentre(int widgetId);

/// The pointer moves there, then the button goes down (true) and up.
void pointAt(InputQueue& queue, Point at, const std::vector<bool>& changes);
inline void clickAt(InputQueue& queue, Point at) { pointAt(queue, at, {true, false}); }

std::string gameBytes();  ///< the game record as its file holds it
void giveHero(int n);     ///< gives so many of everything

struct Script {
    using Step = std::function<void(InputQueue&)>;

    Script& then(const Step& step);
    Script& check(const std::function<void()>& look);
    Script& screen(const std::string& title);  ///< expects that title of the window
    Script& key(std::string_view text);
    Script& type(std::string_view text);  ///< one key a character
    Script& mouse(Point at, const std::vector<bool>& changes);
    Script& move(Point at) { return mouse(at, {}); }
    Script& press(Point at) { return mouse(at, {true}); }
    Script& release(Point at) { return mouse(at, {false}); }
    Script& click(Point at) { return mouse(at, {true, false}); }
    Script& button(int widgetId);  ///< clicks the widget where it stands by then
    Script& leave() { return then(pointerLeft); }
    Script& closeWindow() { return then(closeRequested); }
    Script& wait(double seconds);  ///< the clock moves on
    Script& passTitle() { return key(" "); }
    Script& startScenario(int listPosition);  ///< from the title of a first start
    Script& hurry();                          ///< the next tile of every column is The End
    Script& clearBoard();                     ///< clicks tile after tile until the board is done

    std::deque<Step> steps;
};

/// Puts steps before those that are left of the script that plays.
void playNext(const Script& script);

/// Lets the script play whatever runs next; what it leaves unused is reported by finishScript.
void startScript(const Script& script);
void finishScript();

/// The whole program under test: it starts in a folder of its own.
class PlayTest : public GameTest {
  protected:
    void SetUp() override;

    /// Runs the program with the script as its player; the answer is its exit code.
    int run(const Script& player);
    int restart(const Script& player);   ///< the next run in the same folder, nothing left of the one before
    int firstRun(const Script& player);  ///< the next run, its Data folder empty again

    std::string dataFile(const std::string& name) const;  ///< its bytes; empty when there is none
    void writeDataFile(const std::string& name, const std::string& bytes) const;

    /// A first run with the script; the window is closed after its last step.
    void finish() { EXPECT_EQ(firstRun(script.closeWindow()), 0); }

    Script script;
    bool withPictures = true;
    std::string folder;
};

/// The same without pictures, for many quick runs of one script.
class QuickPlayTest : public PlayTest {
  protected:
    QuickPlayTest() { withPictures = false; }
};

}  // namespace gloomdeck
