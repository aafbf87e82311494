#include "robot/Desk.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <set>
#include <stdexcept>
#include <vector>

// Include last: these headers define macros with common names.
#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

namespace testbench {

namespace {

std::mutex ownMutex;
std::set<Display*>& OwnDisplays() {
    static std::set<Display*> displays;
    return displays;
}

int (*nextHandler)(Display*, XErrorEvent*) = nullptr;

/// Ignores errors on our own connections: windows may disappear while we inspect them. Passes all other
/// errors on.
int IgnoreOwnErrors(Display* display, XErrorEvent* error) {
    {
        std::lock_guard lock(ownMutex);
        if (OwnDisplays().contains(display)) {
            return 0;
        }
    }
    return nextHandler != nullptr ? nextHandler(display, error) : 0;
}

struct FreeX {
    void operator()(void* data) const { XFree(data); }
};
template <class T>
using XData = std::unique_ptr<T, FreeX>;

/// Position of the lowest set bit of a colour mask.
int ShiftOf(unsigned long mask) {
    int shift = 0;
    while (mask != 0 && (mask & 1) == 0) {
        mask >>= 1;
        shift++;
    }
    return shift;
}

} // namespace

/// The connection to the X display.
class Desk::Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    Display* Get() const { return m_display; }
    KeySpot KeyOf(KeySym symbol) const;
    bool IsActive(Window window) const;
    Window FocusedTop() const;
    std::string Property(Window window, const char* name) const;

private:
    Display* m_display = nullptr;
};

Desk::Connection::Connection() {
    static std::once_flag once;
    std::call_once(once, [] {
        XInitThreads();
        nextHandler = XSetErrorHandler(IgnoreOwnErrors);
    });
    m_display = XOpenDisplay(nullptr);
    if (m_display == nullptr) {
        throw std::runtime_error("no X display: DISPLAY names none that answers");
    }
    int dummy = 0;
    if (XTestQueryExtension(m_display, &dummy, &dummy, &dummy, &dummy) == False) {
        XCloseDisplay(m_display);
        throw std::runtime_error("the X display lacks the XTest extension");
    }
    std::lock_guard lock(ownMutex);
    OwnDisplays().insert(m_display);
}

Desk::Connection::~Connection() {
    XCloseDisplay(m_display);
    std::lock_guard lock(ownMutex);
    OwnDisplays().erase(m_display);
}

Desk::KeySpot Desk::Connection::KeyOf(KeySym symbol) const {
    const KeyCode code = XKeysymToKeycode(m_display, symbol);
    if (code == 0) {
        return {};
    }
    for (const int level : {0, 1}) {
        if (XkbKeycodeToKeysym(m_display, code, 0, level) == symbol) {
            return {code, level == 1};
        }
    }
    return {};
}

std::string Desk::Connection::Property(Window window, const char* name) const {
    Atom type = None;
    int format = 0;
    unsigned long count = 0, left = 0;
    unsigned char* data = nullptr;
    if (XGetWindowProperty(m_display, window, XInternAtom(m_display, name, False), 0, 4096, False,
                           AnyPropertyType, &type, &format, &count, &left, &data) != Success ||
        data == nullptr) {
        return {};
    }
    const XData<unsigned char> owner(data);
    // Xlib returns 32-bit items as C longs.
    const size_t itemSize = format == 32 ? sizeof(long) : static_cast<size_t>(format) / 8;
    return {reinterpret_cast<const char*>(data), count * itemSize};
}

/// A window manager learns only later which window has the focus. Until then it gives its own keys, as those
/// that close a window, to the former one.
bool Desk::Connection::IsActive(Window window) const {
    const std::string active = Property(DefaultRootWindow(m_display), "_NET_ACTIVE_WINDOW");
    return active.empty() || active == std::string(reinterpret_cast<const char*>(&window), sizeof window);
}

Window Desk::Connection::FocusedTop() const {
    Window window = None;
    int revert = 0;
    XGetInputFocus(m_display, &window, &revert);
    // A helper window may have the focus. The window that the window manager handles has a WM_STATE.
    while (window != None && window != PointerRoot) {
        if (!Property(window, "WM_STATE").empty()) {
            return IsActive(window) ? window : None;
        }
        Window root = None, parent = None;
        Window* children = nullptr;
        unsigned count = 0;
        if (XQueryTree(m_display, window, &root, &parent, &children, &count) == 0) {
            return None;
        }
        const XData<Window> owner(children);
        window = parent == root ? None : parent;
    }
    return None;
}

