// The system around a desktop program where it is Windows.
#include <windows.h>

#include <cstdlib>

#include "platform/desktop_system.h"
#include "platform/wide_text.h"

namespace gloomdeck::host::desktop {

namespace {

constexpr DWORD sleepStep = 10;   // milliseconds until a request to end is seen
constexpr DWORD patience = 4000;  // milliseconds; a second less than the system has

std::atomic<bool>* endAsked = nullptr;
void (*saveAtEnd)() = nullptr;

// A console that closes ends the process as soon as this returns, and it comes in a thread of its own.
BOOL WINAPI noteConsoleEvent(DWORD event) {
    *endAsked = true;
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) Sleep(patience);
    return TRUE;
}

// The end of a session: the system waits for the answer to it, and for nothing after that.
LRESULT CALLBACK noteSessionEvent(HWND window, UINT message, WPARAM first, LPARAM second) {
    if (message == WM_QUERYENDSESSION) return TRUE;
    if (message != WM_ENDSESSION || first == 0) return DefWindowProcW(window, message, first, second);
    *endAsked = true;
    saveAtEnd();
    return 0;
}

// Only a window is asked whether its session may end; this one is never shown.
void makeListener() {
    WNDCLASSW kind{};
    kind.lpfnWndProc = noteSessionEvent;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = L"gloomdeck session";
    RegisterClassW(&kind);
    CreateWindowW(kind.lpszClassName, L"", 0, 0, 0, 0, 0, nullptr, nullptr, kind.hInstance, nullptr);
}

}  // namespace

std::string startingFolder() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size()) {
        path.resize(2 * path.size());
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return narrow(path.substr(0, path.find_last_of(L'\\')));
}

void watchForEnd(std::atomic<bool>& asked, void (*save)()) {
    endAsked = &asked;
    saveAtEnd = save;
    makeListener();
    SetConsoleCtrlHandler(noteConsoleEvent, TRUE);
}

double seconds() {
    LARGE_INTEGER now{};
    LARGE_INTEGER aSecond{};
    QueryPerformanceCounter(&now);
    QueryPerformanceFrequency(&aSecond);
    return static_cast<double>(now.QuadPart) / static_cast<double>(aSecond.QuadPart);
}

void sleep(int milliseconds, const std::atomic<bool>& asked) {
    const double end = seconds() + milliseconds / 1000.0;
    for (double left = milliseconds; left > 0 && !asked; left = 1000.0 * (end - seconds()))
        Sleep(left < sleepStep ? static_cast<DWORD>(left) + 1 : sleepStep);
}

void chooseWindowSystem() {}

// Without a console there are no standard errors, unless somebody has asked for them.
void say(const std::string& line) {
    const std::string text = "gloomdeck: " + line + "\n";
    const HANDLE errors = GetStdHandle(STD_ERROR_HANDLE);
    DWORD written = 0;
    if (errors && errors != INVALID_HANDLE_VALUE)
        WriteFile(errors, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

void sayWithoutWindow(const std::string& line) {
    say(line);
    MessageBoxW(nullptr, wide(line).c_str(), L"Gloomdeck", MB_OK | MB_ICONERROR);
}

void endAtOnce(int exitCode) { ExitProcess(static_cast<UINT>(exitCode)); }

}  // namespace gloomdeck::host::desktop
