// LED selection on its own state: the outline of the selected strips and the row buttons.

#include "Memory_RGB_View.h"
#include "Palette_draw_rect.h"
#include "SlotLayout.h"
#include "StripSelection.h"
#include "TestEnvironment.h"

#include <QLabel>
#include <QPolygon>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QTest>

namespace {

// A page's state with eight strips in their own columns, the first `available` of them usable.
struct Page {
    explicit Page(int shown = 8, int available = 8)
    {
        for (int id = 0; id < SlotLayout::ProfileCount; ++id)
            profiles[id] = new QPushButton(&widget);
        layout.createEditButtons();
        band = new Palette_draw_rect(&widget);
        band->hide();
        widget.resize(914, 560);
        widget.show();
        if (!QTest::qWaitForWindowExposed(&widget))
            qWarning("the page was not exposed");
        const int noLeds[8] = {-1, -1, -1, -1, -1, -1, -1, -1};
        const int order[8] = {0, 1, 2, 3, 4, 5, 6, 7};
        layout.setSlotCounts(shown, available, noLeds);
        layout.setColumns(8, order);
        for (int i = 0; i < 8; ++i)
            modules[i].colorMode = 0;
    }

    QWidget widget;
    QWidget* area = nullptr;
    Memory_RGB_View* strips[8] = {};
    QLabel* wells[8] = {};
    QPropertyAnimation* animations[8] = {};
    QPushButton* rows[8] = {};
    QPushButton* profiles[5] = {};
    QPushButton* edit = nullptr;
    QPushButton* cancel = nullptr;
    QPushButton* apply = nullptr;
    int savedOrder[8] = {};
    int maxLEDNum = 0;
    SlotLayout layout{{&widget, area, strips, wells, animations, rows, profiles, edit, cancel,
                       apply, savedOrder, maxLEDNum}};

    Palette_draw_rect* band = nullptr;
    int startX = 0, startY = 0, endX = 0, endY = 0;
    bool dragging = false;
    MemoryModuleData modules[8] = {};
    QPolygon outline;
    StripSelection selection{
        {band, startX, startY, endX, endY, dragging, strips, modules, rows, outline}, layout};
};

} // namespace

class TestStripSelection : public QObject
{
    Q_OBJECT

private slots:
    // One padded box per checked, shown strip, left to right on the screen (not by slot), all
    // standing on one base line; nothing checked, nothing drawn.
    void outline()
    {
        Page page(4, 4);
        const int reversed[4] = {3, 2, 1, 0};
        page.layout.setColumns(4, reversed);
        page.selection.rebuildOutline();
        QVERIFY(page.outline.isEmpty());

        page.strips[2]->btn_MemorySlot->setChecked(true);
        page.strips[0]->btn_MemorySlot->setChecked(true);
        page.strips[6]->btn_MemorySlot->setChecked(true); // hidden: not outlined
        page.selection.rebuildOutline();
        QCOMPARE(page.outline.size(), 8);
        const QRect first = page.layout.stripRect(0);
        const QRect third = page.layout.stripRect(2);
        QVERIFY(third.left() < first.left());
        QCOMPARE(page.outline.at(1), third.topLeft() - QPoint(8, 4));
        QCOMPARE(page.outline.at(5), first.topLeft() - QPoint(8, 4));
        const int base = page.outline.at(0).y();
        QVERIFY(base >= first.bottom() + 6);
        for (int corner : {3, 4, 7})
            QCOMPARE(page.outline.at(corner).y(), base);
    }

    // A row reaches every available strip; in Single, OFF or Random mode the whole strip. A row
    // button is checked only while every shown, available strip has that row.
    void rows()
    {
        Page page(4, 3);
        page.strips[1]->colorMode = 1;
        page.selection.selectRow(2, true);
        QVERIFY(page.strips[0]->btn_Led[2]->isChecked());
        QVERIFY(!page.strips[0]->btn_Led[3]->isChecked());
        for (QPushButton* led : page.strips[1]->btn_Led)
            QVERIFY(led->isChecked());
        QVERIFY(!page.strips[3]->btn_Led[2]->isChecked());

        page.selection.updateRowButtons();
        QVERIFY(page.rows[2]->isChecked());
        QVERIFY(!page.rows[3]->isChecked());

        page.strips[2]->btn_Led[2]->setChecked(false);
        page.selection.updateRowButtons();
        QVERIFY(!page.rows[2]->isChecked());

        Page none(4, 0);
        none.selection.updateRowButtons();
        for (QPushButton* row : none.rows)
            QVERIFY(!row->isChecked());
    }
};

QTEST_MAIN(TestStripSelection)
#include "tst_strip_selection.moc"