Desk::Desk() : m_connection(std::make_unique<Connection>()) {}

Desk::~Desk() = default;

void Desk::Key(unsigned code, bool down) {
    XTestFakeKeyEvent(m_connection->Get(), code, down ? True : False, CurrentTime);
    XSync(m_connection->Get(), False);
}

void Desk::Button(unsigned button, bool down) {
    XTestFakeButtonEvent(m_connection->Get(), button, down ? True : False, CurrentTime);
    XSync(m_connection->Get(), False);
}

void Desk::DoubleClick(unsigned button) {
    for (const Bool down : {True, False, True, False}) {
        XTestFakeButtonEvent(m_connection->Get(), button, down, CurrentTime);
    }
    XSync(m_connection->Get(), False);
}

void Desk::Pointer(const wxPoint& screen) {
    XTestFakeMotionEvent(m_connection->Get(), -1, screen.x, screen.y, CurrentTime);
    XSync(m_connection->Get(), False);
}

Desk::KeySpot Desk::FindKey(char character) const {
    // The key symbol of a printable ASCII character equals its code.
    return m_connection->KeyOf(static_cast<unsigned char>(character));
}

Desk::KeySpot Desk::FindKey(const std::string& name) const {
    const KeySym symbol = XStringToKeysym(name.c_str());
    return symbol == NoSymbol ? KeySpot{} : m_connection->KeyOf(symbol);
}

std::string Desk::FocusedTitle() const {
    const Window top = m_connection->FocusedTop();
    return top == None ? std::string() : m_connection->Property(top, "_NET_WM_NAME");
}

bool Desk::FocusIsDialog() const {
    const Window top = m_connection->FocusedTop();
    if (top == None) {
        return false;
    }
    const std::string types = m_connection->Property(top, "_NET_WM_WINDOW_TYPE");
    const Atom dialog = XInternAtom(m_connection->Get(), "_NET_WM_WINDOW_TYPE_DIALOG", False);
    const std::string wanted(reinterpret_cast<const char*>(&dialog), sizeof dialog);
    return types.find(wanted) != std::string::npos;
}

wxRect Desk::FocusedArea() const {
    Window window = m_connection->FocusedTop();
    // The window manager puts a frame around the window. Find the outermost window, a child of the root.
    while (window != None) {
        Window root = None, parent = None;
        Window* children = nullptr;
        unsigned count = 0;
        if (XQueryTree(m_connection->Get(), window, &root, &parent, &children, &count) == 0) {
            return {};
        }
        const XData<Window> owner(children);
        if (parent != root) {
            window = parent;
            continue;
        }
        int x = 0, y = 0;
        unsigned width = 0, height = 0, border = 0, depth = 0;
        if (XGetGeometry(m_connection->Get(), window, &root, &x, &y, &width, &height, &border, &depth) == 0) {
            return {};
        }
        return {x, y, static_cast<int>(width + 2 * border), static_cast<int>(height + 2 * border)};
    }
    return {};
}

wxImage Desk::Picture(const wxRect& part) const {
    const int screen = DefaultScreen(m_connection->Get());
    wxRect rect(0, 0, DisplayWidth(m_connection->Get(), screen), DisplayHeight(m_connection->Get(), screen));
    if (!part.IsEmpty()) {
        rect.Intersect(part);
    }
    const auto free = [](XImage* image) {
        if (image != nullptr) {
            XDestroyImage(image);
        }
    };
    const std::unique_ptr<XImage, decltype(free)> image(
        rect.IsEmpty() ? nullptr
                       : XGetImage(m_connection->Get(), DefaultRootWindow(m_connection->Get()), rect.x,
                                   rect.y, static_cast<unsigned>(rect.width),
                                   static_cast<unsigned>(rect.height), AllPlanes, ZPixmap),
        free);
    if (!image) {
        throw std::runtime_error("the screen gave no picture");
    }
    wxImage picture(rect.width, rect.height, false);
    unsigned char* to = picture.GetData();
    const unsigned long masks[] = {image->red_mask, image->green_mask, image->blue_mask};
    for (int y = 0; y < rect.height; y++) {
        for (int x = 0; x < rect.width; x++) {
            const unsigned long pixel = XGetPixel(image.get(), x, y);
            for (const unsigned long mask : masks) {
                *to++ = static_cast<unsigned char>((pixel & mask) >> ShiftOf(mask));
            }
        }
    }
    return picture;
}

} // namespace testbench
