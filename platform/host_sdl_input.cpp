// Events of pointer, keys and window, as the input queue takes them.
#include "platform/host_sdl_input.h"

#include <SDL.h>

#include <string_view>

#include "platform/host_sdl_window.h"

namespace gloomdeck::host {

namespace {

// Text comes without the marks of the key that gave it; they are those of the key event before it.
struct KeyMarks {
    bool repeat = false;
    bool command = false;  // a modifier is held that makes a command of a letter
};

KeyMarks lastKey;
bool pointerOverWindow = false;
Point pointerPlace;          // in the window, as events count
bool placeMayBeOld = false;  // a window that moves under a resting pointer sends no motion
bool buttonDown = false;
bool pressIsHidden = false;  // after a lost release the window library keeps the next press to itself
bool repaintDue = false;

// The right Alt is AltGr on many layouts and types characters.
bool isCommand(Uint16 modifiers) { return (modifiers & (KMOD_CTRL | KMOD_LALT | KMOD_GUI)) != 0; }

std::string_view keyWithoutText(SDL_Keycode key) {
    switch (key) {
        case SDLK_RETURN:
        case SDLK_KP_ENTER: return keycode::enter;
        case SDLK_ESCAPE: return keycode::escape;
        case SDLK_BACKSPACE: return keycode::backspace;
        case SDLK_TAB: return keycode::tab;
        case SDLK_UP: return keycode::up;
        case SDLK_DOWN: return keycode::down;
        case SDLK_LEFT: return keycode::left;
        case SDLK_RIGHT: return keycode::right;
        default: return {};
    }
}

void noteKey(InputQueue& queue, const SDL_KeyboardEvent& event) {
    lastKey = {.repeat = event.repeat != 0, .command = isCommand(event.keysym.mod)};
    if (event.state != SDL_PRESSED) return;
    const std::string_view key = keyWithoutText(event.keysym.sym);
    if (!key.empty()) keyTyped(queue, key, lastKey.repeat);
}

void noteText(InputQueue& queue, std::string_view text) {
    if (lastKey.command) return;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] >= ' ' && text[i] <= '~') keyTyped(queue, text.substr(i, 1), lastKey.repeat);
}

void reportPointer(InputQueue& queue) {
    if (!pointerOverWindow) return pointerLeft(queue);
    if (const auto pixel = framePixelUnder(pointerPlace))
        pointerMoved(queue, pixel->x, pixel->y);
    else
        pointerLeft(queue);
}

void movePointer(InputQueue& queue, Point place) {
    pointerOverWindow = true;
    pointerPlace = place;
    reportPointer(queue);
}

// A motion that waits comes after the event at hand, whose place is then the remembered one.
Point placeNow() {
    const auto place = askPointerPlace();
    return place && !SDL_HasEvent(SDL_MOUSEMOTION) ? *place : pointerPlace;
}

void changeButton(InputQueue& queue, bool down) {
    buttonDown = down;
    buttonChanged(queue, down);
}

// A release that the window never saw shows in the next motion.
void noteMotion(InputQueue& queue, const SDL_MouseMotionEvent& event) {
    placeMayBeOld = false;
    movePointer(queue, {event.x, event.y});
    if ((event.state & SDL_BUTTON_LMASK) == 0) changeButton(queue, false);
}

// Where the window lost the keyboard with the button held, a release outside of it is lost too.
void notePointerBack(InputQueue& queue) {
    if (!buttonDown || (SDL_GetGlobalMouseState(nullptr, nullptr) & SDL_BUTTON_LMASK) != 0) return;
    changeButton(queue, false);
    pressIsHidden = true;
}

// A finger does not bring the pointer along.
Point placeOf(const SDL_MouseButtonEvent& event) {
    if (event.which == SDL_TOUCH_MOUSEID) return {event.x, event.y};
    const bool presses = pressIsHidden || event.state == SDL_PRESSED;
    return presses && placeMayBeOld ? placeNow() : pointerPlace;
}

void noteButton(InputQueue& queue, const SDL_MouseButtonEvent& event) {
    if (event.button != SDL_BUTTON_LEFT) return;
    movePointer(queue, placeOf(event));
    placeMayBeOld = true;
    if (pressIsHidden && event.state == SDL_RELEASED) changeButton(queue, true);
    pressIsHidden = false;
    changeButton(queue, event.state == SDL_PRESSED);
}

void noteMovedWindow(InputQueue& queue) {
    placeMayBeOld = true;
    if (pointerOverWindow) pointerPlace = placeNow();
    reportPointer(queue);
}

void noteWindow(InputQueue& queue, const SDL_WindowEvent& event) {
    switch (event.event) {
        case SDL_WINDOWEVENT_CLOSE: return closeRequested(queue);
        case SDL_WINDOWEVENT_ENTER: return notePointerBack(queue);
        case SDL_WINDOWEVENT_LEAVE: pointerOverWindow = false; return reportPointer(queue);
        case SDL_WINDOWEVENT_MOVED: return noteMovedWindow(queue);
        case SDL_WINDOWEVENT_SIZE_CHANGED:
            noteMovedWindow(queue);
            repaintDue = true;
            return;
        case SDL_WINDOWEVENT_SHOWN:
        case SDL_WINDOWEVENT_EXPOSED:
        case SDL_WINDOWEVENT_RESTORED: repaintDue = true; return;
        case SDL_WINDOWEVENT_DISPLAY_CHANGED: return noteDisplayChange();
        default: return;
    }
}

void noteEvent(InputQueue& queue, const SDL_Event& event) {
    switch (event.type) {
        case SDL_KEYDOWN:
        case SDL_KEYUP: return noteKey(queue, event.key);
        case SDL_TEXTINPUT: return noteText(queue, event.text.text);
        case SDL_MOUSEMOTION: return noteMotion(queue, event.motion);
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP: return noteButton(queue, event.button);
        case SDL_WINDOWEVENT: return noteWindow(queue, event.window);
        case SDL_DISPLAYEVENT: return noteDisplayChange();
        default: return;
    }
}

}  // namespace

bool takeWindowEvents(InputQueue& queue) {
    bool ends = false;
    SDL_Event event;
    while (SDL_PollEvent(&event) != 0) {
        ends = ends || event.type == SDL_QUIT;
        noteEvent(queue, event);
    }
    if (repaintDue) repaintWindow();
    repaintDue = false;
    return ends;
}

void awaitWindowEvent(int milliseconds) { SDL_WaitEventTimeout(nullptr, milliseconds); }

}  // namespace gloomdeck::host
