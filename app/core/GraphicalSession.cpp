#include "GraphicalSession.h"

#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

namespace GraphicalSession {

namespace {

QtMessageHandler previousHandler = nullptr;

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
}

void endConnecting()
{
    qInstallMessageHandler(previousHandler);
    previousHandler = nullptr;
}

} // namespace GraphicalSession
