// norvalexctl: the lighting of the memory modules from the command line, through the lighting
// library and the running norvalex-control.
#include "CommandLine.h"
#include "CommandRunner.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("norvalexctl"));
    QCoreApplication::setApplicationVersion(QStringLiteral(NX_VERSION));

    Command command;
    QString error;
    if (!CommandLine::parse(QCoreApplication::arguments().mid(1), &command, &error)) {
        std::fprintf(stderr, "norvalexctl: %s\nTry \"norvalexctl --help\".\n",
                     error.toUtf8().constData());
        return ExitBadInput;
    }
    return CommandRunner().run(command);
}
