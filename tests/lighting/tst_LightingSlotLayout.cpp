// The row of memory slots: layouts for few and many slots, the slot order from the library,
// LED rows, and Edit mode with dragging, Apply and Cancel.

#include "LightingTestSupport.h"

#include "Widget_Preview.h"

#include <QSignalSpy>
#include <QStandardPaths>

using namespace LightingTest;

namespace {

QWidget* stripArea(const Fixture& f)
{
    return f.child(QStringLiteral("widget_memory_Control"));
}

QList<int> stripColumnsByX(const Fixture& f, int count)
{
    // Slot numbers from left to right.
    QList<int> slotsLeftToRight;
    for (int slot = 0; slot < count; ++slot)
        slotsLeftToRight << slot;
    std::sort(slotsLeftToRight.begin(), slotsLeftToRight.end(),
              [&f](int a, int b) { return f.strip(a)->x() < f.strip(b)->x(); });
    return slotsLeftToRight;
}

bool inEditMode(const Fixture& f)
{
    return f.page->btn_Edit->isHidden() && f.page->btn_Edit_Apply->isVisible() &&
           f.page->btn_Edit_Cancel->isVisible();
}

} // namespace

class tst_LightingSlotLayout : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void layoutBySlotCount_data();
    void layoutBySlotCount();
    void tooManySlotsCollapseTheArea();
    void modulesBeyondTheCountAreUnavailable();
    void slotOrderOnlyWhileNothingIsSelected();
    void ledRows_data();
    void ledRows();
    void editModeLocksTheControls();
    void editDragSwapsAndApplySendsTheOrder();
    void editCancelRestoresAndSendsNothing();
    void editPressOutsideTheStrips();
};

void tst_LightingSlotLayout::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void tst_LightingSlotLayout::init()
{
    isNewMode = true;
    SelectMemoryIndex = 0;
}

void tst_LightingSlotLayout::layoutBySlotCount_data()
{
    QTest::addColumn<int>("slotCount");
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QPoint>("label");
    QTest::addColumn<QPoint>("preview");
    QTest::addColumn<int>("markers");
    const QRect few(500, 20, 260, 295);
    const QRect many(380, 20, 500, 295);
    QTest::newRow("1 slot") << 1 << few << QPoint(226, 20) << QPoint(226, 53) << 4;
    QTest::newRow("4 slots") << 4 << few << QPoint(226, 20) << QPoint(226, 53) << 4;
    QTest::newRow("5 slots") << 5 << many << QPoint(116, 20) << QPoint(116, 53) << 8;
    QTest::newRow("8 slots") << 8 << many << QPoint(116, 20) << QPoint(116, 53) << 8;
}

void tst_LightingSlotLayout::layoutBySlotCount()
{
    QFETCH(int, slotCount);
    QFETCH(QRect, area);
    QFETCH(QPoint, label);
    QFETCH(QPoint, preview);
    QFETCH(int, markers);
    Fixture f;
    f.load(slotCount, slotCount, 8);

    QCOMPARE(stripArea(f)->geometry(), area);
    QCOMPARE(f.child(QStringLiteral("label_Preview"))->pos(), label);
    auto* previewWidget = f.page->findChild<Widget_Preview*>();
    QCOMPARE(previewWidget->geometry(), QRect(preview, QSize(258, 252)));

    int shownMarkers = 0;
    for (QPushButton* marker : f.buttons(QStringLiteral("btn_Slots")))
        shownMarkers += marker->isHidden() ? 0 : 1;
    QCOMPARE(shownMarkers, markers);

    for (int slot = 0; slot < 8; ++slot) {
        Memory_RGB_View* strip = f.strip(slot);
        QCOMPARE(strip->isHidden(), slot >= slotCount);
        if (slot >= slotCount)
            continue;
        QVERIFY(strip->available);
        // Inside the area, side by side in slot order, each under its column's marker.
        QVERIFY(QRect(QPoint(0, 0), area.size()).contains(strip->geometry()));
        if (slot > 0)
            QVERIFY(strip->x() > f.strip(slot - 1)->geometry().right() + 20);
        QPushButton* marker =
            f.buttonWithText(QStringLiteral("btn_Slots"), QString::number(slot + 1));
        QCOMPARE(marker->pos(), strip->pos());
    }
}

