// The rows of the training screen, their purchases, and its gold and message lines.
#pragma once
#include <string>

namespace gloomdeck {

/// Buys and draws what has changed; with too little gold a message says so.
void Train(int skill);
void Trade(int offer);

void DrawTrainingRow(int skill);
void DrawTradeRow(int offer);
void DrawTrainingGold();
void ShowTrainingMessage(const std::string& text);

}  // namespace gloomdeck
