#pragma once

#include <QByteArray>
#include <QStringList>

// Whether the panel can open a window at all, checked before and while QApplication connects to
// the window system, so that a start without one ends with a plain message instead of Qt's
// platform-plugin abort.
namespace GraphicalSession {

// The line for standard error: no display set (empty `display`) or `display` not reachable.
QByteArray missingMessage(const QByteArray& display);

// False when neither a platform is forced (QT_QPA_PLATFORM or -platform) nor DISPLAY or
// WAYLAND_DISPLAY is set. Always true on Windows and macOS.
bool isAvailable(const QStringList& arguments);

// Until endConnecting(), a failure of the window system to come up prints missingMessage() and
// exits with status 1; other messages pass on unchanged. The X11 connection made meanwhile sends
// pixels over its socket, not through shared memory, unless QT_XCB_NO_MITSHM says otherwise.
void beginConnecting();
void endConnecting();

// Connects to the session bus, which the desktop's accessibility bridge waits for with the first
// text the GUI sets; the panel runs it on a thread of its own while the window is built. Nothing
// to do on Windows and macOS.
void connectSessionBus();

} // namespace GraphicalSession
