// The items of both menus, drawn alike.
#include "shell/widgets/menus.h"

#include <array>

#include "platform/button_face.h"
#include "platform/font.h"
#include "platform/palette.h"
#include "platform/rounding.h"
#include "shell/widgets/layout.h"

namespace gloomdeck {

namespace {

constexpr std::array<std::string_view, 2> tabNames{"Campaign", "Scenario"};
constexpr int letterHeight = 6;  // that an item's text is centred by

void drawMenuItem(const Button& menu, int col, int row, std::string_view text, bool isSelected) {
    const int x = menu.x + menu.cellWidth * col;
    const int y = menu.y + menu.cellHeight * row;
    const int length = static_cast<int>(text.size());
    const int textX = roundedRatio(2 * x + menu.cellWidth - length * glyphSize, 2);
    const int textY = roundedRatio(2 * y + menu.cellHeight - letterHeight, 2);
    drawButtonFace({.box = {x, y, x + menu.cellWidth, y + menu.cellHeight},
                    .face = isSelected ? colour::edge : colour::face,
                    .outline = colour::edge,
                    .ink = isSelected ? colour::face : colour::edge,
                    .caption = text,
                    .captionPlace = {textX, textY}});
}

}  // namespace

void drawTabs(int selected) {
    for (int i = 0; i < static_cast<int>(tabNames.size()); ++i)
        drawMenuItem(widget(id::tabs), i, 0, tabNames[static_cast<std::size_t>(i)], i == selected);
}

void drawHelpMenu(std::span<const std::string_view> items, int selected) {
    for (int i = 0; i < static_cast<int>(items.size()); ++i)
        drawMenuItem(widget(id::helpMenu), 0, i, items[static_cast<std::size_t>(i)], i == selected);
}

}  // namespace gloomdeck
