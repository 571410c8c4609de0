// Loaded before SDL, it counts what a program shows: a byte each in the file that GLOOMDECK_PRESENT_COUNT
// names.
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

struct SDL_Window;
struct SDL_Rect;
struct SDL_Renderer;

namespace {

int openCount() {
    const char* const name = std::getenv("GLOOMDECK_PRESENT_COUNT");
    return name ? open(name, O_WRONLY | O_APPEND) : -1;
}

void count() {
    static const int file = openCount();
    if (write(file, "+", 1) != 1) std::abort();
}

template <typename Function>
Function* original(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" int SDL_UpdateWindowSurface(SDL_Window* window) {
    count();
    return original<int(SDL_Window*)>("SDL_UpdateWindowSurface")(window);
}

extern "C" int SDL_UpdateWindowSurfaceRects(SDL_Window* window, const SDL_Rect* rects, int rectCount) {
    count();
    return original<int(SDL_Window*, const SDL_Rect*, int)>("SDL_UpdateWindowSurfaceRects")(window, rects,
                                                                                            rectCount);
}

extern "C" void SDL_RenderPresent(SDL_Renderer* renderer) {
    count();
    original<void(SDL_Renderer*)>("SDL_RenderPresent")(renderer);
}
