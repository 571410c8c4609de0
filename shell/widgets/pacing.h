// The game speed, the pauses of animations that it scales, and waiting for the player.
#pragma once

#include <string>

namespace gloomdeck {

/// Pauses an animation: n milliseconds at "Normal", three times as long at "Slowest", none at "Mega fast". A
/// pause of 100 milliseconds or more ends early when a key waits.
void Delay(int n);

/// Change the game speed by one step within its limits; announce 1 tells so on the message bar.
void speedUp(int announce);
void speedDown(int announce);

/// Waits for a click, Enter, Escape, Space or the key given; with an empty key any key will do and the wait
/// ends by itself after 15 seconds. A close request ends it too, and stays to be acted on.
void waitForAck(const std::string& key);

}  // namespace gloomdeck
