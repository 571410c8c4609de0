// The pointer and the keys as the program polls them. Nothing here blocks.
#pragma once

#include <string>

#include "platform/input_queue.h"

namespace gloomdeck {

/// The pointer and the left button; hands out at most one change of the button.
MouseState getMouse();

/// The next key, or an empty text: one character as typed, or character 255 and a letter (namespace keycode).
std::string readKey();

/// The same with its auto-repeat mark.
KeyPress readKeyPress();

/// True when readKey has one to give.
bool keyWaiting();

/// True once the system wants the program to end: no wait waits any more.
bool programIsEnding();

/// True from a press that was handed out to its release, wherever the pointer is: leaving is no release.
bool buttonIsHeld();

/// True when a close request waits to be acted on.
bool closeRequestWaits();

/// Puts a close request that was read back in front, for the next loop that acts on it.
void keepCloseRequest();

/// True when the key is the close request; it is then kept.
bool keptCloseRequest(const std::string& key);

/// Throws away every key that waits; a close request stays.
void dropKeys();

/// Throws away keys and button changes from before now; a close request stays.
void forgetEarlierInput();

/// The queue behind these, for hosts and for the waits of this layer.
InputQueue& inputQueue();

/// Forgets everything (tests start from here).
void resetInput();

}  // namespace gloomdeck
