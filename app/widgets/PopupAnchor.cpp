#include "PopupAnchor.h"

#include <QEvent>
#include <QWidget>

PopupAnchor::PopupAnchor(QWidget* opener, QWidget* popup)
    : QObject(popup), opener(opener), popup(popup)
{
    popup->installEventFilter(this);
    if (popup->isVisible())
        opener->setFocusProxy(popup);
}

void PopupAnchor::tie(QWidget* opener, QWidget* popup)
{
    new PopupAnchor(opener, popup);
}

bool PopupAnchor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == popup && opener) {
        if (event->type() == QEvent::Show)
            opener->setFocusProxy(popup);
        else if (event->type() == QEvent::Hide && opener->focusProxy() == popup)
            opener->setFocusProxy(nullptr);
    }
    return QObject::eventFilter(watched, event);
}
