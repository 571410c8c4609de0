// What xdotool cannot do with a window: read its pixels, ask it to close, lie over it for a moment, take the
// keyboard away, and drop text on it.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <poll.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using Words = std::vector<std::string>;

// Red, green and blue of every pixel of the part x, y, width, height.
int printPixels(Display* display, Window window, const Words& part) {
    const auto size = [&](std::size_t i) { return static_cast<unsigned>(std::stoul(part[i])); };
    XImage* image = XGetImage(display, window, std::stoi(part[0]), std::stoi(part[1]), size(2), size(3),
                              AllPlanes, ZPixmap);
    if (!image) return EXIT_FAILURE;
    for (int y = 0; y < image->height; ++y)
        for (int x = 0; x < image->width; ++x)
            for (const int shift : {16, 8, 0})
                std::putchar(static_cast<int>(XGetPixel(image, x, y) >> shift & 0xFF));
    XDestroyImage(image);
    return EXIT_SUCCESS;
}

Atom atom(Display* display, const char* name) { return XInternAtom(display, name, False); }

bool tell(Display* display, Window window, const char* message, const std::vector<unsigned long>& words) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = atom(display, message);
    event.xclient.format = 32;
    for (std::size_t i = 0; i < words.size(); ++i) event.xclient.data.l[i] = static_cast<long>(words[i]);
    return XSendEvent(display, window, False, NoEventMask, &event) != 0;
}

int askToClose(Display* display, Window window) {
    return tell(display, window, "WM_PROTOCOLS", {atom(display, "WM_DELETE_WINDOW")}) ? EXIT_SUCCESS
                                                                                      : EXIT_FAILURE;
}

int takeFocus(Display* display) {
    XSetInputFocus(display, None, RevertToNone, CurrentTime);
    return EXIT_SUCCESS;
}

void giveText(Display* display, const XSelectionRequestEvent& request) {
    const std::string text = "file:///dropped/on/the/game\r\n";
    XChangeProperty(display, request.requestor, request.property, request.target, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(text.data()), static_cast<int>(text.size()));
    XEvent answer{};
    answer.xselection = {.type = SelectionNotify,
                         .serial = 0,
                         .send_event = True,
                         .display = display,
                         .requestor = request.requestor,
                         .selection = request.selection,
                         .target = request.target,
                         .property = request.property,
                         .time = request.time};
    XSendEvent(display, request.requestor, False, NoEventMask, &answer);
}

// Gives text to whoever asks, until nobody has asked for a moment; answers how often.
int serveText(Display* display) {
    constexpr int moment = 200;  // milliseconds
    int asked = 0;
    pollfd connection{.fd = ConnectionNumber(display), .events = POLLIN, .revents = 0};
    while (XPending(display) > 0 || poll(&connection, 1, moment) > 0) {
        XEvent event{};
        XNextEvent(display, &event);
        if (event.type != SelectionRequest) continue;
        giveText(display, event.xselectionrequest);
        ++asked;
    }
    return asked;
}

// As a file manager does; the text is on the clipboard too.
int dropText(Display* display, Window window) {
    const Window source = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
    for (const char* selection : {"XdndSelection", "CLIPBOARD"})
        XSetSelectionOwner(display, atom(display, selection), source, CurrentTime);
    constexpr unsigned long version = 5UL << 24;
    const Atom copy = atom(display, "XdndActionCopy");
    tell(display, window, "XdndEnter", {source, version, atom(display, "text/uri-list")});
    tell(display, window, "XdndPosition", {source, 0, 200UL << 16 | 200UL, CurrentTime, copy});
    tell(display, window, "XdndDrop", {source, 0, CurrentTime});
    std::printf("%d\n", serveText(display));
    return EXIT_SUCCESS;
}

int coverForAMoment(Display* display, Window window) {
    const Window root = DefaultRootWindow(display);
    XWindowAttributes covered{};
    XGetWindowAttributes(display, window, &covered);
    XSetWindowAttributes wanted{};
    wanted.background_pixel = 0xFF0000;
    wanted.override_redirect = True;
    wanted.event_mask = ExposureMask;
    const Window cover =
        XCreateWindow(display, root, covered.x, covered.y, static_cast<unsigned>(covered.width),
                      static_cast<unsigned>(covered.height), 0, CopyFromParent, InputOutput, CopyFromParent,
                      CWBackPixel | CWOverrideRedirect | CWEventMask, &wanted);
    XMapRaised(display, cover);
    XEvent shown{};
    XWindowEvent(display, cover, ExposureMask, &shown);
    XDestroyWindow(display, cover);
    return EXIT_SUCCESS;
}

}  // namespace

int main(int count, char** arguments) {
    const Words words(arguments + 1, arguments + count);
    Display* display = XOpenDisplay(nullptr);
    if (!display || words.size() < 2) return EXIT_FAILURE;
    const Window window = std::stoul(words[1]);
    int answer = EXIT_FAILURE;
    if (words[0] == "close") answer = askToClose(display, window);
    if (words[0] == "unfocus") answer = takeFocus(display);
    if (words[0] == "drop") answer = dropText(display, window);
    if (words[0] == "cover") answer = coverForAMoment(display, window);
    if (words[0] == "pixels" && words.size() == 6)
        answer = printPixels(display, window, {words.begin() + 2, words.end()});
    XCloseDisplay(display);
    return answer;
}
