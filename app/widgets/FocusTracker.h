#pragma once

#include "FocusRing.h"

#include <QObject>
#include <QPointer>

class QWidget;

// Shows a FocusRing around the widget that took the focus from the keyboard (Tab, Backtab or a
// shortcut). Focus taken by the mouse or given by the program shows nothing, and a mouse press
// hides the ring, so the panel looks the same to a mouse user. One tracker serves the application.
class FocusTracker : public QObject
{
    Q_OBJECT

public:
    // Creates the application's tracker once; later calls return the same one.
    static FocusTracker* install();

    // The widget the ring is drawn around, or null while no ring shows.
    QWidget* target() const { return focused; }
    // The ring of the target's window, or null.
    FocusRing* ring() const { return shownRing; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    FocusTracker();
    void follow(QWidget* widget);
    void clear();

    QPointer<QWidget> focused;
    QPointer<FocusRing> shownRing;
};
