// Entry point of the panel: one instance per user, then the controller.
#include "Accessibility.h"
#include "AppGlobals.h"
#include "CommandLine.h"
#include "FramePictures.h"
#include "GraphicalSession.h"
#include "PanelMessageBox.h"
#include "Platform.h"
#include "QXRGBMemory.h"

#include <QApplication>
#include <QScopeGuard>

#include <cstdio>
#include <thread>

namespace {

constexpr char kHelpEpilogue[] =
    "\n"
    "The panel starts norvalex-control from its own directory when it is not running and loads\n"
    "libNORVALEX_Lighting from there. Creating the file ModuleDevice.ini with\n"
    "[DebugMode] isDebugMode=true in the data directory writes a log (NORVALEXRGB_UI_Log.txt).\n"
    "QT_LOGGING_RULES=\"norvalex.panel.debug=true\" prints the diagnostic lines on standard "
    "error.\n";

QStringList argumentList(int argc, char* argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

} // namespace

int main(int argc, char* argv[])
{
    // Answered before any window system is needed.
    CommandLine commandLine;
    const QStringList arguments = argumentList(argc, argv);
    switch (commandLine.parse(arguments)) {
    case CommandLine::Action::Fail:
        std::fprintf(stderr, "norvalex-rgb: %s\nTry 'norvalex-rgb --help' for more information.\n",
                     qPrintable(commandLine.errorText()));
        return 2;
    case CommandLine::Action::ShowHelp: {
        QCoreApplication core(argc, argv);
        std::fputs(qPrintable(commandLine.helpText()), stdout);
        std::fputs(kHelpEpilogue, stdout);
        return 0;
    }
    case CommandLine::Action::ShowVersion:
        std::printf("NORVALEX RGB %s\n", qPrintable(programVersion));
        return 0;
    case CommandLine::Action::Run:
        break;
    }
    if (!GraphicalSession::isAvailable(arguments)) {
        std::fputs(GraphicalSession::missingMessage(QByteArray()).constData(), stderr);
        return 1;
    }

    // Start-up work that would otherwise stall the GUI thread runs beside it; each thread is
    // joined on every way out of main, the bus before the application object goes.
    std::thread fontConfiguration(&Platform::loadFontConfiguration);
    const auto joinFonts = qScopeGuard([&fontConfiguration]() { fontConfiguration.join(); });
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    // Every widget paints with the raster engine; without this the X11 layer loads the whole
    // OpenGL stack for the first window (about 50 MB) although nothing draws with it.
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets, true);
    GraphicalSession::beginConnecting();
    QApplication app(argc, argv);
    GraphicalSession::endConnecting();
    std::thread sessionBus(&GraphicalSession::connectSessionBus);
    const auto joinBus = qScopeGuard([&sessionBus]() { sessionBus.join(); });
    FramePictures::preload();
    // Destroyed before the application: no decode outlives it, on any way out of main.
    const auto settlePictures = qScopeGuard(&FramePictures::settle);
    // Lets the desktop match the window to its entry (Wayland app id, task bar icon).
    QGuiApplication::setDesktopFileName(QStringLiteral(NX_APP_ID));
    PanelMessageBox::install();
    Accessibility::install();

    bool alreadyRunning = false;
    Platform::MutexHandle instance = Platform::createMutex(L"NORVALEX RGB.exe", &alreadyRunning);
    if (alreadyRunning) {
        Platform::closeHandle(instance);
        Platform::sendMessage(Platform::findWindow(L"NORVALEX"), Platform::kMessageSecondInstance,
                              1, 1);
        return 0;
    }

    startMinimised = commandLine.isBackground();
    auto* controller = new QXRGBMemory();
#ifndef Q_OS_WIN
    // Only Win32 finds a window by its title; elsewhere the title is served by a listener and the
    // controller needs no native window at all.
    controller->setAttribute(Qt::WA_DontShowOnScreen);
#endif
    controller->show();
    controller->setWindowTitle(QStringLiteral("NORVALEX"));
    void* listener =
        Platform::listenForMessages(L"NORVALEX", &QXRGBMemory::nativeMessageHandler, controller);

    if (commandLine.isOpen())
        controller->setProgramStart(true);

    const int result = app.exec();
    Platform::stopListening(listener);
    delete controller;
    Platform::closeHandle(instance);
    return result;
}
