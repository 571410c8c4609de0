// Lighting of parts, contours and outlines. The light comes from the top left, out of the picture.
#include "art/canvas.h"

#include <algorithm>
#include <cmath>

#include "art/textures.h"

namespace gloomdeck::art {
namespace {

// Exact ties are kept away from rounding noise.
constexpr double edge = 1e-6, tie = 1 / 4096.0;
constexpr double lightX = -.52, lightY = -.66, lightZ = .54;

double slopeLight(Form form, double depth, double gx, double gy) {
    const double n = length(gx, gy) + 1e-6;
    const double nz = form == Form::dome ? std::sqrt(1 - (1 - depth) * (1 - depth)) : depth;
    const double side = std::sqrt(1 - nz * nz);
    return gx / n * side * lightX + gy / n * side * lightY + nz * lightZ;
}

double reliefLight(double gx, double gy) {
    return (-gx * lightX - gy * lightY + lightZ) / std::sqrt(gx * gx + gy * gy + 1);
}

}  // namespace

Look Look::merged() const {
    Look k = *this;
    k.contour = false;
    return k;
}

Look Look::within(int lo, int hi) const {
    Look k = *this;
    k.lowest = lo;
    k.highest = hi;
    return k;
}

Look flat(double base, double dither, Field texture) {
    return {Form::flat, base, 0, 4, dither, std::move(texture)};
}

Look bevel(double base, double gain, double width, double dither, Field texture) {
    return {Form::bevel, base, gain, width, dither, std::move(texture)};
}

Look dome(double base, double gain, double width, double dither, Field texture) {
    Look k = bevel(base, gain, width, dither, std::move(texture));
    k.form = Form::dome;
    return k;
}

Look relief(double base, double gain, Field height, double dither, Field texture) {
    Look k = bevel(base, gain, 4, dither, std::move(texture));
    k.form = Form::relief;
    k.height = std::move(height);
    return k;
}

Canvas::Canvas(int w, int h, double scale, double x0, double y0)
    : w_(w),
      h_(h),
      scale_(scale),
      x0_(x0),
      y0_(y0),
      rgb_(static_cast<std::size_t>(w * h), keyColour),
      on_(static_cast<std::size_t>(w * h), 0) {}

std::size_t Canvas::index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(w_) + static_cast<std::size_t>(x);
}

void Canvas::set(int x, int y, Colour c) {
    rgb_[index(x, y)] = c;
    on_[index(x, y)] = 1;
}

void Canvas::erase(int x, int y) {
    rgb_[index(x, y)] = keyColour;
    on_[index(x, y)] = 0;
}

std::vector<Pixel> Canvas::inside(const Field& shape) const {
    const auto first = [](double unit, int n) { return static_cast<int>(clamp(std::floor(unit) - 1, 0, n)); };
    const auto last = [](double unit, int n) { return static_cast<int>(clamp(std::ceil(unit) + 1, 0, n)); };
    const Bounds& b = shape.bounds;
    const int left = first((b.left - x0_) * scale_, w_), right = last((b.right - x0_) * scale_, w_);
    const int top = first((b.top - y0_) * scale_, h_), bottom = last((b.bottom - y0_) * scale_, h_);
    std::vector<Pixel> found;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            if (shape(unitX(x + .5), unitY(y + .5)) < -edge) found.push_back({x, y});
        }
    }
    return found;
}

// n . light at a pixel inside the shape.
double Canvas::light(const Field& shape, const Look& look, Pixel p) const {
    const Field& f = look.form == Form::relief ? look.height : shape;
    const double x = unitX(p.x + .5), y = unitY(p.y + .5);
    const double gx = (f(unitX(p.x + 1.5), y) - f(unitX(p.x - .5), y)) / 2 * scale_;
    const double gy = (f(x, unitY(p.y + 1.5)) - f(x, unitY(p.y - .5))) / 2 * scale_;
    if (look.form == Form::relief) return reliefLight(gx, gy);
    return slopeLight(look.form, clamp(-shape(x, y) / look.width, 0, 1), gx, gy);
}

