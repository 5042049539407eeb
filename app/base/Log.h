#pragma once

#include <QString>
#include <QtGlobal>

// The debug-mode log: every message of the process appended to one text file.
namespace Log {

// The handler installed with qInstallMessageHandler.
void messageHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);
// One line as the handler writes it, without the line end.
QString formatLine(QtMsgType type, const QMessageLogContext& context, const QString& message);
// The file the handler appends to.
QString filePath();
void install();

} // namespace Log