// More than eight slots takes neither layout: the area collapses, the rest keeps its place.
void tst_LightingSlotLayout::tooManySlotsCollapseTheArea()
{
    Fixture f;
    f.load(8, 8, 8);
    f.page->setMemorySlots(9, 8);
    QVERIFY(stripArea(f)->geometry().isNull());
    QCOMPARE(f.page->findChild<Widget_Preview*>()->pos(), QPoint(116, 53));
    QCOMPARE(f.child(QStringLiteral("label_Preview"))->pos(), QPoint(116, 20));
}

void tst_LightingSlotLayout::modulesBeyondTheCountAreUnavailable()
{
    Fixture f;
    f.load(8, 3, 8);
    for (int slot = 0; slot < 8; ++slot) {
        Memory_RGB_View* strip = f.strip(slot);
        QVERIFY(!strip->isHidden());
        QCOMPARE(strip->available, slot < 3);
        QCOMPARE(strip->btn_Led[0]->isHidden(), slot >= 3);
    }
    // A click on an empty slot selects nothing.
    f.clickSlot(5);
    QVERIFY(!f.strip(5)->btn_MemorySlot->isChecked());
    // Shrinking the module count takes a module away again.
    f.page->setMemorySlots(8, 2);
    QVERIFY(!f.strip(2)->available);
}

// The library's slot order places the strips, but only while no module is selected; the
// markers follow the strips in both cases.
void tst_LightingSlotLayout::slotOrderOnlyWhileNothingIsSelected()
{
    Fixture f;
    f.load(8, 8, 8);
    int reversed[8] = {7, 6, 5, 4, 3, 2, 1, 0};
    f.page->setMemorySlotNumber(8, reversed);
    QCOMPARE(stripColumnsByX(f, 8), (QList<int>{7, 6, 5, 4, 3, 2, 1, 0}));
    QCOMPARE(f.strip(0)->slotPosition, 7);
    QCOMPARE(f.buttonWithText(QStringLiteral("btn_Slots"), QStringLiteral("8"))->pos(),
             f.strip(0)->pos());

    f.clickSlot(6);
    const QPoint selectedAt = f.strip(6)->pos();
    int straight[8] = {0, 1, 2, 3, 4, 5, 6, 7};
    f.page->setMemorySlotNumber(8, straight);
    QCoreApplication::processEvents();
    QCOMPARE(f.strip(6)->pos(), selectedAt);
    QCOMPARE(stripColumnsByX(f, 8), (QList<int>{7, 6, 5, 4, 3, 2, 1, 0}));
    QVERIFY(f.strip(6)->btn_MemorySlot->isChecked());
    // The marker of the selected strip's column shows the selection.
    QVERIFY(f.buttonWithText(QStringLiteral("btn_Slots"), QStringLiteral("2"))->isChecked());
}

void tst_LightingSlotLayout::ledRows_data()
{
    QTest::addColumn<int>("slotCount");
    QTest::addColumn<int>("leds");
    QTest::addColumn<int>("pitch");
    QTest::addColumn<int>("shownRows");
    QTest::newRow("4 slots, 5 LEDs") << 4 << 5 << 52 << 5;
    QTest::newRow("8 slots, 5 LEDs") << 8 << 5 << 52 << 5;
    QTest::newRow("4 slots, 8 LEDs") << 4 << 8 << 30 << 8;
    QTest::newRow("8 slots, 8 LEDs") << 8 << 8 << 30 << 8;
}

// The row buttons stand right of the strips, level with the LEDs of their row.
void tst_LightingSlotLayout::ledRows()
{
    QFETCH(int, slotCount);
    QFETCH(int, leds);
    QFETCH(int, pitch);
    QFETCH(int, shownRows);
    Fixture f;
    f.load(slotCount, slotCount, leds);
    const int areaRight = stripArea(f)->geometry().right();
    for (int row = 0; row < 8; ++row) {
        QPushButton* button =
            f.buttonWithText(QStringLiteral("btn_SelectHorizontal"), QString(QChar('A' + row)));
        QCOMPARE(button->isHidden(), row >= shownRows);
        if (row >= shownRows)
            continue;
        QCOMPARE(button->size(), QSize(30, 30));
        QCOMPARE(button->y(), 60 + pitch * row);
        QCOMPARE(button->y(), f.ledCorner(0, row).y());
        QVERIFY(button->x() > areaRight);
        QVERIFY(button->geometry().right() < f.page->width());
    }
    // The largest LED count seen wins: a later 5-LED report keeps the 8-LED rows.
    int five[8] = {5, 5, 5, 5, 5, 5, 5, 5};
    f.page->setMemoryLEDNumber(8, five);
    QPushButton* rowH =
        f.buttonWithText(QStringLiteral("btn_SelectHorizontal"), QStringLiteral("H"));
    QCOMPARE(rowH->isHidden(), leds == 5);

    // Laying the slots out again (the frame does so on every visit) keeps 5-LED modules at
    // five LEDs.
    f.page->setMemorySlots(slotCount, slotCount);
    QVERIFY(f.strip(0)->btn_Led[5]->isHidden());
    QVERIFY(!f.strip(0)->btn_Led[4]->isHidden());
}

