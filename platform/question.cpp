// The panel of the question, and the loop that polls until one of its buttons answers.
#include "platform/question.h"

#include <algorithm>
#include <array>

#include "platform/button_face.h"
#include "platform/clock.h"
#include "platform/draw.h"
#include "platform/font.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "platform/palette.h"
#include "platform/rounding.h"

namespace gloomdeck {

namespace {

constexpr int captionHeight = 14;
constexpr int panelHeight = 84;
constexpr int margin = 16;
constexpr int buttonWidth = 56;
constexpr int buttonHeight = 18;
constexpr int buttonGap = 16;

constexpr std::array<const char*, 2> answers{"Yes", "No"};
enum Answer : int { yes = 0, no = 1, open = -1 };

struct Question {
    const std::string& text;
    const std::string& caption;
    Rect panel;
    int marked = yes;
    int pressed = open;  // the button that the pointer went down on
    bool held = false;   // the pointer's button
};

int widthOf(const std::string& text) { return static_cast<int>(text.size()) * glyphSize; }

Rect panelFor(const std::string& text, const std::string& caption) {
    const int buttons = 2 * buttonWidth + buttonGap;
    const int width =
        std::min(std::max({widthOf(text), widthOf(caption), buttons}) + 2 * margin, frameWidth - 4);
    const int x = (frameWidth - width) / 2;
    const int y = (frameHeight - panelHeight) / 2;
    return {x, y, x + width - 1, y + panelHeight - 1};
}

Rect buttonAt(const Question& q, int answer) {
    const int left = (q.panel.x1 + q.panel.x2 + 1 - 2 * buttonWidth - buttonGap) / 2;
    const int x = left + answer * (buttonWidth + buttonGap);
    const int y = q.panel.y2 - margin + 2 - buttonHeight;
    return {x, y, x + buttonWidth - 1, y + buttonHeight - 1};
}

int answerAt(const Question& q, int x, int y) {
    for (const int answer : {yes, no})
        if (contains(buttonAt(q, answer), x, y)) return answer;
    return open;
}

void drawAnswer(const Question& q, int answer) {
    const Rect r = buttonAt(q, answer);
    const std::string text = answers[static_cast<std::size_t>(answer)];
    const Colour ink = q.marked == answer ? colour::yellow : colour::edge;
    drawButtonFace({.box = r,
                    .face = q.pressed == answer ? colour::pressedFace : colour::face,
                    .outline = ink,
                    .ink = ink,
                    .caption = text,
                    .captionPlace = {roundedRatio(r.x1 + r.x2 + 1 - widthOf(text) + 2, 2),
                                     r.y1 + (buttonHeight - glyphSize) / 2 + 1}});
}

void drawQuestion(const Question& q) {
    const Rect& p = q.panel;
    fillBox(p.x1, p.y1, p.x2, p.y2, colour::panel);
    fillBox(p.x1, p.y1, p.x2, p.y1 + captionHeight, colour::slate);
    drawBox(p.x1, p.y1, p.x2, p.y2, colour::black);
    drawBox(p.x1 + 1, p.y1 + 1, p.x2 - 1, p.y2 - 1, colour::edge);
    drawText(p.x1 + 8, p.y1 + 5, q.caption, colour::black);
    drawText(std::max(p.x1 + 4, (p.x1 + p.x2 + 1 - widthOf(q.text)) / 2), p.y1 + 30, q.text, colour::edge);
    for (const int answer : {yes, no}) drawAnswer(q, answer);
}

bool isOneOf(const std::string& key, std::initializer_list<std::string_view> keys) {
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

int answerOfKey(Question& q, const KeyPress& key) {
    if (keptCloseRequest(key.text)) return no;
    if (key.text.empty() || key.repeat) return open;
    if (isOneOf(key.text, {"Y", "y"})) return yes;
    if (isOneOf(key.text, {"N", "n", keycode::escape})) return no;
    if (key.text == keycode::enter) return q.marked;
    if (isOneOf(key.text, {keycode::tab, keycode::left, keycode::right, keycode::up, keycode::down})) {
        q.marked = q.marked == yes ? no : yes;
        drawQuestion(q);
    }
    return open;
}

// A click answers when it goes down and up on the same button.
int answerOfMouse(Question& q, const MouseState& mouse) {
    const bool down = buttonIsHeld();
    if (down == q.held) return open;
    q.held = down;
    const int under = mouse.status == 0 ? answerAt(q, mouse.x, mouse.y) : open;
    const int pressedBefore = q.pressed;
    q.pressed = down ? under : open;
    drawQuestion(q);
    return !down && under == pressedBefore ? under : open;
}

int askUntilAnswered(Question& q) {
    while (true) {
        const int byMouse = answerOfMouse(q, getMouse());
        if (byMouse != open) return byMouse;
        const int byKey = answerOfKey(q, readKeyPress());
        if (byKey != open) return byKey;
        pausePolling(10);
    }
}

}  // namespace

bool askYesNo(const std::string& text, const std::string& caption) {
    Question q{.text = text, .caption = caption, .panel = panelFor(text, caption)};
    const Rect clipBefore = clipRect();
    const Image before = screen();
    resetClip();
    forgetEarlierInput();
    q.held = buttonIsHeld();
    drawQuestion(q);
    const int answer = askUntilAnswered(q);
    screen() = before;
    frameChanged();
    setClip(clipBefore.x1, clipBefore.y1, clipBefore.x2, clipBefore.y2);
    return answer == yes;
}

}  // namespace gloomdeck
