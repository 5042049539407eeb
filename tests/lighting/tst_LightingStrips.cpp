// The strips under the mouse: selecting LEDs with a dragged band, and reordering the slots in
// Edit mode.

#include "LightingTestSupport.h"

#include "Palette_draw_rect.h"

using namespace LightingTest;

namespace {

QStringList ledsOf(int firstSlot, int lastSlot, int firstLed, int lastLed)
{
    QStringList leds;
    for (int slot = firstSlot; slot <= lastSlot; ++slot) {
        for (int led = firstLed; led <= lastLed; ++led)
            leds << QStringLiteral("%1:%2").arg(slot).arg(led);
    }
    return leds;
}

QList<int> slotPositions(Page& p)
{
    QList<int> positions;
    for (int slot = 0; slot < 4; ++slot)
        positions << p.strip(slot)->slotPosition;
    return positions;
}

} // namespace

class tst_LightingStrips : public QObject
{
    Q_OBJECT

private slots:
    void init() { SelectMemoryIndex = 0; }
    void bandDirections_data();
    void bandDirections();
    void bandOnModulesAndAreaEdge();
    void editSwapApplyAndCancel();
};

void tst_LightingStrips::bandDirections_data()
{
    QTest::addColumn<bool>("leftward");
    QTest::addColumn<bool>("upward");
    QTest::newRow("up left") << true << true;
    QTest::newRow("down left") << true << false;
    QTest::newRow("up right") << false << true;
    QTest::newRow("down right") << false << false;
}

// A band one pixel around the corners of LEDs 2..4 of modules 1..3 selects exactly those and
// their modules; a band through the outer corners leaves those on its edge out.
void tst_LightingStrips::bandDirections()
{
    QFETCH(bool, leftward);
    QFETCH(bool, upward);
    Page p;
    const auto dragBand = [&](int margin) {
        const QPoint topLeft = p.ledCorner(1, 2) - QPoint(margin, margin);
        const QPoint bottomRight = p.ledCorner(3, 4) + QPoint(margin, margin);
        const QPoint start(leftward ? bottomRight.x() : topLeft.x(),
                           upward ? bottomRight.y() : topLeft.y());
        const QPoint end(leftward ? topLeft.x() : bottomRight.x(),
                         upward ? topLeft.y() : bottomRight.y());
        p.press(start);
        p.move(end);
        QVERIFY(p.page.findChild<Palette_draw_rect*>()->isVisible());
        p.release(end);
    };
    dragBand(1);
    QCOMPARE(p.checkedLeds(), ledsOf(1, 3, 2, 4));
    for (int slot = 0; slot < 8; ++slot)
        QCOMPARE(p.strip(slot)->btn_MemorySlot->isChecked(), slot >= 1 && slot <= 3);
    QCOMPARE(SelectMemoryIndex, 1);
    dragBand(0);
    QCOMPARE(p.checkedLeds(), ledsOf(2, 2, 3, 3));
}

// Nothing is selected on empty slots; a module in single colour or built-in colours is selected
// whole; a press clears the selection, and starts a band only right of x 300.
void tst_LightingStrips::bandOnModulesAndAreaEdge()
{
    Page p(8, 5, 8);
    p.drag(QPoint(895, 318), QPoint(301, 21));
    QCOMPARE(p.checkedLeds(), ledsOf(0, 4, 0, 7));
    QVERIFY(!p.strip(5)->btn_MemorySlot->isChecked());

    for (int colorMode : {0, 1, 2, 3}) {
        p.page.setLighting(2, 4, colorMode, 1, false);
        const QPoint corner = p.ledCorner(2, 5);
        p.drag(corner - QPoint(3, 3), corner + QPoint(3, 3));
        const bool whole = colorMode == 1 || colorMode == 2;
        QCOMPARE(p.checkedLeds(), whole ? ledsOf(2, 2, 0, 7) : QStringList{"2:5"});
    }

    for (int x : {300, 301}) {
        p.press(QPoint(x, 100));
        QVERIFY(p.checkedLeds().isEmpty());
        p.move(QPoint(700, 200));
        QCOMPARE(p.page.findChild<Palette_draw_rect*>()->isVisible(), x == 301);
        p.release(QPoint(700, 200));
        QCOMPARE(p.checkedLeds().isEmpty(), x == 300);
    }
}

// Four slots: dragging strip 1 onto strip 3 swaps them and Apply sends all eight columns;
// Cancel (the frame emits its released() when the user leaves the page) puts the strips back
// and sends nothing.
void tst_LightingStrips::editSwapApplyAndCancel()
{
    Page p(4, 4, 5);
    Recorder controller(&p.page);
    const QRect one = p.stripRect(1);
    const QRect three = p.stripRect(3);
    QTest::mouseClick(p.page.btn_Edit, Qt::LeftButton);
    p.drag(one.center(), three.center());
    QTRY_COMPARE(p.stripRect(1).topLeft(), three.topLeft());
    QTRY_COMPARE(p.stripRect(3).topLeft(), one.topLeft());
    QVERIFY(controller.log.isEmpty());
    QTest::mouseClick(p.page.btn_Edit_Apply, Qt::LeftButton);
    QCOMPARE(controller.log, QStringList{"changeMemorySlotNumber 0,3,2,1,4,5,6,7"});

    controller.log.clear();
    const QRect zero = p.stripRect(0);
    const QRect two = p.stripRect(2);
    QTest::mouseClick(p.page.btn_Edit, Qt::LeftButton);
    p.drag(zero.center(), two.center());
    QTRY_COMPARE(p.stripRect(0).topLeft(), two.topLeft());
    emit p.page.btn_Edit_Cancel->released();
    QCOMPARE(slotPositions(p), (QList<int>{0, 3, 2, 1}));
    QTRY_COMPARE(p.stripRect(0), zero);
    QVERIFY(p.page.btn_Edit->isVisible());
    QVERIFY(controller.log.isEmpty());
}

QTEST_MAIN(tst_LightingStrips)
#include "tst_LightingStrips.moc"