// Entering Edit mode clears every selection and locks the rows and profiles.
void tst_LightingSlotLayout::editModeLocksTheControls()
{
    Fixture f;
    f.load(8, 8, 8);
    f.clickSlot(2);
    QPushButton* rowA =
        f.buttonWithText(QStringLiteral("btn_SelectHorizontal"), QStringLiteral("A"));
    QTest::mouseClick(rowA, Qt::LeftButton);
    QVERIFY(!f.checkedLeds().isEmpty());

    QTest::mouseClick(f.page->btn_Edit, Qt::LeftButton);
    QVERIFY(inEditMode(f));
    QVERIFY(f.checkedLeds().isEmpty());
    for (int slot = 0; slot < 8; ++slot) {
        QVERIFY(!f.strip(slot)->btn_MemorySlot->isChecked());
        QVERIFY(f.strip(slot)->isEdited());
    }
    for (QPushButton* row : f.buttons(QStringLiteral("btn_SelectHorizontal"))) {
        QVERIFY(!row->isChecked());
        QVERIFY(!row->isEnabled());
    }
    for (int id = 0; id < 5; ++id)
        QVERIFY(!f.child(QStringLiteral("btn_Profile%1").arg(id))->isEnabled());

    // Row selection is ignored while editing.
    emit rowA->released();
    QVERIFY(f.checkedLeds().isEmpty());
    // So is the band: a press and drag over the LEDs selects nothing.
    f.drag(QPoint(360, 40), QPoint(890, 310));
    QVERIFY(f.checkedLeds().isEmpty());

    QTest::mouseClick(f.page->btn_Edit_Apply, Qt::LeftButton);
    QVERIFY(!inEditMode(f));
    QVERIFY(rowA->isEnabled());
    QVERIFY(f.child(QStringLiteral("btn_Profile3"))->isEnabled());
    QVERIFY(!f.strip(0)->isEdited());
    QTest::mouseClick(f.strip(4)->btn_Led[1], Qt::LeftButton);
    QCOMPARE(f.checkedLeds(), QStringList{QStringLiteral("4:1")});
}

