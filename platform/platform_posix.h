#pragma once

// What the two POSIX files of Platform share: file names in the user's runtime directory.

#include <QString>

#include <string>

namespace Platform {

// The user's runtime directory (a temporary one without it), created when missing.
QString runtimeDirectory();
// `name` with everything but ASCII letters, digits, '.' and '-' replaced by '_'.
QString fileSafe(const std::wstring& name);

} // namespace Platform
