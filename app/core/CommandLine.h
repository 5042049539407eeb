#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

// The command line of norvalex-rgb, read before any window system is needed:
//   norvalex-rgb [--background] [open]
// Qt's own window-system options (-platform, -display, -style, ...) are accepted and left to
// QApplication.
class CommandLine
{
public:
    enum class Action { Run, ShowHelp, ShowVersion, Fail };

    // `arguments` starts with the program name, as QCoreApplication::arguments() does.
    Action parse(const QStringList& arguments);

    // The first argument is exactly "open": the control service started the panel.
    bool isOpen() const { return m_open; }
    // --background: the frame starts minimised.
    bool isBackground() const { return m_background; }
    // Why parsing failed, for standard error.
    QString errorText() const { return m_error; }
    // The text of --help. Needs a QCoreApplication.
    QString helpText() const { return m_parser.helpText(); }

private:
    QCommandLineParser m_parser;
    bool m_open = false;
    bool m_background = false;
    QString m_error;
};
