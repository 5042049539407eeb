#pragma once

#include <QAccessibleWidget>

// A widget that is never shown to the user: no role, no name, invisible, with no children, so that
// assistive technology skips it and whatever it holds.
class AccessibleHidden : public QAccessibleWidget
{
public:
    explicit AccessibleHidden(QWidget* widget);

    QAccessible::State state() const override;
    QString text(QAccessible::Text t) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
};
