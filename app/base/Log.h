#pragma once

#include <QLoggingCategory>
#include <QString>
#include <QtGlobal>

// The panel's diagnostic lines. Off by default, so that a disabled line costs one flag test and
// formats nothing; debug mode turns them on, and QT_LOGGING_RULES="norvalex.panel.debug=true"
// sends them to standard error without it.
Q_DECLARE_LOGGING_CATEGORY(lcPanel)

// The debug-mode log: every message of the process appended to one text file.
namespace Log {

// The handler installed with qInstallMessageHandler.
void messageHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);
// One line as the handler writes it, without the line end. The panel's lines carry no source
// location in any build, so the context part always reads "File:() Line:(0)".
QString formatLine(QtMsgType type, const QString& message);
// The file the handler appends to.
QString filePath();
// Debug mode: diagnostic lines on, every message to the file.
void install();

} // namespace Log
