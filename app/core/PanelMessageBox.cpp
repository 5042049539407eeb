#include "PanelMessageBox.h"

#include <QGuiApplication>
#include <QMessageBox>

#include <cstdio>

namespace PanelMessageBox {

void show(const std::wstring& text, const std::wstring& caption, Platform::MessageIcon icon)
{
    const QString body = QString::fromStdWString(text);
    const QString title = QString::fromStdWString(caption);
    const QString platform = QGuiApplication::platformName();
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()) ||
        platform == QLatin1String("offscreen") || platform == QLatin1String("minimal")) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(title), qPrintable(body));
        return;
    }
    QMessageBox box(icon == Platform::MessageIcon::Exclamation ? QMessageBox::Warning
                                                               : QMessageBox::Information,
                    title, body, QMessageBox::Ok);
    box.exec();
}

void install()
{
#ifndef Q_OS_WIN
    Platform::setMessageBoxHook(&show);
#endif
}

} // namespace PanelMessageBox
