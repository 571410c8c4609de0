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

/// A quick click, as hosts report it.
void clickAt(InputQueue& queue, Point at);

/// The game record as its file holds it.
std::string gameBytes();

/// Gives the hero so many of everything.
void giveHero(int n);

struct Script {
    using Step = std::function<void(InputQueue&)>;

    Script& key(std::string_view text);
    Script& type(std::string_view text);  ///< one key a character
    Script& move(Point at);
    Script& press(Point at);
    Script& release(Point at);
    Script& leave();
    Script& click(Point at);       ///< moves there, presses and releases at once
    Script& button(int widgetId);  ///< clicks the widget where it stands by then
    Script& closeWindow();
    Script& wait(double seconds);  ///< the clock moves on
    Script& check(std::function<void()> look);
    Script& screen(std::string_view windowTitle);  ///< expects that screen
    Script& newest(std::string_view message);      ///< expects that newest message
    Script& then(Step step);
    Script& until(std::function<bool()> done, Step step);  ///< the step again and again
    Script& passTitle() { return key(" "); }
    Script& startScenario(int listPosition);  ///< from the title of a first start
    Script& hurry();                          ///< the next tile of every column is The End
    Script& clearBoard();                     ///< clicks tile after tile until the board is done

    std::deque<Step> steps;
};

/// Runs the whole program in that folder with the script as its player; the answer is its exit code. A script
/// that runs dry, or that is not used up, fails the test (answer -1).
int runProgram(const Script& script, const std::string& folder);

/// The same with whatever feeders are set.
int runToItsEnd(const std::string& folder);

/// Lets the script play whatever runs next; the same failures are reported by finishScript.
void startScript(const Script& script);
void finishScript();

/// The rest of the script is not played: the program must end by itself.
void dropScript();

/// The whole program under test: it starts in a folder of its own.
class PlayTest : public GameTest {
  protected:
    void SetUp() override;
    int run(const Script& script) { return runProgram(script, folder); }
    int restart(const Script& script);   ///< the next run in the same folder, nothing left of the one before
    int firstRun(const Script& script);  ///< the next run, its Data folder empty again
    void removePictures();               ///< for many quick runs

    /// The bytes of Data/name, empty when there is no such file.
    std::string dataFile(const std::string& name) const;
    void writeDataFile(const std::string& name, const std::string& bytes) const;

    std::string folder;
};

/// The same without pictures, for many quick runs of one script.
class QuickPlayTest : public PlayTest {
  protected:
    void SetUp() override {
        PlayTest::SetUp();
        removePictures();
    }

    /// The window is closed after the last step.
    void finish() { EXPECT_EQ(firstRun(script.closeWindow()), 0); }

    Script script;
};

}  // namespace gloomdeck
