// norvalex-control: the background service behind the lighting library. One instance per
// user; it quits on message 0x8301 to its window title and on SIGTERM or SIGINT, saving its
// state first.

#include "ControlServer.h"
#include "ControlService.h"
#include "Platform.h"
#include "ServiceOptions.h"
#include "SignalWatcher.h"
#include "StateFile.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QMetaObject>

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {

const wchar_t kMutexName[] = L"NORVALEX Control.exe";
const wchar_t kWindowTitle[] = L"NORVALEX RGB Control";

void onMessage(void* context, unsigned message, std::uintptr_t, std::intptr_t)
{
    if (message != Platform::kMessageQuit)
        return;
    qInfo("quit message received");
    QMetaObject::invokeMethod(static_cast<QCoreApplication*>(context), "quit",
                              Qt::QueuedConnection);
}

} // namespace

int main(int argc, char* argv[])
{
    // Qt's own event loop rather than GLib's, which does more work for every wake-up: the
    // service wakes at the frame rate while it streams. Nothing here needs a GLib main loop.
    qputenv("QT_NO_GLIB", "1");
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("norvalex-control"));
    QCoreApplication::setApplicationVersion(QStringLiteral(NX_VERSION));
    qSetMessagePattern(
        QStringLiteral("%{time yyyy-MM-dd hh:mm:ss.zzz} %{type} %{category}: %{message}"));
    std::signal(SIGPIPE, SIG_IGN);
    // Started by the panel, leave its session: a hang-up or Ctrl-C of the panel's terminal must
    // not take the lights down. Started by hand as a job leader, it stays in the shell's session.
    ::setsid();

    ServiceOptions options;
    QString message;
    bool exitNow = false;
    if (!options.parse(QCoreApplication::arguments(), &message, &exitNow)) {
        std::fprintf(stderr, "norvalex-control: %s\n", qPrintable(message));
        return 2;
    }
    if (exitNow) {
        std::fprintf(stdout, "%s\n", qPrintable(message));
        return 0;
    }

    bool exists = false;
    Platform::MutexHandle mutex = Platform::createMutex(kMutexName, &exists);
    if (exists) {
        Platform::closeHandle(mutex);
        qInfo("another instance is running");
        return 0;
    }

    SignalWatcher signalWatcher({SIGTERM, SIGINT});
    QObject::connect(&signalWatcher, &SignalWatcher::received, &app, [](int number) {
        qInfo("signal %d received", number);
        QCoreApplication::quit();
    });

    QString runtimeProblem;
    const QString socketPath = ControlServer::defaultSocketPath(&runtimeProblem);
    if (socketPath.isEmpty()) {
        qCritical("cannot start: no private runtime folder (%s)", qPrintable(runtimeProblem));
        Platform::closeHandle(mutex);
        return 1;
    }

    int result = 1;
    {
        ControlService service(options, StateFile::defaultPath(), socketPath);
        QString error;
        if (service.start(&error)) {
            void* listener = Platform::listenForMessages(kWindowTitle, &onMessage, &app);
            result = QCoreApplication::exec();
            Platform::stopListening(listener);
            service.stop();
            qInfo("stopped");
        } else {
            qCritical("cannot start: %s", qPrintable(error));
        }
    }
    Platform::closeHandle(mutex);
    return result;
}
