// firstpaint PROGRAM [ARGUMENT...]: starts the program on the display DISPLAY, which must be a bare
// one (no window manager, no other windows), closes its window as a user would, and prints
//     MILLISECONDS KILOBYTES WIDTH HEIGHT
// from the start of the program to its first painted window, the program's proportional set size
// when that window has been idle for a second, and the window's size.
//
// Painted: a new Qt window has no background of its own, so it shows what was below it, here the
// display's own colour, until the program draws. It counts as painted when a column of pixels
// through its middle shows that colour no more.
#include "Spawn.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <csignal>
#include <cstdio>
#include <fstream>
#include <memory>
#include <optional>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;

constexpr auto limit = 10s;
constexpr auto lookEvery = 500us; // between two looks; also how exact the time is
constexpr auto idle = 1s;
constexpr int leastWidth = 400; // a main window, and no message box that comes in its place
constexpr unsigned long displayColour = 0x3b8e51;

struct MainWindow
{
    Window id;
    unsigned width, height;
};

struct CloseDisplay
{
    void operator()(Display* display) const { XCloseDisplay(display); }
};

// A window may go while it is looked at, which is no reason to end.
int ignoreError(Display*, XErrorEvent*)
{
    return 0;
}

class BareDisplay
{
public:
    BareDisplay() : m_display(XOpenDisplay(nullptr))
    {
        if (!m_display)
            throw std::runtime_error("There is no display.");
        XSetErrorHandler(ignoreError);
        const Window root = DefaultRootWindow(display());
        XSetWindowBackground(display(), root, displayColour);
        XClearWindow(display(), root);
        XSelectInput(display(), root, SubstructureNotifyMask);
        XSync(display(), False);
    }

    // The main window, as soon as it is shown.
    MainWindow waitForWindow(Clock::time_point end) const
    {
        for (;;) {
            while (XPending(display()) > 0) {
                XEvent event;
                XNextEvent(display(), &event);
                if (event.type != MapNotify)
                    continue;
                XWindowAttributes is;
                if (XGetWindowAttributes(display(), event.xmap.window, &is) && is.width >= leastWidth)
                    return {event.xmap.window, static_cast<unsigned>(is.width),
                            static_cast<unsigned>(is.height)};
            }
            pollfd events = {ConnectionNumber(display()), POLLIN, 0};
            poll(&events, 1, 100);
            if (Clock::now() > end)
                throw std::runtime_error("No main window was shown.");
        }
    }

    void waitForPaint(const MainWindow& window, Clock::time_point end) const
    {
        while (!isPainted(window)) {
            if (Clock::now() > end)
                throw std::runtime_error("The window was not painted.");
            std::this_thread::sleep_for(lookEvery);
        }
    }

    // The windows shown since the main window, the last one first.
    std::vector<Window> laterWindows() const
    {
        std::vector<Window> windows;
        while (XPending(display()) > 0) {
            XEvent event;
            XNextEvent(display(), &event);
            if (event.type == MapNotify)
                windows.insert(windows.begin(), event.xmap.window);
        }
        return windows;
    }

    // What a click on the window's close button sends.
    void requestClose(Window window) const
    {
        XEvent event = {};
        event.xclient.type = ClientMessage;
        event.xclient.window = window;
        event.xclient.message_type = XInternAtom(display(), "WM_PROTOCOLS", False);
        event.xclient.format = 32;
        event.xclient.data.l[0] = static_cast<long>(XInternAtom(display(), "WM_DELETE_WINDOW", False));
        event.xclient.data.l[1] = CurrentTime;
        XSendEvent(display(), window, False, NoEventMask, &event);
        XFlush(display());
    }

private:
    Display* display() const { return m_display.get(); }

    bool isPainted(const MainWindow& window) const
    {
        XImage* column = XGetImage(display(), window.id, static_cast<int>(window.width / 2), 0, 1,
                                   window.height, AllPlanes, ZPixmap);
        if (!column)
            throw std::runtime_error("The window's pixels cannot be read.");
        bool painted = true;
        for (int y = 0; y < column->height && painted; ++y)
            painted = (XGetPixel(column, 0, y) & 0xffffff) != displayColour;
        XDestroyImage(column);
        return painted;
    }

    std::unique_ptr<Display, CloseDisplay> m_display;
};

// The memory of the process in kilobytes; what it shares with others counts in parts.
long proportionalSetSize(pid_t process)
{
    std::ifstream rollup("/proc/" + std::to_string(process) + "/smaps_rollup");
    for (std::string word; rollup >> word;) {
        long kilobytes = 0;
        if (word == "Pss:" && rollup >> kilobytes)
            return kilobytes;
    }
    throw std::runtime_error("The process has no smaps_rollup.");
}

// Gives the process `limit` to end by itself. Returns its exit status, if it did.
std::optional<int> waitForEnd(pid_t process)
{
    const auto end = Clock::now() + limit;
    for (int status = 0; Clock::now() < end; std::this_thread::sleep_for(1ms))
        if (waitpid(process, &status, WNOHANG) == process)
            return status;
    return {};
}

void measure(const BareDisplay& display, char** arguments, pid_t& child)
{
    const auto start = Clock::now();
    child = spawn(arguments);
    if (child < 0)
        throw std::runtime_error("The program cannot be started.");
    const MainWindow window = display.waitForWindow(start + limit);
    display.waitForPaint(window, start + limit);
    const double milliseconds = millisecondsSince(start);

    std::this_thread::sleep_for(idle);
    const long kilobytes = proportionalSetSize(child);
    for (const Window dialog : display.laterWindows()) { // the tip of the day
        display.requestClose(dialog);
        std::this_thread::sleep_for(lookEvery * 200);
    }
    display.requestClose(window.id);
    const auto status = waitForEnd(child);
    if (status)
        child = -1;
    if (status != 0)
        throw std::runtime_error("The program did not end as it should.");
    std::printf("%.2f %ld %u %u\n", milliseconds, kilobytes, window.width, window.height);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    pid_t child = -1;
    try {
        const BareDisplay display;
        measure(display, argv + 1, child);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", argv[1], error.what());
    }
    if (child > 0) {
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
    return 1;
}
