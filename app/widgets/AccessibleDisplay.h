#pragma once

#include <QAccessibleWidget>

// A custom-painted widget that shows a value. Its value is what the widget's invokable
// accessibleValue() returns, read only when asked (for widgets that repaint often), or else its
// "accessibleValue" property, which the widget sets whenever what it shows changes.
class AccessibleDisplay : public QAccessibleWidget
{
public:
    static const char* const ValueProperty;
    static const char* const RoleProperty;

    AccessibleDisplay(QWidget* widget, QAccessible::Role role);

    QString text(QAccessible::Text t) const override;

    // Sets the value of `widget` and tells assistive technology about the change.
    static void setValue(QWidget* widget, const QString& value);
    // Has the factory expose `widget`, whatever its class, with `role`.
    static void expose(QWidget* widget, QAccessible::Role role);
};
