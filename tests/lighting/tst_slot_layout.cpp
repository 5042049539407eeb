// The slot layout driven on its own state, without the page: the two layouts by slot count,
// the row buttons by LED count, Edit mode with a swap, Cancel and Apply, and the strip hit test.

#include "Memory_RGB_View.h"
#include "SlotLayout.h"
#include "TestEnvironment.h"
#include "Widget_Preview.h"

#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QTest>

namespace {

// The state a page hands to the layout.
struct Page {
    Page()
    {
        for (int id = 0; id < SlotLayout::ProfileCount; ++id)
            profiles[id] = new QPushButton(&widget);
        layout.createEditButtons();
        widget.resize(914, 560);
        widget.show();
        if (!QTest::qWaitForWindowExposed(&widget))
            qWarning("the page was not exposed");
    }

    QList<int> columns() const
    {
        QList<int> result;
        for (const Memory_RGB_View* strip : strips)
            result << strip->slotPosition;
        return result;
    }

    QWidget widget;
    QWidget* area = nullptr;
    Memory_RGB_View* strips[SlotLayout::SlotCount] = {};
    QLabel* wells[SlotLayout::SlotCount] = {};
    QPropertyAnimation* animations[SlotLayout::SlotCount] = {};
    QPushButton* rows[SlotLayout::LedRows] = {};
    QPushButton* profiles[SlotLayout::ProfileCount] = {};
    QPushButton* edit = nullptr;
    QPushButton* cancel = nullptr;
    QPushButton* apply = nullptr;
    int savedOrder[SlotLayout::SlotCount] = {};
    int maxLEDNum = 0;
    SlotLayout layout{{&widget, area, strips, wells, animations, rows, profiles, edit, cancel,
                       apply, savedOrder, maxLEDNum}};
};

const int kNoLeds[8] = {-1, -1, -1, -1, -1, -1, -1, -1};
const int kIdentity[8] = {0, 1, 2, 3, 4, 5, 6, 7};

} // namespace

class TestSlotLayout : public QObject
{
    Q_OBJECT

private slots:
    // Four slots take the narrow layout with four markers, eight the wide one with all eight;
    // more than eight collapse the strip area and leave the preview where it was.
    void layoutBySlotCount()
    {
        Page page;
        QVERIFY(page.area && page.edit && page.cancel && page.apply);
        page.layout.setSlotCounts(4, 2, kNoLeds);
        QCOMPARE(page.area->geometry(), QRect(500, 20, 260, 295));
        for (int i = 0; i < 8; ++i) {
            QCOMPARE(page.strips[i]->isHidden(), i >= 4);
            QCOMPARE(page.strips[i]->available, i < 2);
            QCOMPARE(page.layout.btn_Slots[i]->isHidden(), i >= 4);
        }
        QCOMPARE(page.layout.widget_Preview->pos(), QPoint(226, 53));

        page.layout.setSlotCounts(8, 8, kNoLeds);
        QCOMPARE(page.area->geometry(), QRect(380, 20, 500, 295));
        QCOMPARE(page.layout.widget_Preview->pos(), QPoint(116, 53));
        for (int i = 0; i < 8; ++i)
            QVERIFY(!page.layout.btn_Slots[i]->isHidden());

        page.layout.setSlotCounts(9, 8, kNoLeds);
        QVERIFY(page.area->geometry().isNull());
        QCOMPARE(page.layout.widget_Preview->pos(), QPoint(116, 53));
        QCOMPARE(page.layout.label_Preview->pos(), QPoint(116, 20));
    }

    // Row buttons F-H only go away while no module has more than five LEDs; the largest count
    // seen is kept.
    void rowButtonsByLedCount()
    {
        Page page;
        page.layout.setSlotCounts(8, 8, kNoLeds);
        const int five[8] = {5, 5, 5, 5, 5, 5, 5, 5};
        page.layout.setLedCounts(8, five);
        QCOMPARE(page.maxLEDNum, 5);
        for (int row = 0; row < 8; ++row)
            QCOMPARE(page.rows[row]->isHidden(), row >= 5);
        const int mixed[8] = {8, 5, 5, 5, 5, 5, 5, 5};
        page.layout.setLedCounts(8, mixed);
        page.layout.setLedCounts(8, five);
        QCOMPARE(page.maxLEDNum, 8);
        for (QPushButton* row : page.rows)
            QVERIFY(!row->isHidden());
        QCOMPARE(page.rows[1]->y() - page.rows[0]->y(), 30);
    }

