#include "CommandLine.h"

#include <QCommandLineOption>

namespace {

// Options QGuiApplication and QApplication take out of argv themselves.
const char* const kQtValueOptions[] = {"platform",
                                       "platformpluginpath",
                                       "platformtheme",
                                       "plugin",
                                       "qwindowgeometry",
                                       "qwindowicon",
                                       "qwindowtitle",
                                       "display",
                                       "geometry",
                                       "style",
                                       "stylesheet",
                                       "session",
                                       "name",
                                       "title",
                                       "qmljsdebugger"};
const char* const kQtFlagOptions[] = {"reverse", "widgetcount", "nograb", "dograb", "sync"};

const char kOpenArgument[] = "open";

} // namespace

CommandLine::Action CommandLine::parse(const QStringList& arguments)
{
    QCommandLineParser& parser = m_parser;
    // "-platform xcb" is one option, as QApplication reads it, not seven letters.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        QStringLiteral("Control panel for the RGB lighting of memory modules."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Displays version information."));
    const QCommandLineOption background(
        QStringLiteral("background"),
        QStringLiteral("Start with the window minimised, e.g. when started with the session."));
    parser.addOption(version);
    parser.addOption(background);
    parser.addPositionalArgument(
        QString::fromLatin1(kOpenArgument),
        QStringLiteral("Given by the control service when it starts the panel; the service may "
                       "then close the panel again."),
        QStringLiteral("[open]"));
    for (const char* name : kQtValueOptions) {
        QCommandLineOption option(QString::fromLatin1(name), QString(), QStringLiteral("value"));
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }
    for (const char* name : kQtFlagOptions) {
        QCommandLineOption option(QString::fromLatin1(name));
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }

    m_open = arguments.size() > 1 && arguments.at(1) == QLatin1String(kOpenArgument);
    if (!parser.parse(arguments)) {
        m_error = parser.errorText();
        return Action::Fail;
    }
    if (parser.isSet(help) || parser.isSet(QStringLiteral("help-all")))
        return Action::ShowHelp;
    if (parser.isSet(version))
        return Action::ShowVersion;
    QStringList positional = parser.positionalArguments();
    // "open" counts only as the first argument.
    if (m_open)
        positional.removeFirst();
    if (!positional.isEmpty()) {
        m_error = QStringLiteral("Unexpected argument '%1'.").arg(positional.first());
        return Action::Fail;
    }
    m_background = parser.isSet(background);
    return Action::Run;
}
