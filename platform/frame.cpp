// What was drawn and named as changed, and when the host is given it.
#include "platform/frame.h"

#include <algorithm>
#include <span>

#include "platform/host.h"
#include "platform/shown_frame.h"

namespace gloomdeck {

namespace {

Image frame;
ShownFrame shown;
Rect clip;
bool locked = false;
Rows changed;               // named since the frame was shown last
double lastShown = -1.0e9;  // long ago

Rect wholeFrame() { return {0, 0, frame.width - 1, frame.height - 1}; }

// Looking takes its time too, so that what differs nowhere is not looked at again at once.
void show() {
    const std::span<const Rows> differing = takeOver(shown, frame, changed);
    if (!differing.empty()) host::present(shown.picture.pixels.data(), differing);
    lastShown = host::seconds();
    changed = {};
}

}  // namespace

void openWindow(int width, int height) {
    frame = createImage(width, height);
    std::fill(frame.pixels.begin(), frame.pixels.end(), 0xFF000000);
    shown.picture = frame;
    resetClip();
    host::open(width, height);
}

void setWindowTitle(const std::string& text) { host::setTitle(text); }

void lockScreen() { locked = true; }

void unlockScreen() {
    locked = false;
    showFrameWhenDue();
}

void waitForVerticalRetrace() {}

void setClip(int x1, int y1, int x2, int y2) { clip = intersection(spanning(x1, y1, x2, y2), wholeFrame()); }

void resetClip() { clip = wholeFrame(); }

Image& screen() { return frame; }

const Rect& clipRect() { return clip; }

void frameChanged(Rows rows) { changed = joined(changed, rows); }

void frameChanged() { changed = {0, frame.height - 1}; }

Rows namedRows() { return changed; }

bool frameWaits() { return changed.last >= changed.first && !locked; }

double secondsUntilDue() { return std::max(0.0, lastShown + host::framePeriod() - host::seconds()); }

void showFrameWhenDue() {
    if (frameWaits() && secondsUntilDue() <= 0.0) show();
}

void showFrameNow() {
    if (frameWaits()) show();
}

void resetFrame() {
    destroyImage(frame);
    shown = {};
    resetClip();
    locked = false;
    changed = {};
    lastShown = -1.0e9;
}

}  // namespace gloomdeck