    // Edit mode locks rows and profiles; a swap exchanges two columns; Cancel restores the
    // saved columns of the shown slots only, Apply's finish keeps the swap.
    void editModeSwapCancelAndFinish()
    {
        Page page;
        page.layout.setSlotCounts(4, 4, kNoLeds);
        page.layout.setColumns(8, kIdentity);
        page.rows[2]->setCheckable(true);
        page.rows[2]->setChecked(true);
        page.strips[1]->btn_MemorySlot->setChecked(true);

        std::copy(std::begin(kIdentity), std::end(kIdentity), page.savedOrder);
        page.layout.enterEditMode();
        QVERIFY(page.layout.isEditMode());
        QVERIFY(!page.cancel->isHidden() && !page.apply->isHidden());
        QVERIFY(!page.rows[2]->isChecked() && !page.rows[2]->isEnabled());
        QVERIFY(!page.profiles[0]->isEnabled());
        QVERIFY(!page.strips[1]->btn_MemorySlot->isChecked());
        QVERIFY(!page.strips[1]->isEnabled() && page.strips[1]->isEdited());
        QVERIFY(!page.wells[0]->isHidden());
        QVERIFY(page.wells[5]->isHidden());

        page.layout.swapStrips(0, 3);
        QCOMPARE(page.columns(), QList<int>({3, 1, 2, 0, 4, 5, 6, 7}));
        // A strip beyond the shown ones is not restored by Cancel.
        page.strips[6]->slotPosition = 7;
        page.layout.cancelEditMode();
        QVERIFY(!page.layout.isEditMode());
        QVERIFY(page.rows[2]->isEnabled() && page.profiles[0]->isEnabled());
        QVERIFY(page.strips[1]->isEnabled() && !page.strips[1]->isEdited());
        QVERIFY(page.wells[0]->isHidden());
        QCOMPARE(page.columns(), QList<int>({0, 1, 2, 3, 4, 5, 7, 7}));

        page.layout.enterEditMode();
        page.layout.swapStrips(1, 2);
        page.layout.finishEditMode();
        int order[8];
        page.layout.currentOrder(order);
        QCOMPARE(QList<int>(std::begin(order), std::end(order)),
                 QList<int>({0, 2, 1, 3, 4, 5, 7, 7}));
        // Swapping a strip with itself changes nothing; an unknown dragged slot is ignored.
        page.layout.swapStrips(3, 3);
        page.layout.swapStrips(-1, 3);
        QCOMPARE(page.columns(), QList<int>({0, 2, 1, 3, 4, 5, 7, 7}));
    }

    // The hit test includes all four edges and nothing beyond them.
    void stripHitTest()
    {
        Page page;
        page.layout.setSlotCounts(8, 8, kNoLeds);
        page.layout.setColumns(8, kIdentity);
        const QRect rect = page.layout.stripRect(2);
        QCOMPARE(rect.topLeft(), page.strips[2]->mapTo(&page.widget, QPoint()));
        const QPoint farCorner(rect.left() + rect.width(), rect.top() + rect.height());
        QVERIFY(page.layout.stripContains(2, rect.topLeft()));
        QVERIFY(page.layout.stripContains(2, farCorner));
        QVERIFY(!page.layout.stripContains(2, farCorner + QPoint(1, 0)));
        QVERIFY(!page.layout.stripContains(2, farCorner + QPoint(0, 1)));
        QVERIFY(!page.layout.stripContains(2, rect.topLeft() - QPoint(1, 0)));
        QCOMPARE(page.layout.ledCorner(2, 3), page.strips[2]->btn_Led[3]->mapTo(&page.widget, {}));
    }
};

QTEST_MAIN(TestSlotLayout)
#include "tst_slot_layout.moc"
