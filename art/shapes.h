// Shapes as signed distances, and what joins them.
#pragma once

#include <vector>

#include "art/field.h"

namespace gloomdeck::art {

struct Point {
    double x, y;
};

Field circle(double cx, double cy, double r);
Field ellipse(double cx, double cy, double rx, double ry);
Field box(double x0, double y0, double x1, double y1, double r = 0);
// Thick line; the radius runs from r at the first end to r1 at the second.
Field capsule(Point a, Point b, double r, double r1);
Field capsule(double x0, double y0, double x1, double y1, double r, double r1);
Field capsule(double x0, double y0, double x1, double y1, double r);
// Polygon from a flat list of corners x, y, x, y, ...
Field poly(std::vector<double> corners);
Field poly(const std::vector<Point>& corners);
// Chain of capsules through the points; the radius runs evenly from r to r1.
Field path(const std::vector<Point>& points, double r, double r1);
Field path(const std::vector<Point>& points, double r);
// Upright rectangle with a half-round top.
Field arch(double cx, double top, double half, double bottom);
// n-pointed star; turn 0 puts the first point straight up.
Field star(double cx, double cy, int n, double outer, double inner, double turn = 0);
// The whole of any canvas.
Field everywhere();

Field join(std::vector<Field> shapes);
Field meet(std::vector<Field> shapes);
Field cut(const Field& a, const std::vector<Field>& holes);
// Smooth join: the seam is rounded over about k pixels.
Field melt(const Field& a, const Field& b, double k);
Field shift(const Field& a, double dx, double dy);
Field grow(const Field& a, double px);

// Point at `turn` turns clockwise from straight up, rounded to 1/64 px: the only use of sin and cos.
Point polar(double cx, double cy, double r, double turn);

}  // namespace gloomdeck::art
