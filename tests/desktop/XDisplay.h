#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

// A private X server (Xvfb on a display number it picks itself) and the few window-manager
// requests the tests play: finding a top-level window by title, WM_DELETE_WINDOW, map state and
// initial state. Xlib stays inside XDisplay.cpp.
class XDisplay
{
public:
    XDisplay() = default;
    ~XDisplay();
    XDisplay(const XDisplay&) = delete;
    XDisplay& operator=(const XDisplay&) = delete;

    // Starts Xvfb and connects to it.
    bool start();
    // ":N", for DISPLAY.
    QString name() const { return m_name; }

    // The window titled `title` (WM_NAME), 0 when there is none.
    unsigned long findWindow(const QByteArray& title) const;
    bool isViewable(unsigned long window) const;
    // WM_HINTS asks the window manager to map it iconic (minimised).
    bool startsIconic(unsigned long window) const;
    // What a window manager sends on Alt+F4 or the taskbar's Close.
    void sendDeleteWindow(unsigned long window) const;

private:
    QProcess m_server;
    QString m_name;
    void* m_display = nullptr;
};
