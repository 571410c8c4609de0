// What xdotool cannot do with a window: read its pixels, ask it to close, and lie over it for a moment.
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

struct Place {
    int x = 0;
    int y = 0;
    unsigned width = 0;
    unsigned height = 0;
};

int printPixels(Display* display, Window window, const Place& part) {
    XImage* image = XGetImage(display, window, part.x, part.y, part.width, part.height, AllPlanes, ZPixmap);
    if (!image) return EXIT_FAILURE;
    std::string bytes;
    for (int y = 0; y < image->height; ++y)
        for (int x = 0; x < image->width; ++x) {
            const unsigned long pixel = XGetPixel(image, x, y);
            for (const int shift : {16, 8, 0}) bytes += static_cast<char>(pixel >> shift & 0xFF);
        }
    XDestroyImage(image);
    return std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() ? EXIT_SUCCESS : EXIT_FAILURE;
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

int main(int count, char** words) {
    const std::vector<std::string> given(words + 1, words + count);
    Display* display = XOpenDisplay(nullptr);
    if (!display || given.size() < 2) return EXIT_FAILURE;
    const Window window = std::stoul(given[1]);
    int answer = EXIT_FAILURE;
    if (given[0] == "close") answer = askToClose(display, window);
    if (given[0] == "cover") answer = coverForAMoment(display, window);
    if (given[0] == "pixels" && given.size() == 6)
        answer = printPixels(
            display, window,
            {std::stoi(given[2]), std::stoi(given[3]), static_cast<unsigned>(std::stoul(given[4])),
             static_cast<unsigned>(std::stoul(given[5]))});
    XCloseDisplay(display);
    return answer;
}
