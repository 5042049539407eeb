#include "AccessibleHidden.h"

AccessibleHidden::AccessibleHidden(QWidget* widget) : QAccessibleWidget(widget, QAccessible::NoRole)
{
}

QAccessible::State AccessibleHidden::state() const
{
    QAccessible::State s;
    s.invisible = true;
    s.offscreen = true;
    return s;
}

QString AccessibleHidden::text(QAccessible::Text /*t*/) const
{
    return {};
}

int AccessibleHidden::childCount() const
{
    return 0;
}

QAccessibleInterface* AccessibleHidden::child(int /*index*/) const
{
    return nullptr;
}

int AccessibleHidden::indexOfChild(const QAccessibleInterface* /*child*/) const
{
    return -1;
}
