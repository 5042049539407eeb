#include "FocusOrder.h"

#include <QWidget>

namespace {

// Where Tab enters the page: the last widget before the page in the focus ring that is not the
// page's own. Reordered children stand behind it, which may be before the page itself.
QWidget* entry(QWidget* page)
{
    for (QWidget* w = page->previousInFocusChain(); w != page; w = w->previousInFocusChain()) {
        if (!page->isAncestorOf(w))
            return w;
    }
    return page;
}

} // namespace

QList<QWidget*> FocusOrder::tabChain(QWidget* page)
{
    QList<QWidget*> chain;
    QWidget* start = entry(page);
    for (QWidget* w = start->nextInFocusChain(); w != start; w = w->nextInFocusChain()) {
        if (page->isAncestorOf(w) && (w->focusPolicy() & Qt::TabFocus))
            chain << w;
    }
    return chain;
}

void FocusOrder::placeFirst(QWidget* page, const QList<QWidget*>& first)
{
    const QList<QWidget*> chain = tabChain(page);
    QList<QWidget*> order;
    for (const QWidget* given : first) {
        for (QWidget* w : chain) {
            if (given && (w == given || given->isAncestorOf(w)) && !order.contains(w))
                order << w;
        }
    }
    for (QWidget* w : chain) {
        if (!order.contains(w))
            order << w;
    }
    // Each widget is moved right behind the one before it, starting where Tab enters the page.
    QWidget* anchor = entry(page);
    for (QWidget* w : order) {
        QWidget::setTabOrder(anchor, w);
        anchor = w;
    }
}
