#pragma once

#include <QAccessibleWidget>

// A custom-painted widget that shows a value: its role is fixed, its value is the widget's
// "accessibleValue" property (set by the widget whenever what it shows changes).
class AccessibleDisplay : public QAccessibleWidget
{
public:
    static const char* const ValueProperty;

    AccessibleDisplay(QWidget* widget, QAccessible::Role role);

    QString text(QAccessible::Text t) const override;

    // Sets the value of `widget` and tells assistive technology about the change.
    static void setValue(QWidget* widget, const QString& value);
};
