// The canvas: lit parts, hand-set pixels and the outline that closes a picture.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "art/field.h"
#include "art/palette.h"

namespace gloomdeck::art {

enum class Form { flat, bevel, dome, relief };

// How a part takes the light: level = base + gain * (n . light - 0.45) + texture, dithered to a step of its
// ramp.
struct Look {
    Form form = Form::flat;
    double base = 3;
    double gain = 0;
    double width = 4;  // of the slope or dome, from the rim inwards
    double dither = .5;
    Field texture = {};
    Field height = {};    // of a relief
    bool contour = true;  // darken the ring of painted pixels round the part
    int lowest = 1;
    int highest = 6;

    Look merged() const;  // without the contour
    Look within(int lo, int hi = 6) const;
};

Look flat(double base, double dither = .5, Field texture = {});
Look bevel(double base, double gain, double width, double dither = .5, Field texture = {});
Look dome(double base, double gain, double width, double dither = .5, Field texture = {});
Look relief(double base, double gain, Field height, double dither, Field texture = {});

struct Pixel {
    int x, y;
};

using Stamp = std::initializer_list<std::string_view>;

class Canvas {
  public:
    // scale: pixels per unit; x0, y0: the unit at the left top corner.
    explicit Canvas(int w = 32, int h = 32, double scale = 1, double x0 = 0, double y0 = 0);

    int width() const { return w_; }
    int height() const { return h_; }
    Colour colour(int x, int y) const { return rgb_[index(x, y)]; }
    bool painted(int x, int y) const { return on_[index(x, y)] != 0; }
    void set(int x, int y, Colour c);
    void erase(int x, int y);

    Canvas& part(const Field& shape, const Ramp& ramp, const Look& look);
    Canvas& fill(const Field& shape, Colour c);
    Canvas& dots(Colour c, std::initializer_list<Pixel> where);
    // One letter per pixel, one string per row.
    Canvas& stamp(int x, int y, Stamp lines);
    // The painted pixels of another picture, clipped.
    Canvas& lay(const Canvas& picture, int x, int y);
    // px pixels of ink on the four sides, then the whole shifted by (px, px) as shadow.
    Canvas& outline(int px = 1, bool shadow = true);

    // Pixels whose centre lies inside the shape.
    std::vector<Pixel> inside(const Field& shape) const;

  private:
    using Mask = std::vector<std::uint8_t>;

    std::size_t index(int x, int y) const;
    double unitX(double column) const { return column / scale_ + x0_; }
    double unitY(double row) const { return row / scale_ + y0_; }
    double light(const Field& shape, const Look& look, Pixel p) const;
    Colour shade(const Field& shape, const Ramp& ramp, const Look& look, Pixel p) const;
    void darkenRing(const std::vector<Pixel>& inside, Colour c);
    void growInk();
    void dropShadow();

    int w_, h_;
    double scale_, x0_, y0_;
    std::vector<Colour> rgb_;
    Mask on_;
};

}  // namespace gloomdeck::art
