// Points and rectangles in whole screen pixels, origin top left.
#pragma once

#include <algorithm>

namespace gloomdeck {

struct Point {
    int x = 0;
    int y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

/// A rectangle by two corners, both included; empty when x2 < x1 or y2 < y1.
struct Rect {
    int x1 = 0;
    int y1 = 0;
    int x2 = -1;
    int y2 = -1;
    friend bool operator==(const Rect&, const Rect&) = default;
};

/// Rows of a picture, top and bottom, both included; empty when last < first.
struct Rows {
    int first = 0;
    int last = -1;
    friend bool operator==(const Rows&, const Rows&) = default;
};

/// The rows from the first to the last of both.
constexpr Rows joined(const Rows& a, const Rows& b) {
    if (a.last < a.first) return b;
    return b.last < b.first ? a : Rows{std::min(a.first, b.first), std::max(a.last, b.last)};
}

constexpr bool isEmpty(const Rect& r) { return r.x2 < r.x1 || r.y2 < r.y1; }

constexpr bool contains(const Rect& r, int x, int y) {
    return x >= r.x1 && x <= r.x2 && y >= r.y1 && y <= r.y2;
}

/// The rectangle between two corners given in any order.
constexpr Rect spanning(int x1, int y1, int x2, int y2) {
    return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}

constexpr Rect intersection(const Rect& a, const Rect& b) {
    return {std::max(a.x1, b.x1), std::max(a.y1, b.y1), std::min(a.x2, b.x2), std::min(a.y2, b.y2)};
}

}  // namespace gloomdeck
