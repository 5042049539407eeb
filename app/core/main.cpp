// Entry point of the panel: one instance per user, then the controller.
#include "Accessibility.h"
#include "AppGlobals.h"
#include "PanelMessageBox.h"
#include "Platform.h"
#include "QXRGBMemory.h"
#include "Startup.h"

#include <QApplication>

#include <cstdio>
#include <cstring>

namespace {

constexpr char kUsage[] =
    "Usage: norvalex-rgb [open]\n"
    "Control panel for the RGB lighting of memory modules.\n"
    "\n"
    "  open           started by the control service; it may close the panel again\n"
    "  -h, --help     show this help and exit\n"
    "  -v, --version  show the version and exit\n"
    "\n"
    "The panel starts norvalex-control from its own directory when it is not running and loads\n"
    "libNORVALEX_Lighting from there. Creating the file ModuleDevice.ini with\n"
    "[DebugMode] isDebugMode=true in the data directory writes a log (NORVALEXRGB_UI_Log.txt).\n";

// Answers --help and --version before any window system is needed. Returns true when handled.
bool answerTerminal(int argc, char* argv[])
{
    if (argc < 2)
        return false;
    const char* arg = argv[1];
    if (std::strcmp(arg, "-h") == 0 || std::strcmp(arg, "--help") == 0) {
        std::fputs(kUsage, stdout);
        return true;
    }
    if (std::strcmp(arg, "-v") == 0 || std::strcmp(arg, "--version") == 0) {
        std::printf("NORVALEX RGB %s\n", qPrintable(programVersion));
        return true;
    }
    return false;
}

} // namespace

int main(int argc, char* argv[])
{
    if (answerTerminal(argc, argv))
        return 0;

    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QApplication app(argc, argv);
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

    if (Startup::isOpenArgument(argc, argv))
        controller->setProgramStart(true);

    const int result = app.exec();
    Platform::stopListening(listener);
    delete controller;
    Platform::closeHandle(instance);
    return result;
}
