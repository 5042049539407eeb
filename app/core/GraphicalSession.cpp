#include "GraphicalSession.h"

#include <QDBusConnection>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

namespace GraphicalSession {

namespace {

QtMessageHandler previousHandler = nullptr;
bool shmChosenHere = false;

void connectingHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg) {
        // The platform plugin could not start: no display to talk to.
        QByteArray display = qgetenv("DISPLAY");
        if (display.isEmpty())
            display = qgetenv("WAYLAND_DISPLAY");
        const QByteArray text = missingMessage(display.isEmpty() ? QByteArray("?") : display);
        std::fwrite(text.constData(), 1, std::size_t(text.size()), stderr);
        std::fflush(stderr);
        std::_Exit(1);
    }
    if (previousHandler) {
        previousHandler(type, context, message);
        return;
    }
    const QByteArray line = qFormatLogMessage(type, context, message).toLocal8Bit() + '\n';
    std::fwrite(line.constData(), 1, std::size_t(line.size()), stderr);
}

} // namespace

QByteArray missingMessage(const QByteArray& display)
{
    QByteArray text = "norvalex-rgb: the panel needs a graphical session (X11 or Wayland); ";
    if (display.isEmpty())
        text += "neither DISPLAY nor WAYLAND_DISPLAY is set.\n";
    else
        text += "cannot open display '" + display + "'.\n";
    return text;
}

bool isAvailable(const QStringList& arguments)
{
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    Q_UNUSED(arguments);
    return true;
#else
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return true;
    for (const QString& argument : arguments) {
        if (argument == QLatin1String("-platform") || argument == QLatin1String("--platform") ||
            argument.startsWith(QLatin1String("-platform=")) ||
            argument.startsWith(QLatin1String("--platform=")))
            return true;
    }
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#endif
}

void beginConnecting()
{
    previousHandler = qInstallMessageHandler(connectingHandler);
    // With X11 shared memory, Qt makes every repaint of pixels it has just sent wait for a round
    // trip to the X server. The preview repaints the same bars 30 times a second, and each round
    // trip hands over between Qt's X thread and the GUI thread twice; sending those few pixels
    // over the socket costs less. Qt reads the switch once, while it connects; a choice of the
    // user's stands.
    shmChosenHere = !qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM");
    if (shmChosenHere)
        qputenv("QT_XCB_NO_MITSHM", "1");
}

void endConnecting()
{
    qInstallMessageHandler(previousHandler);
    previousHandler = nullptr;
    // Programs started from the panel decide for themselves.
    if (shmChosenHere)
        qunsetenv("QT_XCB_NO_MITSHM");
    shmChosenHere = false;
}

void connectSessionBus()
{
#if !defined(Q_OS_WIN) && !defined(Q_OS_MACOS)
    QDBusConnection::sessionBus();
#endif
}

} // namespace GraphicalSession
