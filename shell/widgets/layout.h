// Every widget of every screen: its id, and its place at the start.
#pragma once

#include "prefs/switches.h"
#include "rules/training.h"
#include "shell/widgets/button.h"

namespace gloomdeck {

inline constexpr int toggleRows = switchCount;

/// Widget ids, as the click handler reports them.
namespace id {
inline constexpr int board = 1;
inline constexpr int stats = 2;
inline constexpr int list = 3;
inline constexpr int tabs = 4;
inline constexpr int done = 6;
inline constexpr int selectionExit = 7;
inline constexpr int newGame = 9;
inline constexpr int exit = 10;
inline constexpr int replay = 11;
inline constexpr int help = 12;
inline constexpr int helpMenu = 13;
inline constexpr int next = 14;
inline constexpr int prev = 15;
inline constexpr int speedUp = 16;
inline constexpr int speedDown = 17;
inline constexpr int prefs = 19;
inline constexpr int continueGame = 20;
inline constexpr int training = 21;  // the first of its rows
inline constexpr int toggle = training + trainingRows;
}  // namespace id
inline constexpr int widgetCount = id::toggle + toggleRows;  ///< ids end below it

/// The record of an id; ids that no widget has share one that is hidden.
Button& widget(int widgetId);

/// Initialises every record and gives it its place at the start.
void layOutWidgets();

}  // namespace gloomdeck
