// Textures. Only + - * / sqrt floor min max reach the pixels: no library sine and no arctangent.
#include "art/textures.h"

#include <algorithm>
#include <cmath>

namespace gloomdeck::art {

double hash01(std::int64_t seed, std::int64_t ix, std::int64_t iy) {
    std::uint32_t h = static_cast<std::uint32_t>(seed) * 0x9E3779B1u;
    h += static_cast<std::uint32_t>(ix) * 0x85EBCA77u + static_cast<std::uint32_t>(iy) * 0xC2B2AE3Du;
    h = (h ^ (h >> 15)) * 0x2C1B3C6Du;
    h = (h ^ (h >> 12)) * 0x297A2D39u;
    return (h ^ (h >> 15)) / 4294967296.0;
}

Field noise(int seed, double cell, double amp, int wrap) {
    const double period = wrap > 0 ? std::floor(wrap / cell) : 0;
    const auto lattice = [=](double a, double b) {
        if (period > 0) a = floorMod(a, period), b = floorMod(b, period);
        return hash01(seed, static_cast<std::int64_t>(a), static_cast<std::int64_t>(b));
    };
    return [=](double x, double y) {
        const double gx = x / cell, gy = y / cell, ix = std::floor(gx), iy = std::floor(gy);
        double tx = gx - ix, ty = gy - iy;
        tx = tx * tx * (3 - 2 * tx);
        ty = ty * ty * (3 - 2 * ty);
        const double top = lattice(ix, iy) * (1 - tx) + lattice(ix + 1, iy) * tx;
        const double low = lattice(ix, iy + 1) * (1 - tx) + lattice(ix + 1, iy + 1) * tx;
        return (top * (1 - ty) + low * ty - .5) * amp;
    };
}

Field rows(double step, double first, double amp, double y0) {
    return [=](double, double y) { return floorMod(std::floor(y - first), step) == 0 && y > y0 ? amp : 0.0; };
}

Field columns(double step, double first, double amp) {
    return [=](double x, double) { return floorMod(std::floor(x - first), step) == 0 ? amp : 0.0; };
}

Field slope(double kx, double ky, double x0, double y0) {
    return [=](double x, double y) { return kx * (x - x0) + ky * (y - y0); };
}

Field split(double x0, double left, double right) {
    return [=](double x, double) { return x < x0 ? left : right; };
}

Field under(double y0, double above, double below) {
    return [=](double, double y) { return y < y0 ? above : below; };
}

Field fade(double cx, double cy, double r, double k) {
    return [=](double x, double y) { return (length(x - cx, y - cy) - r) * k; };
}

Field bump(double cx, double cy, double rx, double ry, double amp) {
    return [=](double x, double y) {
        const double u = (x - cx) / rx, v = (y - cy) / ry, k = std::max(1 - (u * u + v * v), 0.0);
        return k * k * amp;
    };
}

Field shine(double cx, double cy, double rx, double ry, double amp) {
    return [=](double x, double y) {
        const double u = (x - cx) / rx, v = (y - cy) / ry, k = 1 / (1 + u * u + v * v);
        return k * k * amp;
    };
}

Field dithered(double amp) {
    return [=](double x, double y) {
        return bayer(static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y))) * amp;
    };
}

Field add(std::vector<Field> textures) {
    return [t = std::move(textures)](double x, double y) {
        double sum = t.front()(x, y);
        for (std::size_t i = 1; i < t.size(); ++i) sum = sum + t[i](x, y);
        return sum;
    };
}

double bayer(int x, int y) {
    static constexpr int order[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
    return (order[y & 3][x & 3] * 2 - 15) / 32.0;
}

double wave(double t) {
    const double f = t - std::floor(t);
    return f < .5 ? 16 * f * (.5 - f) : 16 * (f - .5) * (f - 1);
}

double turns(double x, double y) {
    const double ax = std::fabs(x), ay = std::fabs(y);
    const double z = std::min(ax, ay) / (std::max(ax, ay) + 1e-9);
    double a = z * (.125 + .0434 * (1 - z));
    if (ay > ax) a = .25 - a;
    if (x < 0) a = .5 - a;
    return y < 0 ? 1 - a : a;
}

}  // namespace gloomdeck::art
