// Shapes as signed distances. Sums are evaluated left to right as written, so that every compiler paints the
// same.
#include "art/shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace gloomdeck::art {

Field circle(double cx, double cy, double r) {
    return {[=](double x, double y) { return length(x - cx, y - cy) - r; }, {cx - r, cy - r, cx + r, cy + r}};
}

// Near-exact distance: k (k - 1) / |gradient|.
Field ellipse(double cx, double cy, double rx, double ry) {
    return {[=](double x, double y) {
                const double u = (x - cx) / rx, v = (y - cy) / ry, k = length(u, v);
                return k * (k - 1) / (length(u / rx, v / ry) + 1e-6);
            },
            {cx - rx, cy - ry, cx + rx, cy + ry}};
}

Field box(double x0, double y0, double x1, double y1, double r) {
    return {[=](double x, double y) {
                const double qx = std::fabs(x - (x0 + x1) / 2) - (x1 - x0) / 2 + r;
                const double qy = std::fabs(y - (y0 + y1) / 2) - (y1 - y0) / 2 + r;
                const double outside = length(std::max(qx, 0.0), std::max(qy, 0.0));
                return outside + std::min(std::max(qx, qy), 0.0) - r;
            },
            {x0, y0, x1, y1}};
}

Field capsule(double x0, double y0, double x1, double y1, double r, double r1) {
    const double dx = x1 - x0, dy = y1 - y0, dr = r1 - r;
    const Bounds line{std::min(x0, x1), std::min(y0, y1), std::max(x0, x1), std::max(y0, y1)};
    return {[=](double x, double y) {
                const double t = clamp(((x - x0) * dx + (y - y0) * dy) / (dx * dx + dy * dy), 0, 1);
                return length(x - x0 - t * dx, y - y0 - t * dy) - (r + dr * t);
            },
            grown(line, std::max(r, r1))};
}

Field capsule(Point a, Point b, double r, double r1) { return capsule(a.x, a.y, b.x, b.y, r, r1); }

Field capsule(double x0, double y0, double x1, double y1, double r) { return capsule(x0, y0, x1, y1, r, r); }

namespace {

Bounds cornerBounds(const std::vector<double>& v) {
    Bounds b{v[0], v[1], v[0], v[1]};
    for (std::size_t i = 0; i < v.size(); i += 2) b = united(b, {v[i], v[i + 1], v[i], v[i + 1]});
    return b;
}

double polygonDistance(const std::vector<double>& v, double x, double y) {
    double d = 1e18;
    bool inside = false;
    const std::size_t n = v.size();
    for (std::size_t i = 0, j = n - 2; i < n; j = i, i += 2) {
        const double ax = v[i], ay = v[i + 1], bx = v[j], by = v[j + 1];
        const double ex = bx - ax, ey = by - ay, wx = x - ax, wy = y - ay;
        const double t = clamp((wx * ex + wy * ey) / (ex * ex + ey * ey + 1e-9), 0, 1);
        const double qx = wx - ex * t, qy = wy - ey * t;
        d = std::min(d, qx * qx + qy * qy);
        const bool up = y >= ay, down = y<by, left = ex * wy> ey * wx;
        if ((up && down && left) || (!up && !down && !left)) inside = !inside;
    }
    return inside ? -std::sqrt(d) : std::sqrt(d);
}

double nearest(const std::vector<Field>& shapes, double x, double y) {
    double d = shapes.front()(x, y);
    for (std::size_t i = 1; i < shapes.size(); ++i) d = std::min(d, shapes[i](x, y));
    return d;
}

double farthest(const std::vector<Field>& shapes, double x, double y) {
    double d = shapes.front()(x, y);
    for (std::size_t i = 1; i < shapes.size(); ++i) d = std::max(d, shapes[i](x, y));
    return d;
}

}  // namespace

Field poly(std::vector<double> corners) {
    const Bounds b = cornerBounds(corners);
    return {[v = std::move(corners)](double x, double y) { return polygonDistance(v, x, y); }, b};
}

Field poly(const std::vector<Point>& corners) {
    std::vector<double> flat;
    for (const Point& p : corners) flat.insert(flat.end(), {p.x, p.y});
    return poly(std::move(flat));
}

Field path(const std::vector<Point>& points, double r, double r1) {
    std::vector<Field> pieces;
    const int n = static_cast<int>(points.size()) - 1;
    for (int i = 0; i < n; ++i) {
        const auto k = static_cast<std::size_t>(i);
        pieces.push_back(capsule(points[k], points[k + 1], r + (r1 - r) * i / n, r + (r1 - r) * (i + 1) / n));
    }
    return join(std::move(pieces));
}

Field path(const std::vector<Point>& points, double r) { return path(points, r, r); }

Field arch(double cx, double top, double half, double bottom) {
    const Field head = meet({circle(cx, top + half, half), box(-99, -99, 999, top + half + .5)});
    return join({head, box(cx - half, top + half - .5, cx + half, bottom)});
}

Field star(double cx, double cy, int n, double outer, double inner, double turn) {
    std::vector<Point> corners;
    corners.reserve(2 * static_cast<std::size_t>(n));
    for (int i = 0; i < 2 * n; ++i) {
        corners.push_back(polar(cx, cy, i % 2 == 0 ? outer : inner, turn + i / (2.0 * n)));
    }
    return poly(corners);
}

Field everywhere() { return box(-9, -9, 9999, 9999); }

Field join(std::vector<Field> shapes) {
    Bounds b = shapes.front().bounds;
    for (const Field& s : shapes) b = united(b, s.bounds);
    return {[s = std::move(shapes)](double x, double y) { return nearest(s, x, y); }, b};
}

Field meet(std::vector<Field> shapes) {
    Bounds b;
    for (const Field& s : shapes) b = shared(b, s.bounds);
    return {[s = std::move(shapes)](double x, double y) { return farthest(s, x, y); }, b};
}

Field cut(const Field& a, const std::vector<Field>& holes) {
    const Bounds b = a.bounds;
    return {[=](double x, double y) { return std::max(a(x, y), -nearest(holes, x, y)); }, b};
}

Field melt(const Field& a, const Field& b, double k) {
    const Bounds reach = grown(united(a.bounds, b.bounds), k);
    return {[=](double x, double y) {
                const double p = a(x, y), q = b(x, y), h = std::max(k - std::fabs(p - q), 0.0);
                return std::min(p, q) - h * h / (4 * k);
            },
            reach};
}

Field shift(const Field& a, double dx, double dy) {
    const Bounds b = a.bounds;
    return {[=](double x, double y) { return a(x - dx, y - dy); },
            {b.left + dx, b.top + dy, b.right + dx, b.bottom + dy}};
}

Field grow(const Field& a, double px) {
    const Bounds b = grown(a.bounds, 2 * px + 2);
    return {[=](double x, double y) { return a(x, y) - px; }, b};
}

Point polar(double cx, double cy, double r, double turn) {
    const double a = turn * 2 * std::numbers::pi;
    return {std::floor((cx + r * std::sin(a)) * 64 + .5) / 64,
            std::floor((cy - r * std::cos(a)) * 64 + .5) / 64};
}

}  // namespace gloomdeck::art
