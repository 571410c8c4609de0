// The least that shows a window of the game's size and waits: what start-up and memory are compared with.
#include <SDL.h>

int main(int /*argc*/, char** /*argv*/) {
    SDL_SetHint(SDL_HINT_VIDEODRIVER, "x11");
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    if (SDL_Init(SDL_INIT_VIDEO) != 0) return 1;
    SDL_Window* window = SDL_CreateWindow("minimal", SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED, 408,
                                          488, SDL_WINDOW_RESIZABLE);
    SDL_Surface* surface = SDL_GetWindowSurface(window);
    if (!surface) return 1;
    SDL_FillRect(surface, nullptr, 0xFF2E473B);
    SDL_UpdateWindowSurface(window);
    SDL_Event event;
    while (SDL_WaitEvent(&event) != 0 && event.type != SDL_QUIT) {
    }
    SDL_Quit();
    return 0;
}
