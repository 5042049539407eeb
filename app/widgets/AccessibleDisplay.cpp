#include "AccessibleDisplay.h"

#include <QAccessible>
#include <QVariant>
#include <QWidget>

const char* const AccessibleDisplay::ValueProperty = "accessibleValue";

AccessibleDisplay::AccessibleDisplay(QWidget* widget, QAccessible::Role role)
    : QAccessibleWidget(widget, role)
{
}

QString AccessibleDisplay::text(QAccessible::Text t) const
{
    if (t == QAccessible::Value)
        return widget()->property(ValueProperty).toString();
    return QAccessibleWidget::text(t);
}

void AccessibleDisplay::setValue(QWidget* widget, const QString& value)
{
    if (widget->property(ValueProperty).toString() == value)
        return;
    widget->setProperty(ValueProperty, value);
    QAccessibleValueChangeEvent event(widget, value);
    QAccessible::updateAccessibility(&event);
}
