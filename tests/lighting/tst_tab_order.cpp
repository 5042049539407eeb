#include "FocusOrder.h"
#include "Lighting_View.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

QStringList names(const QList<QWidget*>& widgets)
{
    QStringList out;
    for (const QWidget* w : widgets)
        out << w->objectName();
    return out;
}

// The widget Tab moves to from w.
QWidget* nextStop(QWidget* w)
{
    QWidget* next = w->nextInFocusChain();
    while (!(next->focusPolicy() & Qt::TabFocus))
        next = next->nextInFocusChain();
    return next;
}

QPushButton* button(QWidget* parent, const char* name)
{
    auto* b = new QPushButton(parent);
    b->setObjectName(QLatin1String(name));
    return b;
}

} // namespace

class TestTabOrder : public QObject
{
    Q_OBJECT

private slots:
    // Widgets named first come first, a container standing for its children; the rest follow in
    // their old order, and the widgets around the page stay where they were, also once the page's
    // children stand before the page itself in the focus ring.
    void placeFirstReordersOnlyThePage()
    {
        QWidget window;
        QPushButton* before = button(&window, "before");
        QWidget* page = new QWidget(&window);
        new QLabel(QStringLiteral("title"), page);
        button(page, "a");
        button(page, "b");
        QWidget* strip = new QWidget(page);
        button(strip, "c1");
        button(strip, "c2");
        QPushButton* d = button(page, "d");
        QPushButton* after = button(&window, "after");

        FocusOrder::placeFirst(page, {strip, d, after});
        FocusOrder::placeFirst(page, {strip});

        QCOMPARE(names(FocusOrder::tabChain(page)), QStringList({"c1", "c2", "d", "a", "b"}));
        QCOMPARE(nextStop(before)->objectName(), QStringLiteral("c1"));
        QCOMPARE(nextStop(page->findChild<QWidget*>(QStringLiteral("b"))), after);
    }

    // Tab on the lighting page reads as the page does: profiles and slot editor, the modules
    // and their rows, then the control deck (which used to come first, as it is built first).
    void lightingPageReadsLeftTopBottom()
    {
        Lighting_View page;
        const QStringList chain = names(FocusOrder::tabChain(&page));
        QCOMPARE(chain.first(), QStringLiteral("btn_Profile0"));
        const int edit = chain.indexOf(QStringLiteral("btn_Edit"));
        const int slot = chain.indexOf(QStringLiteral("btn_MemorySlot"));
        const int row = chain.indexOf(QStringLiteral("btn_SelectHorizontal"));
        const int deck = chain.indexOf(QStringLiteral("btn_LightMode"));
        QVERIFY(edit > 0 && edit < slot && slot < row && row < deck);
        QCOMPARE(chain.last(), QStringLiteral("btn_Default"));
    }
};

QTEST_MAIN(TestTabOrder)
#include "tst_tab_order.moc"
