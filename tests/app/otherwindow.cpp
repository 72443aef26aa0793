#include "otherwindow.h"

// Its macros are names of Qt's, so nothing of Qt comes behind it.
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace {

// A window may go at any moment.
int ignoreError(Display*, XErrorEvent*)
{
    return 0;
}

}  // namespace

OtherWindow::OtherWindow() : m_display(XOpenDisplay(nullptr))
{
    XSetErrorHandler(ignoreError);
}

OtherWindow::~OtherWindow()
{
    if (m_display) {
        XCloseDisplay(static_cast<Display*>(m_display));
    }
}

bool OtherWindow::find(const QByteArray& title)
{
    auto* const display = static_cast<Display*>(m_display);
    Window root = 0;
    Window parent = 0;
    Window* windows = nullptr;
    unsigned count = 0;
    m_window = 0;
    if (!display ||
        !XQueryTree(display, DefaultRootWindow(display), &root, &parent, &windows, &count)) {
        return false;
    }
    for (unsigned i = 0; i < count && m_window == 0; ++i) {
        char* name = nullptr;
        XWindowAttributes state;
        if (XFetchName(display, windows[i], &name) && title == name &&
            XGetWindowAttributes(display, windows[i], &state) && state.map_state == IsViewable) {
            m_window = windows[i];
        }
        XFree(name);
    }
    XFree(windows);
    return m_window != 0;
}

void OtherWindow::send(const char* key, bool isDown)
{
    auto* const display = static_cast<Display*>(m_display);
    if (!display || m_window == 0) {
        return;
    }
    XKeyEvent event = {};
    event.type = isDown ? KeyPress : KeyRelease;
    event.display = display;
    event.window = m_window;
    event.root = DefaultRootWindow(display);
    event.same_screen = True;
    event.keycode = XKeysymToKeycode(display, XStringToKeysym(key));
    XSendEvent(display, m_window, True, isDown ? KeyPressMask : KeyReleaseMask,
               reinterpret_cast<XEvent*>(&event));
    XSync(display, False);
}
