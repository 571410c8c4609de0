// The rules of pointer and key input, pure and the same in every host. A host pushes what happens; the game
// polls. Moves collapse, a poll hands out at most one change of the button with the place that it had, and of
// what piled up during an action only the last whole click is kept, or a press still held.
#pragma once

#include <deque>
#include <string>
#include <string_view>

namespace gloomdeck {

/// What a poll of the pointer answers. Status 0: over the frame, values valid, bit 0 of buttons is the left
/// button. Any other status: not available, and x, y and buttons are all -1.
struct MouseState {
    int status = -1;
    int x = -1;
    int y = -1;
    int buttons = -1;
};

/// True while the left button is down over the frame.
inline bool leftIsHeld(const MouseState& mouse) { return mouse.status == 0 && (mouse.buttons & 1) != 0; }

struct ButtonChange {
    bool down = false;
    bool inside = false;
    int x = -1;
    int y = -1;
};

struct KeyPress {
    std::string text;  ///< empty: no key waits
    bool repeat = false;
};

struct InputQueue {
    bool inside = false;  // the pointer is over the frame
    int x = -1;           // where it was seen last
    int y = -1;
    bool pushedDown = false;  // the button as the host reported it last
    bool handedDown = false;  // the button as a poll saw it last
    bool paused = false;      // the game has been busy since the last poll
    bool ending = false;      // the system wants the program to end
    long received = 0;        // counts what came in; a wait compares it
    std::deque<ButtonChange> changes;
    std::deque<KeyPress> keys;
};

namespace keycode {
inline constexpr std::string_view enter = "\r";
inline constexpr std::string_view escape = "\x1B";
inline constexpr std::string_view backspace = "\b";
inline constexpr std::string_view space = " ";
inline constexpr std::string_view tab = "\t";  ///< for the layer's own question; readKey never gives it
inline constexpr std::string_view up = "\xFFH";
inline constexpr std::string_view down = "\xFFP";
inline constexpr std::string_view left = "\xFFK";
inline constexpr std::string_view right = "\xFFM";
inline constexpr std::string_view close = "\xFFk";  ///< the window's close request
}  // namespace keycode

/// True for the keys that stand for a printable ASCII character.
inline bool isPrintable(std::string_view key) { return key.size() == 1 && key[0] >= ' ' && key[0] <= '~'; }

// What hosts report.

/// The pointer is at (x, y) of the frame. A place outside the frame is reported with pointerLeft.
void pointerMoved(InputQueue& queue, int x, int y);
void pointerLeft(InputQueue& queue);

/// The left button went down or up at the pointer's last place. A press outside the frame is no press;
/// repeated reports of the same state are dropped.
void buttonChanged(InputQueue& queue, bool down);

/// A key as typed; anything but printable ASCII and the key codes above is dropped, the close code too.
void keyTyped(InputQueue& queue, std::string_view key, bool repeat = false);

/// The window's close button. At most one such request waits.
void closeRequested(InputQueue& queue);

/// The system ends the program: from now on the close request comes back whenever the queue runs empty.
void endRequested(InputQueue& queue);

// What the game polls.

MouseState takeMouse(InputQueue& queue);
KeyPress takeKey(InputQueue& queue);

/// True when a key for the game waits; Tab is none.
bool keyWaits(const InputQueue& queue);

/// True when anything waits to be polled.
bool inputWaits(const InputQueue& queue);

/// True when a close request waits among the keys.
bool closeWaits(const InputQueue& queue);

/// Tells that the game paused for an action: what piled up meanwhile is thinned at the next poll.
void notePause(InputQueue& queue);

/// Puts a close request that was read back in front, for the next loop that acts on it.
void giveBackClose(InputQueue& queue);

/// Drops the keys that wait; a close request stays.
void dropWaitingKeys(InputQueue& queue);

/// Drops keys and button changes that came before now; a close request stays.
void dropEarlierInput(InputQueue& queue);

}  // namespace gloomdeck
