// Boxes, bars, centred text, and text in lines of whole words.
#include "shell/widgets/panels.h"

#include <algorithm>

#include "platform/draw.h"
#include "platform/font.h"
#include "platform/palette.h"
#include "shell/widgets/places.h"
#include "shell/widgets/screen_lock.h"
#include "shell/widgets/text.h"
#include "shell/widgets/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int lowLabel = 14;  // labels lower than this have their text near the top edge
constexpr int barRight = 480;
constexpr int masonryAlpha = 192;

// Takes words off the end of the line until it ends between two words; a word that fills it stays split.
std::size_t wholeWords(std::string_view rest, std::size_t length) {
    if (length >= rest.size()) return rest.size();
    std::size_t kept = length;
    while (kept > 0 && rest[kept - 1] != ' ' && rest[kept] != ' ') --kept;
    return kept > 0 ? kept : length;
}

struct Wrapper {
    std::string_view rest;
    std::size_t width;
    bool bullet = false;
};

std::string nextLine(Wrapper& w) {
    const std::size_t room = std::max<std::size_t>(w.bullet ? w.width - 2 : w.width, 1);
    const std::size_t forced = w.rest.substr(0, room).find('\\');
    const bool isForced = forced != std::string_view::npos;
    const std::size_t length = isForced ? forced : wholeWords(w.rest, room);
    std::string line = (w.bullet ? "  " : "") + std::string(trimmed(w.rest.substr(0, length)));
    w.rest.remove_prefix(isForced ? length + 1 : length);
    if (line.starts_with('*')) w.bullet = true;
    if (isForced) w.bullet = false;
    return line;
}

}  // namespace

void frameBox(int x1, int y1, int x2, int y2) {
    fillBox(x1 + 1, y1 + 1, x2 - 1, y2 - 1, colour::black);
    drawBox(x1, y1, x2, y2, colour::slate);
}

void centredText(std::string_view text, int cx, int y) {
    const int halfWidth = static_cast<int>(text.size()) * glyphSize / 2;
    drawText(cx - halfWidth, y, text);
}

void drawBackground() {
    const HeldScreen held;
    for (int y = 0; y <= 480; y += tile::size)
        for (int x = 0; x <= 384; x += tile::size) {
            putTile(tile::cover, x, y, putTransparent);
            putTile(tile::masonry, x, y, putBlended(masonryAlpha));
        }
}

void drawPanel(int x, int y, int w, int h) {
    drawBackground();
    fillBox(x, y, x + w, y + h, colour::panel);
    drawBox(x, y, x + w, y + h, colour::white);
}

void drawHeaderBar(int h) {
    drawBackground();
    fillBox(0, 0, barRight, h, colour::panel);
    drawLine(0, h + 1, barRight, h + 1, colour::white);
}

void drawBoardLabel(std::string_view text, int top, int h) {
    const Rect board = boardGrid.area();
    fillBox(board.x1, board.y1 + top, board.x2, board.y1 + top + h - 1, colour::panel);
    drawText(board.x1 + 8, board.y1 + top + (h < lowLabel ? 2 : 12), text);
}

void drawWrappedText(const std::string& text, int x, int y, int width, int lineStep) {
    Wrapper w{.rest = text, .width = static_cast<std::size_t>(std::max(width, 1))};
    for (; !w.rest.empty(); y += lineStep) drawText(x, y, nextLine(w));
}

}  // namespace gloomdeck
