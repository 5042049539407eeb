#pragma once

#include <QByteArray>
#include <QImage>
#include <QPoint>
#include <QProcess>
#include <QString>

// A private X server (Xvfb on a display number it picks itself) and what a user and a window
// manager do to one top-level window on it: real pointer and keyboard input (xdotool),
// screenshots (ImageMagick's import), WM_DELETE_WINDOW, the initial state. Xlib stays inside
// XSession.cpp.
class XSession
{
public:
    ~XSession();

    // Starts Xvfb, connects to it and exports DISPLAY, so that every process started later
    // (the panel, the tools) runs on it.
    bool start();

    // Waits for a viewable window whose title is exactly `title`; it becomes the window that
    // input and screenshots go to. 0 when none showed in time.
    unsigned long waitForWindow(const QByteArray& title, int timeoutMs);

    // WM_HINTS asks the window manager to map the window iconic (minimised).
    bool startsIconic() const;
    // What a window manager sends on Alt+F4 or the taskbar's Close.
    void sendDeleteWindow() const;

    // Pointer input in window coordinates; a drag moves in steps with short pauses so that the
    // toolkit sees the intermediate positions.
    bool click(QPoint at) const { return xdotool(moveTo(at) + QStringLiteral(" click 1")); }
    bool drag(QPoint from, QPoint to, int steps = 8) const;
    // Keyboard input goes to the window holding the X input focus; key names separated by
    // spaces, text without spaces.
    bool focus() const { return xdotool(QStringLiteral("windowfocus --sync %1").arg(m_window)); }
    bool keys(const QString& names) const { return xdotool("key --delay 30 " + names); }
    bool type(const QString& text) const { return xdotool("type --delay 30 " + text); }
    // Empties the focused text field the way a user does, from its end.
    bool clearField() const { return keys("End" + QStringLiteral(" BackSpace").repeated(6)); }

    // The window's pixels as the X server holds them; null on failure.
    QImage screenshot() const;

private:
    // Runs xdotool with space-separated arguments.
    static bool xdotool(const QString& arguments);
    QString moveTo(QPoint at) const;

    QProcess m_server;
    struct _XDisplay* m_display = nullptr;
    unsigned long m_window = 0;
};
