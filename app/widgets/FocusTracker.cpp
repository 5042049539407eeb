#include "FocusTracker.h"

#include "FocusRing.h"

#include <QApplication>
#include <QFocusEvent>
#include <QWidget>

namespace {

bool fromKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

} // namespace

FocusTracker::FocusTracker()
{
    qApp->installEventFilter(this);
}

FocusTracker* FocusTracker::install()
{
    static FocusTracker* tracker = nullptr;
    if (!tracker)
        tracker = new FocusTracker();
    return tracker;
}

bool FocusTracker::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType())
        return false;
    switch (event->type()) {
    case QEvent::FocusIn:
        if (fromKeyboard(static_cast<QFocusEvent*>(event)->reason()))
            follow(static_cast<QWidget*>(watched));
        else if (watched != focused)
            clear();
        break;
    case QEvent::FocusOut: {
        // Switching windows or opening a pop-up keeps the ring for when the focus comes back.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (watched == focused && reason != Qt::ActiveWindowFocusReason &&
            reason != Qt::PopupFocusReason)
            clear();
        break;
    }
    case QEvent::MouseButtonPress:
        clear();
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        if (watched == focused && shownRing) {
            if (focused->isVisible())
                shownRing->surround(focused);
            else
                shownRing->hide();
        }
        break;
    default:
        break;
    }
    return false;
}

void FocusTracker::follow(QWidget* widget)
{
    QWidget* window = widget->window();
    if (widget == window || qobject_cast<FocusRing*>(widget))
        return;
    if (shownRing && shownRing->parentWidget() != window)
        shownRing->hide();
    FocusRing* ring = window->findChild<FocusRing*>(QString(), Qt::FindDirectChildrenOnly);
    if (!ring)
        ring = new FocusRing(window);
    focused = widget;
    shownRing = ring;
    ring->surround(widget);
}

void FocusTracker::clear()
{
    if (shownRing)
        shownRing->hide();
    focused = nullptr;
    shownRing = nullptr;
}
