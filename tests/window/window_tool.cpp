// What xdotool cannot do with a window: read its pixels, ask it to close, and lie over it for a moment.
#include <X11/Xlib.h>
#include <X11/Xutil.h>

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

int askToClose(Display* display, Window window) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
    return XSendEvent(display, window, False, NoEventMask, &event) ? EXIT_SUCCESS : EXIT_FAILURE;
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
    if (words[0] == "cover") answer = coverForAMoment(display, window);
    if (words[0] == "pixels" && words.size() == 6)
        answer = printPixels(display, window, {words.begin() + 2, words.end()});
    XCloseDisplay(display);
    return answer;
}
