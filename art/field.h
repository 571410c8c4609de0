// A field gives every point of the plane a number: a shape's signed distance in pixels (negative inside), or
// the levels a texture adds there.
#pragma once

#include <concepts>
#include <functional>
#include <utility>

namespace gloomdeck::art {

// Nothing of a shape lies outside its bounds; fields that know no better reach everywhere.
struct Bounds {
    double left = -1e9, top = -1e9, right = 1e9, bottom = 1e9;
};

Bounds grown(const Bounds& b, double px);
Bounds united(const Bounds& a, const Bounds& b);
Bounds shared(const Bounds& a, const Bounds& b);

class Field {
  public:
    Field() = default;
    template <std::invocable<double, double> Function>
    requires(!std::same_as<std::remove_cvref_t<Function>, Field>) Field(Function function, Bounds reach = {})
        : bounds(reach), at_(std::move(function)) {}

    double operator()(double x, double y) const { return at_(x, y); }
    explicit operator bool() const { return static_cast<bool>(at_); }

    Bounds bounds;

  private:
    std::function<double(double, double)> at_;
};

double length(double x, double y);
double clamp(double v, double lo, double hi);
double floorMod(double a, double n);  // 0 or more

}  // namespace gloomdeck::art
