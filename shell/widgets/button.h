// The one record of every clickable widget, and how a plain button is drawn.
#pragma once

#include <cstdint>
#include <string>

#include "platform/geometry.h"

namespace gloomdeck {

/// gridId of the two grids whose hover shows; 0 for every other widget.
namespace grid {
inline constexpr int noGrid = 0;
inline constexpr int board = 1;
inline constexpr int stats = 2;
}  // namespace grid

enum class WidgetKind : std::int32_t { plain = 1, tileGrid = 2 };

struct Button {
    std::int32_t gridId = grid::noGrid;
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;  // drawn boxes span x to x + width and y to y + height inclusive
    std::int32_t height = 0;
    std::int32_t pressCol = 0;  // the cell under the pointer when the button went down
    std::int32_t pressRow = 0;
    std::int32_t hoverCol = -1;  // the cell that shows the hover; -1: none
    std::int32_t hoverRow = 0;
    std::int32_t cellWidth = 0;
    std::int32_t cellHeight = 0;
    WidgetKind kind = WidgetKind::plain;
    std::string caption;
    std::int32_t selected = 0;  // the current item of a menu or list
    bool hidden = false;        // ignores the pointer
    bool hotkeyLetter = false;  // the caption's first letter again in yellow
};

/// Puts the record into its initial state.
void initButton(Button& b);

void copyButton(Button& destination, const Button& source);

/// Moves a plain widget; its cell follows its size.
void placeButton(Button& b, int x, int y);

/// Draws face, shadow, outline and caption.
void drawButton(const Button& b);

/// Makes the button react again and draws it; a caption that is not empty becomes its own.
void showButton(Button& b, const std::string& caption);

/// Paints the button over with the panel colour. It still reacts unless the caller sets hidden.
void eraseButton(const Button& b);

/// Where drawButton writes the caption.
Point captionPlace(const Button& b);

}  // namespace gloomdeck
