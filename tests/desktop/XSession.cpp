#include "XSession.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QTest>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace {

// Without a window manager every top-level window is a child of the root window.
Window findTopLevel(Display* display, const QByteArray& title)
{
    Window root = 0, parent = 0, *children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count))
        return 0;
    Window found = 0;
    for (unsigned i = 0; i < count && !found; ++i) {
        char* name = nullptr;
        XWindowAttributes attributes;
        if (XFetchName(display, children[i], &name) && name) {
            if (title == name && XGetWindowAttributes(display, children[i], &attributes) &&
                attributes.map_state == IsViewable)
                found = children[i];
            XFree(name);
        }
    }
    if (children)
        XFree(children);
    return found;
}

} // namespace

XSession::~XSession()
{
    if (m_display)
        XCloseDisplay(m_display);
    m_server.terminate();
    if (!m_server.waitForFinished(5000))
        m_server.kill();
}

bool XSession::start()
{
    // -displayfd: the server takes the first free display number and writes it to stdout.
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"),
                    QStringLiteral("tcp")});
    QByteArray number;
    while (!number.endsWith('\n') && m_server.waitForReadyRead(20000))
        number += m_server.readAllStandardOutput();
    if (!number.endsWith('\n'))
        return false;
    const QByteArray name = ':' + number.trimmed();
    qputenv("DISPLAY", name);
    m_display = XOpenDisplay(name.constData());
    return m_display != nullptr;
}

unsigned long XSession::waitForWindow(const QByteArray& title, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    do {
        XSync(m_display, False);
        m_window = findTopLevel(m_display, title);
        if (m_window)
            return m_window;
        QTest::qWait(100);
    } while (clock.elapsed() < timeoutMs);
    return 0;
}

bool XSession::startsIconic() const
{
    XWMHints* hints = XGetWMHints(m_display, m_window);
    if (!hints)
        return false;
    const bool iconic = (hints->flags & StateHint) && hints->initial_state == IconicState;
    XFree(hints);
    return iconic;
}

void XSession::sendDeleteWindow() const
{
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = m_window;
    event.xclient.message_type = XInternAtom(m_display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = long(XInternAtom(m_display, "WM_DELETE_WINDOW", False));
    event.xclient.data.l[1] = CurrentTime;
    XSendEvent(m_display, m_window, False, NoEventMask, &event);
    XFlush(m_display);
}

bool XSession::xdotool(const QString& arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments.split(QLatin1Char(' ')));
    const bool ok = process.waitForFinished(30000) &&
                    process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!ok)
        qWarning() << "xdotool" << arguments << process.readAllStandardError();
    return ok;
}

QString XSession::moveTo(QPoint at) const
{
    return QStringLiteral("mousemove --window %1 %2 %3").arg(m_window).arg(at.x()).arg(at.y());
}

bool XSession::drag(QPoint from, QPoint to, int steps) const
{
    QString args = moveTo(from) + QStringLiteral(" mousedown 1");
    for (int step = 1; step <= steps; ++step)
        args += QStringLiteral(" sleep 0.05 ") + moveTo(from + (to - from) * step / steps);
    return xdotool(args + QStringLiteral(" sleep 0.1 mouseup 1"));
}

QImage XSession::screenshot() const
{
    QProcess import;
    import.start(QStringLiteral("import"), {QStringLiteral("-silent"), QStringLiteral("-window"),
                                            QString::number(m_window), QStringLiteral("png:-")});
    if (!import.waitForFinished(30000))
        return QImage();
    return QImage::fromData(import.readAllStandardOutput(), "PNG")
        .convertToFormat(QImage::Format_RGB32);
}
