// The window, drawn into its own pixels, or by a renderer where it has none.
#include "platform/host_sdl_window.h"

#include <SDL.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string_view>
#include <vector>

#include "platform/desktop_system.h"
#include "window_icon.h"

namespace gloomdeck::host {

namespace {

constexpr double commonPeriod = 1.0 / 60.0;
constexpr int slowestRate = 10;  // pictures a second; a display that claims less does not know
constexpr int bytesPerPixel = sizeof(Colour);
constexpr std::string_view placeTellingDriver = "x11";  // others answer with the place of the last event

SDL_Window* window = nullptr;
SDL_Renderer* renderer = nullptr;  // only where the window has no surface that we can write to
SDL_Texture* texture = nullptr;
Extent frameSize;
const Colour* shownPixels = nullptr;  // of the frame shown last
double knownPeriod = 0;               // seconds; 0: not asked yet

// The software path needs no graphics driver: a tenth of the memory, and one thread.
void setHints() {
    desktop::chooseWindowSystem();
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
    SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
}

// Dropped things come with memory to free, and nothing here wants them.
void refuseDrops() {
    for (const Uint32 type : {SDL_DROPFILE, SDL_DROPTEXT, SDL_DROPBEGIN, SDL_DROPCOMPLETE})
        SDL_EventState(type, SDL_DISABLE);
}

// How much larger than usual the desktop shows everything: X programs take it from the resolution that is set
// for their fonts. Elsewhere, and where none is set, the window's own points are the desktop's.
double desktopScale() {
    constexpr double usualResolution = 96.0;  // dots per inch
    if (SDL_GetCurrentVideoDriver() != placeTellingDriver) return 1.0;
    void* const x11 = SDL_LoadObject("libX11.so.6");
    if (!x11) return 1.0;
    const auto open = reinterpret_cast<void* (*)(const char*)>(SDL_LoadFunction(x11, "XOpenDisplay"));
    const auto get = reinterpret_cast<const char* (*)(void*, const char*, const char*)>(
        SDL_LoadFunction(x11, "XGetDefault"));
    const auto close = reinterpret_cast<int (*)(void*)>(SDL_LoadFunction(x11, "XCloseDisplay"));
    void* const display = open && get && close ? open(nullptr) : nullptr;
    const char* const resolution = display ? get(display, "Xft", "dpi") : nullptr;
    const double scale = resolution ? std::strtod(resolution, nullptr) / usualResolution : 1.0;
    if (display) close(display);
    SDL_UnloadObject(x11);
    return scale;
}

Extent openingSize() {
    SDL_Rect usable{};
    if (SDL_GetDisplayUsableBounds(0, &usable) != 0) return frameSize;
    const int scale = openingScale({usable.w, usable.h}, desktopScale());
    return {frameSize.width * scale, frameSize.height * scale};
}

void setIcon() {
    std::vector<Colour> pixels(std::begin(windowIconPixels), std::end(windowIconPixels));
    SDL_Surface* icon =
        SDL_CreateRGBSurfaceWithFormatFrom(pixels.data(), windowIconSize, windowIconSize, 32,
                                           windowIconSize * bytesPerPixel, SDL_PIXELFORMAT_ARGB8888);
    if (icon) SDL_SetWindowIcon(window, icon);
    SDL_FreeSurface(icon);
}

bool createWindow(const std::string& title) {
    constexpr Uint32 flags = SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI | SDL_WINDOW_HIDDEN;
    const Extent size = openingSize();
    window = SDL_CreateWindow(title.c_str(), SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED, size.width,
                              size.height, flags);
    if (!window) return false;
    SDL_SetWindowMinimumSize(window, frameSize.width, frameSize.height);
    setIcon();
    return true;
}

// The window's own pixels, when they are of the frame's kind.
SDL_Surface* writableSurface() {
    SDL_Surface* surface = SDL_GetWindowSurface(window);
    if (!surface) return nullptr;
    const Uint32 format = surface->format->format;
    return format == SDL_PIXELFORMAT_RGB888 || format == SDL_PIXELFORMAT_ARGB8888 ? surface : nullptr;
}

// A window that was asked for its surface takes no renderer, so it is made anew.
bool fallBackToRenderer(const std::string& title) {
    SDL_DestroyWindow(window);
    if (!createWindow(title)) return false;
    renderer = SDL_CreateRenderer(window, -1, 0);
    if (!renderer) return false;
    texture = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_STREAMING,
                                frameSize.width, frameSize.height);
    return texture != nullptr;
}

Extent drawingSize() {
    Extent size{1, 1};
    SDL_GetWindowSizeInPixels(window, &size.width, &size.height);
    return {std::max(1, size.width), std::max(1, size.height)};
}

SDL_Rect asSdl(const Rect& r) { return {r.x1, r.y1, r.x2 - r.x1 + 1, r.y2 - r.y1 + 1}; }

Rows allRows() { return {0, frameSize.height - 1}; }

Rect drawOn(const SDL_Surface* surface, const Rect& fit, Rows rows) {
    auto* const area = static_cast<Colour*>(surface->pixels);
    return drawFitted(frameSize, shownPixels, rows, fit, area, surface->pitch / bytesPerPixel);
}

// The whole window, black around the picture.
void paintSurface() {
    SDL_Surface* surface = writableSurface();
    if (!surface) return;
    SDL_FillRect(surface, nullptr, 0);
    if (shownPixels) drawOn(surface, fitFrame(frameSize, {surface->w, surface->h}), allRows());
    SDL_UpdateWindowSurface(window);
}

bool isSmallerThanFrame(const Rect& fit) {
    return fit.x2 - fit.x1 + 1 < frameSize.width || fit.y2 - fit.y1 + 1 < frameSize.height;
}

// A picture that is made smaller is drawn from all rows.
void paintChange(std::span<const Rows> changed) {
    SDL_Surface* surface = writableSurface();
    if (!surface) return;
    const Rect fit = fitFrame(frameSize, {surface->w, surface->h});
    Rect drawn = drawOn(surface, fit, changed.front());
    if (!isSmallerThanFrame(fit))
        for (const Rows rows : changed.subspan(1)) drawn.y2 = drawOn(surface, fit, rows).y2;
    const SDL_Rect area = asSdl(drawn);
    SDL_UpdateWindowSurfaceRects(window, &area, 1);
}

void paintRenderer() {
    const Rect fit = fitFrame(frameSize, drawingSize());
    const SDL_Rect picture = asSdl(fit);
    SDL_SetTextureScaleMode(texture, isSmallerThanFrame(fit) ? SDL_ScaleModeLinear : SDL_ScaleModeNearest);
    SDL_SetRenderDrawColor(renderer, 0, 0, 0, SDL_ALPHA_OPAQUE);
    SDL_RenderClear(renderer);
    if (shownPixels) {
        SDL_UpdateTexture(texture, nullptr, shownPixels, frameSize.width * bytesPerPixel);
        SDL_RenderCopy(renderer, texture, nullptr, &picture);
    }
    SDL_RenderPresent(renderer);
}

double askPeriod() {
    SDL_DisplayMode mode{};
    const int display = SDL_GetWindowDisplayIndex(window);
    if (display < 0 || SDL_GetCurrentDisplayMode(display, &mode) != 0) return commonPeriod;
    return mode.refresh_rate >= slowestRate ? 1.0 / mode.refresh_rate : commonPeriod;
}

}  // namespace

