#include "XDisplay.h"

#include <QElapsedTimer>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace {

Display* dpy(void* display)
{
    return static_cast<Display*>(display);
}

Window findIn(Display* display, Window parent, const QByteArray& title)
{
    char* name = nullptr;
    if (XFetchName(display, parent, &name) && name) {
        const bool match = title == name;
        XFree(name);
        if (match)
            return parent;
    }
    Window root = 0;
    Window up = 0;
    Window* children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, parent, &root, &up, &children, &count))
        return 0;
    Window found = 0;
    for (unsigned i = 0; i < count && !found; ++i)
        found = findIn(display, children[i], title);
    if (children)
        XFree(children);
    return found;
}

} // namespace

XDisplay::~XDisplay()
{
    if (m_display)
        XCloseDisplay(dpy(m_display));
    if (m_server.state() != QProcess::NotRunning) {
        m_server.terminate();
        if (!m_server.waitForFinished(5000))
            m_server.kill();
        m_server.waitForFinished(2000);
    }
}

bool XDisplay::start()
{
    // -displayfd: the server takes the first free display number and writes it to stdout.
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"),
                    QStringLiteral("tcp")});
    QElapsedTimer clock;
    clock.start();
    QByteArray number;
    while (!number.endsWith('\n') && clock.elapsed() < 20000) {
        if (m_server.state() == QProcess::NotRunning)
            return false;
        m_server.waitForReadyRead(200);
        number += m_server.readAllStandardOutput();
    }
    if (!number.endsWith('\n'))
        return false;
    m_name = QLatin1Char(':') + QString::fromLatin1(number.trimmed());
    m_display = XOpenDisplay(m_name.toLatin1().constData());
    return m_display != nullptr;
}

unsigned long XDisplay::findWindow(const QByteArray& title) const
{
    XSync(dpy(m_display), False);
    return findIn(dpy(m_display), DefaultRootWindow(dpy(m_display)), title);
}

bool XDisplay::isViewable(unsigned long window) const
{
    XWindowAttributes attributes;
    return XGetWindowAttributes(dpy(m_display), window, &attributes) &&
           attributes.map_state == IsViewable;
}

bool XDisplay::startsIconic(unsigned long window) const
{
    XWMHints* hints = XGetWMHints(dpy(m_display), window);
    if (!hints)
        return false;
    const bool iconic = (hints->flags & StateHint) && hints->initial_state == IconicState;
    XFree(hints);
    return iconic;
}

void XDisplay::sendDeleteWindow(unsigned long window) const
{
    Display* display = dpy(m_display);
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = long(XInternAtom(display, "WM_DELETE_WINDOW", False));
    event.xclient.data.l[1] = CurrentTime;
    XSendEvent(display, window, False, NoEventMask, &event);
    XFlush(display);
}
