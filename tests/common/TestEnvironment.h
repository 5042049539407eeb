#pragma once

// Points the per-user directories of a test program at a private temporary directory before
// QApplication exists, so no test touches the real runtime, config or data directories.
// Include it in exactly one translation unit of a test program.

#include <QByteArray>
#include <QDir>
#include <QTemporaryDir>

namespace TestEnvironment {

inline QTemporaryDir& root()
{
    static QTemporaryDir dir;
    return dir;
}

inline QString runtimeDir()
{
    return root().path() + QStringLiteral("/runtime");
}

inline bool prepare()
{
    const QString config = root().path() + QStringLiteral("/config");
    QDir().mkpath(runtimeDir());
    QDir().mkpath(config);
    QFile::setPermissions(runtimeDir(),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", runtimeDir().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", config.toLocal8Bit());
    qputenv("HOME", root().path().toLocal8Bit());
    return true;
}

// Runs before main(), hence before QApplication.
static const bool prepared = prepare();

} // namespace TestEnvironment
