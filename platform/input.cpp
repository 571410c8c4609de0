// The one queue of the program, filled by the host before every poll.
#include "platform/input.h"

#include "platform/frame.h"
#include "platform/host.h"

namespace gloomdeck {

namespace {

InputQueue queue;

// A poll keeps the window alive, also where no pause of the game takes time.
void keepWindowAlive() {
    showFrameWhenDue();
    host::pump(queue);
}

}  // namespace

MouseState getMouse() {
    keepWindowAlive();
    return takeMouse(queue);
}

KeyPress readKeyPress() {
    keepWindowAlive();
    return takeKey(queue);
}

std::string readKey() {
    std::string key = readKeyPress().text;
    return key == keycode::tab ? readKey() : key;
}

bool keyWaiting() {
    host::pump(queue);
    return keyWaits(queue);
}

bool programIsEnding() { return queue.ending; }

bool buttonIsHeld() { return queue.handedDown; }

bool closeRequestWaits() { return closeWaits(queue); }

void keepCloseRequest() { giveBackClose(queue); }

bool keptCloseRequest(const std::string& key) {
    if (key != keycode::close) return false;
    keepCloseRequest();
    return true;
}

void dropKeys() {
    keepWindowAlive();
    dropWaitingKeys(queue);
}

void forgetEarlierInput() {
    keepWindowAlive();
    dropEarlierInput(queue);
}

InputQueue& inputQueue() { return queue; }

void resetInput() { queue = {}; }

}  // namespace gloomdeck
