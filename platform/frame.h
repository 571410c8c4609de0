// The frame buffer: its pixels, the clip, the lock, and when it is shown.
#pragma once

#include <string>

#include "platform/geometry.h"
#include "platform/image.h"

namespace gloomdeck {

inline constexpr int frameWidth = 408;
inline constexpr int frameHeight = 488;

/// Opens the window over a black frame of that size. Called once; the sizes are frameWidth and frameHeight.
void openWindow(int width, int height);

/// Titles the window; a title given before openWindow is remembered.
void setWindowTitle(const std::string& text);

/// While locked, drawing changes the frame and nothing of it is shown; unlocking shows it whole.
void lockScreen();
void unlockScreen();

/// Returns at the next vertical blank, or at once where no display tells of one; none does so far.
void waitForVerticalRetrace();

/// From now on drawing changes only pixels inside the rectangle (corners included, in any order).
void setClip(int x1, int y1, int x2, int y2);

/// Makes the whole frame drawable again.
void resetClip();

/// The clip for as long as the scope lasts.
struct ClipTo {
    explicit ClipTo(const Rect& r) { setClip(r.x1, r.y1, r.x2, r.y2); }
    ~ClipTo() { resetClip(); }
    ClipTo(const ClipTo&) = delete;
    ClipTo& operator=(const ClipTo&) = delete;
};

// For the drawing operations of this layer and for images that are cut from the screen.

/// The frame's pixels, empty before openWindow. Whoever changes them tells in which rows, or that all may
/// have.
Image& screen();
const Rect& clipRect();
void frameChanged(Rows rows);
void frameChanged();

/// Shows what has changed, unless the screen is locked or the display has not had the last picture for a
/// whole period yet.
void showFrameWhenDue();

/// Shows what has changed, unless the screen is locked, in time for a wait.
void showFrameNow();

/// The rows that were named since the frame was shown last, from the first to the last.
Rows namedRows();

/// True when something waits to be shown and could be.
bool frameWaits();

/// Seconds until the display can take another picture; 0 when it can now.
double secondsUntilDue();

/// Forgets the window, the clip and the lock (tests start from here).
void resetFrame();

}  // namespace gloomdeck
