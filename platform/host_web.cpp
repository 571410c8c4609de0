// The host of the browser page: what the game asks of it, over the functions of host_web.js. Waits put the
// game's stack aside, so that the browser can do its own work meanwhile.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/host.h"
#include "platform/scaling.h"

extern "C" {
void gloomdeckOpen(int width, int height);
void gloomdeckTitle(const char* title);
void gloomdeckTell(const char* text);
void gloomdeckPaint(const std::uint8_t* pixels, int width, int firstRow, int rows);
int gloomdeckTakeEvent(std::int32_t* event);
double gloomdeckSeconds();
void gloomdeckSleep(int milliseconds);
void gloomdeckAwaitInput(double milliseconds);
void gloomdeckBreathe();
void gloomdeckRest();
void gloomdeckKeepRecords();
void gloomdeckWarn(const char* line);
void gloomdeckEnded();
void gloomdeckKeep();
}

namespace gloomdeck::host {

namespace {

constexpr double period = 1.0 / 60.0;
constexpr double longestBreath = period;  // seconds without a wait after which the browser gets a turn

// What host_web.js hands over, in its order: the kind and two numbers.
enum class EventKind : std::int32_t { moved, left, button, key, repaint };
struct Event {
    EventKind kind = EventKind::repaint;
    std::int32_t first = 0;
    std::int32_t second = 0;
};
static_assert(sizeof(Event) == 3 * sizeof(std::int32_t));

constexpr int extendedKey = 0x100;  // a key code with the mark 255 in front

Extent frameSize;
std::vector<std::uint8_t> painted;  // what is shown as the canvas takes it: red, green, blue, alpha
double lastBreath = 0;
void (*saveWhenLost)() = nullptr;

void convertRows(const Colour* pixels, Rows rows) {
    const auto width = static_cast<std::size_t>(frameSize.width);
    const std::size_t end = static_cast<std::size_t>(rows.last + 1) * width;
    for (std::size_t i = static_cast<std::size_t>(rows.first) * width; i < end; ++i) {
        std::uint8_t* const to = painted.data() + 4 * i;
        to[0] = static_cast<std::uint8_t>(pixels[i] >> 16);
        to[1] = static_cast<std::uint8_t>(pixels[i] >> 8);
        to[2] = static_cast<std::uint8_t>(pixels[i]);
        to[3] = 0xFF;
    }
}

void paintRows(Rows rows) {
    const std::ptrdiff_t start = std::ptrdiff_t{rows.first} * frameSize.width * 4;
    gloomdeckPaint(painted.data() + start, frameSize.width, rows.first, rows.last - rows.first + 1);
}

void noteKey(InputQueue& queue, const Event& event) {
    std::string key(1, static_cast<char>(event.first));
    if (event.first >= extendedKey) key.insert(0, 1, '\xFF');
    keyTyped(queue, key, event.second != 0);
}

void noteEvent(InputQueue& queue, const Event& event) {
    switch (event.kind) {
        case EventKind::moved: return pointerMoved(queue, event.first, event.second);
        case EventKind::left: return pointerLeft(queue);
        case EventKind::button: return buttonChanged(queue, event.first != 0);
        case EventKind::key: return noteKey(queue, event);
        case EventKind::repaint: return paintRows({0, frameSize.height - 1});
    }
}

// A long run of moves without a wait must neither hide its pictures nor keep a key that stops it.
void breatheWhenDue() {
    if (seconds() - lastBreath < longestBreath) return;
    gloomdeckBreathe();
    lastBreath = seconds();
}

}  // namespace

void open(int width, int height) {
    frameSize = {width, height};
    painted.assign(4 * static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
    gloomdeckOpen(width, height);
}

void setTitle(const std::string& title) { gloomdeckTitle(title.c_str()); }

void tell(const std::string& text) { gloomdeckTell(text.c_str()); }

void present(const Colour* pixels, std::span<const Rows> changed) {
    for (const Rows rows : changed) convertRows(pixels, rows);
    paintRows({changed.front().first, changed.back().last});
}

double framePeriod() { return period; }

void pump(InputQueue& queue) {
    breatheWhenDue();
    Event event;
    while (gloomdeckTakeEvent(reinterpret_cast<std::int32_t*>(&event)) != 0) noteEvent(queue, event);
}

void sleep(int milliseconds) {
    if (milliseconds <= 0) return;
    gloomdeckSleep(milliseconds);
    lastBreath = seconds();
}

void waitForInput(double seconds) {
    if (seconds <= 0) return;
    gloomdeckAwaitInput(seconds * 1000.0);
    lastBreath = host::seconds();
}

double seconds() { return gloomdeckSeconds(); }

std::string programFolder() { return "/gloomdeck"; }

void onLost(void (*save)()) { saveWhenLost = save; }

void warn(const std::string& line) { gloomdeckWarn(line.c_str()); }

void end(int /*exitCode*/) {
    gloomdeckKeepRecords();
    gloomdeckEnded();
    while (true) gloomdeckRest();
}

}  // namespace gloomdeck::host

// Called from outside, while the game waits: it rests, or the page is being left or hidden and nothing may
// wait any more.
void gloomdeckKeep() {
    if (gloomdeck::host::saveWhenLost != nullptr) gloomdeck::host::saveWhenLost();
    gloomdeckKeepRecords();
}
