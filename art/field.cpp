// Bounds of fields and the arithmetic that all fields share.
#include "art/field.h"

#include <algorithm>
#include <cmath>

namespace gloomdeck::art {

Bounds grown(const Bounds& b, double px) { return {b.left - px, b.top - px, b.right + px, b.bottom + px}; }

Bounds united(const Bounds& a, const Bounds& b) {
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

Bounds shared(const Bounds& a, const Bounds& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

double length(double x, double y) { return std::sqrt(x * x + y * y); }
double clamp(double v, double lo, double hi) { return std::min(std::max(v, lo), hi); }
double floorMod(double a, double n) { return a - std::floor(a / n) * n; }

}  // namespace gloomdeck::art
