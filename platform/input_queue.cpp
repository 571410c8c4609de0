// What waits of button changes and keys, and what is dropped of it.
#include "platform/input_queue.h"

#include <algorithm>
#include <array>

namespace gloomdeck {

namespace {

// A key held through a long run must not fill the memory.
constexpr std::size_t mostKeys = 256;
constexpr std::size_t mostChanges = 4096;

bool isKnownKey(std::string_view key) {
    using namespace keycode;
    constexpr std::array known{enter, escape, backspace, tab, up, down, left, right};
    return isPrintable(key) || std::find(known.begin(), known.end(), key) != known.end();
}

bool isClose(const KeyPress& key) { return key.text == keycode::close; }

// Changes alternate; the first one that is still owed to a press seen by the game stays, then the last click.
void thinPiledClicks(InputQueue& queue) {
    auto& changes = queue.changes;
    const std::size_t owed = queue.handedDown && !changes.empty() ? 1 : 0;
    if (changes.size() <= owed) return;
    const std::size_t last = changes.back().down ? 1 : 2;
    const std::size_t piled = changes.size() - owed;
    if (piled <= last) return;
    const auto first = changes.begin() + static_cast<std::ptrdiff_t>(owed);
    changes.erase(first, first + static_cast<std::ptrdiff_t>(piled - last));
}

MouseState stateAt(bool inside, int x, int y, bool down) {
    if (!inside) return {};
    return {.status = 0, .x = x, .y = y, .buttons = down ? 1 : 0};
}

}  // namespace

void pointerMoved(InputQueue& queue, int x, int y) {
    if (queue.inside && queue.x == x && queue.y == y) return;
    queue.inside = true;
    queue.x = x;
    queue.y = y;
    ++queue.received;
}

void pointerLeft(InputQueue& queue) {
    if (!queue.inside) return;
    queue.inside = false;
    ++queue.received;
}

void buttonChanged(InputQueue& queue, bool down) {
    if (down == queue.pushedDown || (down && !queue.inside)) return;
    if (queue.changes.size() >= mostChanges) thinPiledClicks(queue);
    queue.pushedDown = down;
    queue.changes.push_back({.down = down, .inside = queue.inside, .x = queue.x, .y = queue.y});
    ++queue.received;
}

void keyTyped(InputQueue& queue, std::string_view key, bool repeat) {
    if (!isKnownKey(key) || queue.keys.size() >= mostKeys) return;
    queue.keys.push_back({.text = std::string(key), .repeat = repeat});
    ++queue.received;
}

void closeRequested(InputQueue& queue) {
    if (closeWaits(queue)) return;
    queue.keys.push_back({.text = std::string(keycode::close)});
    ++queue.received;
}

void endRequested(InputQueue& queue) {
    queue.ending = true;
    closeRequested(queue);
}

MouseState takeMouse(InputQueue& queue) {
    if (queue.paused) thinPiledClicks(queue);
    queue.paused = false;
    if (queue.changes.empty()) return stateAt(queue.inside, queue.x, queue.y, queue.handedDown);
    const ButtonChange change = queue.changes.front();
    queue.changes.pop_front();
    queue.handedDown = change.down;
    return stateAt(change.inside, change.x, change.y, change.down);
}

KeyPress takeKey(InputQueue& queue) {
    if (queue.keys.empty()) return {.text = queue.ending ? std::string(keycode::close) : std::string()};
    KeyPress key = queue.keys.front();
    queue.keys.pop_front();
    return key;
}

bool keyWaits(const InputQueue& queue) {
    const auto isForTheGame = [](const KeyPress& key) { return key.text != keycode::tab; };
    return queue.ending || std::any_of(queue.keys.begin(), queue.keys.end(), isForTheGame);
}

bool closeWaits(const InputQueue& queue) {
    return std::any_of(queue.keys.begin(), queue.keys.end(), isClose);
}

bool inputWaits(const InputQueue& queue) {
    return queue.ending || !queue.keys.empty() || !queue.changes.empty();
}

void notePause(InputQueue& queue) { queue.paused = true; }

void giveBackClose(InputQueue& queue) {
    if (!closeWaits(queue)) queue.keys.push_front({.text = std::string(keycode::close)});
}

void dropWaitingKeys(InputQueue& queue) {
    const bool close = closeWaits(queue);
    queue.keys.clear();
    if (close) giveBackClose(queue);
}

void dropEarlierInput(InputQueue& queue) {
    dropWaitingKeys(queue);
    queue.changes.clear();
    queue.handedDown = queue.pushedDown;
}

}  // namespace gloomdeck