bool openDesktopWindow(Extent frame, const std::string& title) {
    frameSize = frame;
    setHints();
    if (SDL_Init(SDL_INIT_VIDEO) != 0) return false;
    refuseDrops();
    if (!createWindow(title)) return false;
    if (!writableSurface() && !fallBackToRenderer(title)) return false;
    SDL_ShowWindow(window);
    SDL_StartTextInput();
    return true;
}

void closeDesktopWindow() {
    SDL_Quit();
    window = nullptr;
}

void titleDesktopWindow(const std::string& title) {
    if (window) SDL_SetWindowTitle(window, title.c_str());
}

void showFrame(const Colour* pixels, std::span<const Rows> changed) {
    shownPixels = pixels;
    if (renderer)
        paintRenderer();
    else
        paintChange(changed);
}

void repaintWindow() {
    if (renderer)
        paintRenderer();
    else
        paintSurface();
}

std::optional<Point> framePixelUnder(Point place) {
    const Extent area = drawingSize();
    Extent points = area;  // events count in these, fewer than pixels on a dense display
    SDL_GetWindowSize(window, &points.width, &points.height);
    if (points.width < 1 || points.height < 1) return std::nullopt;
    const Point pixel{place.x * area.width / points.width, place.y * area.height / points.height};
    return framePixelAt(frameSize, fitFrame(frameSize, area), pixel.x, pixel.y);
}

std::optional<Point> askPointerPlace() {
    const char* driver = SDL_GetCurrentVideoDriver();
    if (!driver || std::string_view(driver) != placeTellingDriver) return std::nullopt;
    Point pointer;
    Point corner;
    SDL_GetGlobalMouseState(&pointer.x, &pointer.y);
    SDL_PumpEvents();
    SDL_GetWindowPosition(window, &corner.x, &corner.y);
    return Point{pointer.x - corner.x, pointer.y - corner.y};
}

double displayPeriod() {
    if (knownPeriod <= 0 && window) knownPeriod = askPeriod();
    return window ? knownPeriod : commonPeriod;
}

void noteDisplayChange() { knownPeriod = 0; }

}  // namespace gloomdeck::host
