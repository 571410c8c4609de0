// Textures: levels added to a part's light.
#pragma once

#include <cstdint>
#include <vector>

#include "art/field.h"

namespace gloomdeck::art {

// Integer hash of a lattice point to 0 .. 1.
double hash01(std::int64_t seed, std::int64_t ix, std::int64_t iy);
// Value noise, -amp/2 .. amp/2, lattice step `cell` px; wrap > 0 makes it repeat every `wrap` px.
Field noise(int seed, double cell, double amp, int wrap = 0);
// Adds amp on every step-th pixel row from `first` on, below y0.
Field rows(double step, double first, double amp, double y0 = -999);
Field columns(double step, double first, double amp);
Field slope(double kx, double ky, double x0 = 16, double y0 = 16);
Field split(double x0, double left, double right);
Field under(double y0, double above, double below);
// Grows by k per pixel of distance outside radius r, falls inside.
Field fade(double cx, double cy, double r, double k);
// Smooth hill of height amp inside the ellipse.
Field bump(double cx, double cy, double rx, double ry, double amp);
// Light that falls off without end: amp / (1 + q)^2.
Field shine(double cx, double cy, double rx, double ry, double amp);
// Breaks an edge up in the dither pattern.
Field dithered(double amp);
Field add(std::vector<Field> textures);

// Threshold of the 4x4 dither pattern at a pixel, -15/32 .. 15/32.
double bayer(int x, int y);
// Sine-like wave of period 1 made of two parabolas, -1 .. 1.
double wave(double t);
// Direction of (x, y) in turns, 0 .. 1, clockwise from +x.
double turns(double x, double y);

}  // namespace gloomdeck::art
