// The panel over the board, its text wrapped, until it is acknowledged.
#include "shell/play/long_message.h"

#include "platform/draw.h"
#include "platform/palette.h"
#include "rules/show.h"
#include "shell/widgets/pacing.h"
#include "shell/widgets/panels.h"
#include "shell/widgets/places.h"
#include "shell/widgets/screen_lock.h"

namespace gloomdeck {

namespace {

constexpr int charactersPerLine = 26;
constexpr int lineStep = 12;
constexpr int promptCentre = (boardGrid.x + boardGrid.width()) / 2;
constexpr int promptTop = 246;

void drawStoryPanel(const std::string& text) {
    const HeldScreen held;
    const Rect board = boardGrid.area();
    const Rect& frame = place::boardFrame;
    fillBox(board.x1, board.y1, board.x2, board.y2, colour::black);
    drawBox(frame.x1, frame.y1, frame.x2, frame.y2, colour::brown);
    drawWrappedText(text, board.x1 + 8, board.y1 + 8, charactersPerLine, lineStep);
    centredText(" space or click to continue", promptCentre, promptTop);
}

}  // namespace

void showLongMessage(const std::string& text) {
    drawStoryPanel(text);
    waitForAck(" ");
    drawBoard();
}

void showStory(std::string_view text) {
    drawBackground();
    showLongMessage(std::string(text));
}

}  // namespace gloomdeck
