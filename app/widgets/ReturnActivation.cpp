#include "ReturnActivation.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

ReturnActivation::ReturnActivation()
{
    qApp->installEventFilter(this);
}

void ReturnActivation::install()
{
    static ReturnActivation* filter = nullptr;
    if (!filter)
        filter = new ReturnActivation();
}

bool ReturnActivation::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if ((key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) ||
        (key->modifiers() & ~Qt::KeypadModifier) || key->isAutoRepeat())
        return false;
    auto* button = qobject_cast<QPushButton*>(watched);
    if (!button || !button->hasFocus() || !button->isEnabled() ||
        qobject_cast<QDialog*>(button->window()))
        return false;
    button->animateClick();
    return true;
}
