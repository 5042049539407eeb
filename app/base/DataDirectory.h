#pragma once

#include <QString>

// Where the panel keeps its own files (log, debug switch): the directory of the user-scope INI
// settings file of organisation "Qx", application "application", plus "/NORVALEXRGB".
namespace DataDirectory {

QString path();

} // namespace DataDirectory