Colour Canvas::shade(const Field& shape, const Ramp& ramp, const Look& look, Pixel p) const {
    double level = look.base;
    if (look.form != Form::flat) level = level + look.gain * (light(shape, look, p) - .45);
    if (look.texture) level = level + look.texture(unitX(p.x + .5), unitY(p.y + .5));
    const double step = std::floor(level + bayer(p.x, p.y) * look.dither + .5 + tie);
    return ramp[static_cast<std::size_t>(clamp(step, look.lowest, look.highest))];
}

// Painted pixels that touch the given ones on a side get the colour; the caller paints the given ones after
// that.
void Canvas::darkenRing(const std::vector<Pixel>& inside, Colour c) {
    static constexpr Pixel sides[] = {{1, 0}, {-1, 0}, {0, 1}, {0, -1}};
    for (const Pixel& p : inside) {
        for (const Pixel& s : sides) {
            const int x = p.x + s.x, y = p.y + s.y;
            if (x >= 0 && y >= 0 && x < w_ && y < h_ && painted(x, y)) set(x, y, c);
        }
    }
}

Canvas& Canvas::part(const Field& shape, const Ramp& ramp, const Look& look) {
    const std::vector<Pixel> pixels = inside(shape);
    if (look.contour) darkenRing(pixels, ramp[0]);
    for (const Pixel& p : pixels) set(p.x, p.y, shade(shape, ramp, look, p));
    return *this;
}

Canvas& Canvas::fill(const Field& shape, Colour c) {
    for (const Pixel& p : inside(shape)) set(p.x, p.y, c);
    return *this;
}

Canvas& Canvas::dots(Colour c, std::initializer_list<Pixel> where) {
    for (const Pixel& p : where) set(p.x, p.y, c);
    return *this;
}

Canvas& Canvas::stamp(int x, int y, Stamp lines) {
    int row = y;
    for (const std::string_view line : lines) {
        int column = x;
        for (const char letter : line) {
            const bool visible = column >= 0 && row >= 0 && column < w_ && row < h_;
            if (visible && letter != '.' && letter != ' ') set(column, row, stampColour(letter));
            ++column;
        }
        ++row;
    }
    return *this;
}

Canvas& Canvas::lay(const Canvas& picture, int x, int y) {
    for (int j = 0; j < picture.h_; ++j) {
        for (int i = 0; i < picture.w_; ++i) {
            const int column = x + i, row = y + j;
            const bool visible = column >= 0 && row >= 0 && column < w_ && row < h_;
            if (visible && picture.painted(i, j)) set(column, row, picture.colour(i, j));
        }
    }
    return *this;
}

Canvas& Canvas::outline(int px, bool shadow) {
    for (int i = 0; i < px; ++i) growInk();
    for (int i = 0; shadow && i < px; ++i) dropShadow();
    return *this;
}

void Canvas::growInk() {
    const Mask was = on_;
    const auto solid = [&](int x, int y) {
        return x >= 0 && y >= 0 && x < w_ && y < h_ && was[index(x, y)] != 0;
    };
    for (int y = 0; y < h_; ++y) {
        for (int x = 0; x < w_; ++x) {
            const bool touched = solid(x - 1, y) || solid(x + 1, y) || solid(x, y - 1) || solid(x, y + 1);
            if (touched && !solid(x, y)) set(x, y, inkColour);
        }
    }
}

void Canvas::dropShadow() {
    const Mask was = on_;
    for (int y = 1; y < h_; ++y) {
        for (int x = 1; x < w_; ++x) {
            if (was[index(x - 1, y - 1)] != 0 && was[index(x, y)] == 0) set(x, y, inkColour);
        }
    }
}

}  // namespace gloomdeck::art
