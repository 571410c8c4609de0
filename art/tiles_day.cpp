// The four times of day, 64x32 each, cut into two tiles. Rows 19-31 stay dark and plain: the day number
// stands there.
#include "art/painter.h"
#include "art/tiles.h"

namespace gloomdeck::art {
namespace {

struct DayPhase {
    const Ramp& sky;
    double first, perRow;  // step of the sky at the top and what each row adds
    void (*lights)(Canvas&);
    Colour farHills, nearHills, ground;
};

void sunrise(Canvas& t) { t.fill(circle(11, 14, 7.4), ramp::fire[5]).fill(circle(11, 14, 6), ramp::fire[6]); }

void highSun(Canvas& t) {
    t.fill(circle(32, 7.5, 6.6), ramp::cyan[5]).fill(circle(32, 7.5, 5.2), ramp::gold[6]);
    t.fill(circle(31.4, 6.9, 3.4), white);
    struct Cloud {
        double x, y, w;
    };
    for (const auto& [x, y, w] : {Cloud{11, 5, 6}, {50, 9, 5}}) {
        t.fill(join({box(x - w, y, x + w, y + 2, 1), circle(x - 1, y - .4, 2.4), circle(x + 2.6, y, 1.8)}),
               ramp::cyan[6]);
    }
}

void sunset(Canvas& t) {
    t.fill(circle(40, 13.4, 7.4), ramp::fire[3]).fill(circle(40, 13.4, 6), ramp::fire[5]);
}

void moonAndStars(Canvas& t) {
    t.dots(ramp::bone[5],
           {{5, 4}, {13, 9}, {21, 3}, {28, 8}, {33, 4}, {49, 4}, {59, 3}, {47, 11}, {9, 12}, {31, 12}});
    t.dots(ramp::cyan[4], {{17, 6}, {52, 9}, {25, 11}});
    t.fill(cut(circle(40, 7, 5), {circle(37.4, 5.8, 4.6)}), ramp::steel[6]);
}

// Three separate towers and a broken wall on the right, the middle one highest; the same black in every
// light.
void ruin(Canvas& t) {
    struct Tower {
        int x, y, w;
    };
    for (const auto& [x, y, w] : {Tower{49, 11, 3}, {54, 6, 5}, {61, 9, 3}}) {
        t.fill(box(x, y, x + w, 20), inkColour);
        for (int i = 0; i < w; i += 2) t.set(x + i, y - 1, inkColour);
    }
    t.fill(box(49, 15, 63, 20), inkColour).dots(inkColour, {{59, 14}, {53, 14}, {60, 14}});
    t.dots(ramp::fire[5], {{56, 9}});
}

Canvas dayStrip(const DayPhase& day) {
    const auto far = [](double x, double y) {
        return 14.6 + 1.5 * wave(x * .018 + .3) + 1.1 * wave(x * .052) - y;
    };
    const auto near = [](double x, double y) { return 17.2 + 1.2 * wave(x * .026 + .05) - y; };
    Canvas t(64, 32);
    t.part(everywhere(), day.sky, flat(day.first, .9, slope(0, day.perRow, 0, 0)).within(0).merged());
    day.lights(t);
    t.fill(far, day.farHills);
    ruin(t);
    t.fill(near, day.nearHills);
    t.fill([=](double x, double y) { return near(x, y) + 1; }, day.ground);
    return t.fill(box(0, 19, 64, 32), day.ground);
}

const DayPhase dawn{ramp::dawn, 1.6, .25, sunrise, ramp::violet[2], ramp::moss[3], ramp::moss[1]};
const DayPhase noon{ramp::noon, 2.0, .2, highSun, ramp::cyan[2], ramp::moss[4], ramp::moss[1]};
const DayPhase dusk{ramp::dusk, 1.3, .24, sunset, ramp::fire[1], ramp::fire[1], ramp::stone[0]};
const DayPhase night{ramp::night, .6, .2, moonAndStars, ramp::violet[0], ramp::ink[4], inkColour};

Canvas half(const DayPhase& day, int left) {
    Canvas t;
    return t.lay(dayStrip(day), -left, 0);
}

template <const DayPhase& day>
Canvas leftHalf() {
    return half(day, 0);
}

template <const DayPhase& day>
Canvas rightHalf() {
    return half(day, 32);
}

}  // namespace

TileGroup dayTiles() {
    static constexpr Tile tiles[] = {{83, leftHalf<dawn>},  {84, rightHalf<dawn>}, {85, leftHalf<noon>},
                                     {86, rightHalf<noon>}, {87, leftHalf<dusk>},  {88, rightHalf<dusk>},
                                     {97, leftHalf<night>}, {98, rightHalf<night>}};
    return tiles;
}

}  // namespace gloomdeck::art
