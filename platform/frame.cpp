#include "platform/frame.h"

#include <algorithm>

#include "platform/host.h"

namespace gloomdeck {

namespace {

Image frame;
Rect clip;
bool locked = false;
bool changed = false;
double lastShown = -1.0e9;  // long ago

Rect wholeFrame() { return {0, 0, frame.width - 1, frame.height - 1}; }

void show() {
    host::present(frame.pixels.data());
    lastShown = host::seconds();
    changed = false;
}

}  // namespace

void openWindow(int width, int height) {
    frame = createImage(width, height);
    std::fill(frame.pixels.begin(), frame.pixels.end(), 0xFF000000);
    resetClip();
    host::open(width, height);
    frameChanged();
}

void setWindowTitle(const std::string& text) { host::setTitle(text); }

void lockScreen() { locked = true; }

void unlockScreen() {
    locked = false;
    showFrameWhenDue();
}

void waitForVerticalRetrace() { host::waitForRetrace(); }

void setClip(int x1, int y1, int x2, int y2) { clip = intersection(spanning(x1, y1, x2, y2), wholeFrame()); }

void resetClip() { clip = wholeFrame(); }

Image& screen() { return frame; }

Rect clipRect() { return clip; }

void frameChanged() { changed = true; }

bool frameWaits() { return changed && !locked && !frame.pixels.empty(); }

double secondsUntilDue() { return std::max(0.0, lastShown + host::framePeriod() - host::seconds()); }

void showFrameWhenDue() {
    if (frameWaits() && secondsUntilDue() <= 0.0) show();
}

void showFrameNow() {
    if (frameWaits()) show();
}

void resetFrame() {
    destroyImage(frame);
    resetClip();
    locked = changed = false;
    lastShown = -1.0e9;
}

}  // namespace gloomdeck