// Dragging strip 1 onto strip 4 marks the strip under the pointer, swaps the two with an
// animation, and Apply sends all eight columns.
void tst_LightingSlotLayout::editDragSwapsAndApplySendsTheOrder()
{
    Fixture f;
    f.load(8, 8, 8);
    QTest::mouseClick(f.page->btn_Edit, Qt::LeftButton);
    const QRect from = f.stripRect(1);
    const QRect to = f.stripRect(4);
    QSignalSpy marks(f.page, &Lighting_View::sendSelected);
    auto* dragImage = f.child<QLabel>(QStringLiteral("label_DragSlot"));

    f.press(from.center());
    QVERIFY(dragImage->isVisible());
    QCOMPARE(dragImage->pos(), QPoint(from.center().x(), from.top()));
    QVERIFY(!dragImage->pixmap(Qt::ReturnByValue).isNull());

    f.move(to.center());
    QCOMPARE(dragImage->pos(), QPoint(to.center().x(), from.top()));
    QCOMPARE(marks.count(), 8);
    for (const QList<QVariant>& mark : marks)
        QCOMPARE(mark.at(1).toBool(), mark.at(0).toInt() == 4);
    QVERIFY(f.strip(4)->isSelected());

    marks.clear();
    Recorder controller(f.page);
    f.release(to.center());
    QVERIFY(dragImage->isHidden());
    QCOMPARE(marks.count(), 8);
    for (const QList<QVariant>& mark : marks)
        QVERIFY(!mark.at(1).toBool());
    QVERIFY(!f.strip(4)->isSelected());
    QCOMPARE(f.strip(1)->slotPosition, 4);
    QCOMPARE(f.strip(4)->slotPosition, 1);
    // Halfway the strips are on their way; after 300 ms they stand in each other's place.
    QTest::qWait(100);
    QVERIFY(f.strip(1)->x() > from.left() - stripArea(f)->x());
    QVERIFY(f.strip(1)->x() < to.left() - stripArea(f)->x());
    QTRY_COMPARE(f.stripRect(1).topLeft(), to.topLeft());
    QTRY_COMPARE(f.stripRect(4).topLeft(), from.topLeft());
    QVERIFY(controller.log.isEmpty());

    QTest::mouseClick(f.page->btn_Edit_Apply, Qt::LeftButton);
    QCOMPARE(controller.log,
             QStringList{QStringLiteral("changeMemorySlotNumber 8 0,4,2,3,1,5,6,7")});
    // The markers stay with their columns.
    QCOMPARE(f.buttonWithText(QStringLiteral("btn_Slots"), QStringLiteral("5"))->pos(),
             f.strip(1)->pos());
    // The strips stay where they were dropped after the layout runs again.
    QCoreApplication::processEvents();
    QCOMPARE(f.stripRect(1).topLeft(), to.topLeft());
}

// Cancel puts every strip back in the column it had when Edit was pressed and sends nothing;
// the frame cancels through the button's released() when the user leaves the page.
void tst_LightingSlotLayout::editCancelRestoresAndSendsNothing()
{
    Fixture f;
    f.load(4, 4, 5);
    const QRect first = f.stripRect(0);
    const QRect last = f.stripRect(3);
    QTest::mouseClick(f.page->btn_Edit, Qt::LeftButton);
    Recorder controller(f.page);

    f.drag(first.center(), last.center());
    QTRY_COMPARE(f.stripRect(0).topLeft(), last.topLeft());
    f.drag(f.stripRect(1).center(), f.stripRect(2).center());
    QTRY_COMPARE(f.strip(1)->slotPosition, 2);

    emit f.page->btn_Edit_Cancel->released();
    QVERIFY(!inEditMode(f));
    QCoreApplication::processEvents();
    for (int slot = 0; slot < 4; ++slot)
        QCOMPARE(f.strip(slot)->slotPosition, slot);
    QCOMPARE(f.stripRect(0), first);
    QCOMPARE(f.stripRect(3), last);
    QVERIFY(controller.log.isEmpty());

    // With four slots, Apply still sends eight columns.
    QTest::mouseClick(f.page->btn_Edit, Qt::LeftButton);
    f.drag(f.stripRect(2).center(), f.stripRect(3).center());
    QTest::mouseClick(f.page->btn_Edit_Apply, Qt::LeftButton);
    QCOMPARE(controller.log,
             QStringList{QStringLiteral("changeMemorySlotNumber 8 0,1,3,2,4,5,6,7")});
}

// A press beside the strips picks nothing up; a release there only unmarks.
void tst_LightingSlotLayout::editPressOutsideTheStrips()
{
    Fixture f;
    f.load(8, 8, 8);
    QTest::mouseClick(f.page->btn_Edit, Qt::LeftButton);
    auto* dragImage = f.child<QLabel>(QStringLiteral("label_DragSlot"));
    const QPoint gap(f.stripRect(2).right() + 12, f.stripRect(2).center().y());
    f.press(gap);
    QVERIFY(dragImage->isHidden());
    f.move(f.stripRect(5).center());
    f.release(f.stripRect(5).center());
    for (int slot = 0; slot < 8; ++slot)
        QCOMPARE(f.strip(slot)->slotPosition, slot);

    // Dropping a strip on itself moves nothing.
    f.drag(f.stripRect(3).center(), f.stripRect(3).center() + QPoint(3, 0));
    QTest::qWait(350);
    QCOMPARE(f.strip(3)->slotPosition, 3);
    QVERIFY(!f.strip(3)->isSelected());
}

QTEST_MAIN(tst_LightingSlotLayout)
#include "tst_LightingSlotLayout.moc"
