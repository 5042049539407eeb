#pragma once

#include <QList>

class QWidget;

// Tab order within a page. Qt orders a page's widgets as they were created, which need not be
// the order in which the page reads.
class FocusOrder
{
public:
    // Puts the given widgets, in the given order, ahead of the page's other widgets that take
    // the focus by Tab; those keep their order among themselves, after the given ones. A given
    // container stands for its focusable children. Widgets outside the page are left alone.
    static void placeFirst(QWidget* page, const QList<QWidget*>& first);

    // The page's widgets that take the focus by Tab, in the order Tab visits them.
    static QList<QWidget*> tabChain(QWidget* page);
};
