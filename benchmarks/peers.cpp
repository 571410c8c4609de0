#include "benchmarks/peers.h"

#include <SDL.h>
#include <pixman.h>

#include <cstring>
#include <map>
#include <tuple>

#include "platform/frame.h"

namespace gloomdeck {

namespace {

constexpr int bytesPerPixel = sizeof(Colour);

// An image is prepared once for each way to put it, and each peer has one frame, as the game has. They live
// as long as the program.
using Way = std::tuple<const Image*, PutMode::Kind, int>;

Way wayOf(const Put& put) { return {put.image, put.mode.kind, put.mode.alpha}; }

SDL_Surface* newSurface(int width, int height) {
    return SDL_CreateRGBSurfaceWithFormat(0, width, height, 32, SDL_PIXELFORMAT_RGB888);
}

SDL_Surface* surfaceFor(const Put& put, bool runLengths) {
    const Image& image = *put.image;
    SDL_Surface* surface = newSurface(image.width, image.height);
    const auto rowSize = static_cast<std::size_t>(image.width) * bytesPerPixel;
    for (int y = 0; y < image.height; ++y)
        std::memcpy(static_cast<char*>(surface->pixels) + y * surface->pitch,
                    image.pixels.data() + y * image.width, rowSize);
    SDL_SetSurfaceBlendMode(surface, SDL_BLENDMODE_NONE);
    if (put.mode.kind == PutMode::Kind::copy) return surface;
    SDL_SetColorKey(surface, SDL_TRUE, transparentColour & 0x00FFFFFF);
    if (put.mode.kind == PutMode::Kind::blend) {
        SDL_SetSurfaceBlendMode(surface, SDL_BLENDMODE_BLEND);
        SDL_SetSurfaceAlphaMod(surface, static_cast<Uint8>(put.mode.alpha));
    }
    SDL_SetSurfaceRLE(surface, runLengths ? 1 : 0);
    return surface;
}

struct Composite {
    int x;
    int y;
    const Image* image;
    pixman_op_t operation;
    pixman_image_t* source;
    pixman_image_t* mask;
};

pixman_image_t* newPixmanImage(pixman_format_code_t format, int width, int height) {
    return pixman_image_create_bits(format, width, height, nullptr, width * bytesPerPixel);
}

pixman_image_t* sourceFor(const Put& put) {
    const Image& image = *put.image;
    const bool copies = put.mode.kind == PutMode::Kind::copy;
    pixman_image_t* source =
        newPixmanImage(copies ? PIXMAN_x8r8g8b8 : PIXMAN_a8r8g8b8, image.width, image.height);
    std::uint32_t* pixel = pixman_image_get_data(source);
    for (const Colour colour : image.pixels)
        *pixel++ = isTransparent(colour) && !copies ? 0 : colour | 0xFF000000;
    return source;
}

pixman_image_t* maskFor(const Put& put) {
    if (put.mode.kind != PutMode::Kind::blend) return nullptr;
    const pixman_color_t colour{0, 0, 0, static_cast<std::uint16_t>(put.mode.alpha * 0x101)};
    return pixman_image_create_solid_fill(&colour);
}

}  // namespace

Drawing copiedRows(const std::vector<Put>& puts) {
    static std::vector<Colour> frame(frameWidth * frameHeight);
    return [=] {
        for (const Put& put : puts) {
            Colour* to = frame.data() + put.y * frameWidth + put.x;
            const Colour* from = put.image->pixels.data();
            const int width = put.image->width;
            const auto size = static_cast<std::size_t>(width) * bytesPerPixel;
            for (int y = 0; y < put.image->height; ++y, to += frameWidth, from += width)
                std::memcpy(to, from, size);
        }
    };
}

Drawing sdlBlits(const std::vector<Put>& puts, bool runLengths) {
    struct Blit {
        SDL_Surface* surface;
        SDL_Rect place;
    };
    static std::map<Way, SDL_Surface*> plain;
    static std::map<Way, SDL_Surface*> encoded;
    static SDL_Surface* const frame = newSurface(frameWidth, frameHeight);
    std::map<Way, SDL_Surface*>& surfaces = runLengths ? encoded : plain;
    std::vector<Blit> blits;
    for (const Put& put : puts) {
        SDL_Surface*& surface = surfaces[wayOf(put)];
        if (!surface) surface = surfaceFor(put, runLengths);
        blits.push_back({surface, {put.x, put.y, 0, 0}});
    }
    return [=] {
        for (const Blit& blit : blits) {
            SDL_Rect place = blit.place;
            SDL_BlitSurface(blit.surface, nullptr, frame, &place);
        }
    };
}

Drawing pixmanComposites(const std::vector<Put>& puts) {
    static std::map<Way, Composite> prepared;
    static pixman_image_t* const frame = newPixmanImage(PIXMAN_x8r8g8b8, frameWidth, frameHeight);
    std::vector<Composite> composites;
    for (const Put& put : puts) {
        if (!prepared.contains(wayOf(put)))
            prepared[wayOf(put)] = {
                .x = 0,
                .y = 0,
                .image = put.image,
                .operation = put.mode.kind == PutMode::Kind::copy ? PIXMAN_OP_SRC : PIXMAN_OP_OVER,
                .source = sourceFor(put),
                .mask = maskFor(put)};
        composites.push_back(prepared[wayOf(put)]);
        composites.back().x = put.x;
        composites.back().y = put.y;
    }
    return [=] {
        for (const Composite& c : composites)
            pixman_image_composite32(c.operation, c.source, c.mask, frame, 0, 0, 0, 0, c.x, c.y,
                                     c.image->width, c.image->height);
    };
}

}  // namespace gloomdeck
