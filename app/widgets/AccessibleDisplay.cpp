#include "AccessibleDisplay.h"

#include <QAccessible>
#include <QVariant>
#include <QWidget>

const char* const AccessibleDisplay::ValueProperty = "accessibleValue";
const char* const AccessibleDisplay::RoleProperty = "accessibleRole";

AccessibleDisplay::AccessibleDisplay(QWidget* widget, QAccessible::Role role)
    : QAccessibleWidget(widget, role)
{
}

QString AccessibleDisplay::text(QAccessible::Text t) const
{
    if (t == QAccessible::Value) {
        QString value;
        if (widget()->metaObject()->indexOfMethod("accessibleValue()") >= 0 &&
            QMetaObject::invokeMethod(widget(), "accessibleValue", Qt::DirectConnection,
                                      Q_RETURN_ARG(QString, value)))
            return value;
        return widget()->property(ValueProperty).toString();
    }
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

void AccessibleDisplay::expose(QWidget* widget, QAccessible::Role role)
{
    widget->setProperty(RoleProperty, int(role));
}
