// Selecting LEDs by dragging a band over the strips: the four drag directions, the strict corner
// test, the limits of the band, unavailable modules and whole-module selection.

#include "LightingTestSupport.h"

#include "Palette_draw_rect.h"

#include <QStandardPaths>

using namespace LightingTest;

namespace {

Palette_draw_rect* band(const Fixture& f)
{
    return f.page->findChild<Palette_draw_rect*>();
}

QStringList ledsOf(int firstSlot, int lastSlot, int firstLed, int lastLed)
{
    QStringList leds;
    for (int slot = firstSlot; slot <= lastSlot; ++slot) {
        for (int led = firstLed; led <= lastLed; ++led)
            leds << QStringLiteral("%1:%2").arg(slot).arg(led);
    }
    return leds;
}

} // namespace

class tst_LightingAreaSelection : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void directions_data();
    void directions();
    void cornersOnTheEdgeAreOutside();
    void cornerInsideIsEnough();
    void unavailableModulesStayUnselected();
    void wholeModuleRule_data();
    void wholeModuleRule();
    void pressArea_data();
    void pressArea();
    void bandIsHeldInsideTheArea();
    void releaseWithoutMoveSelectsNothing();
};

void tst_LightingAreaSelection::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void tst_LightingAreaSelection::init()
{
    SelectMemoryIndex = 0;
}

void tst_LightingAreaSelection::directions_data()
{
    QTest::addColumn<bool>("leftward");
    QTest::addColumn<bool>("upward");
    QTest::newRow("towards the upper left") << true << true;
    QTest::newRow("towards the lower left") << true << false;
    QTest::newRow("towards the upper right") << false << true;
    QTest::newRow("towards the lower right") << false << false;
}

// A band around the corners of LEDs 2..4 of modules 1..3 selects exactly those, whichever way
// it is dragged, and selects their modules.
void tst_LightingAreaSelection::directions()
{
    QFETCH(bool, leftward);
    QFETCH(bool, upward);
    Fixture f;
    f.load(8, 8, 8);
    const QPoint topLeft = f.ledCorner(1, 2) - QPoint(1, 1);
    const QPoint bottomRight = f.ledCorner(3, 4) + QPoint(1, 1);
    const QPoint start(leftward ? bottomRight.x() : topLeft.x(),
                       upward ? bottomRight.y() : topLeft.y());
    const QPoint end(leftward ? topLeft.x() : bottomRight.x(),
                     upward ? topLeft.y() : bottomRight.y());

    f.press(start);
    f.move(end);
    QVERIFY(band(f)->isVisible());
    // Drawn as dragged: width and height are negative towards the left and upwards.
    QCOMPARE(band(f)->bandRect(),
             QRect(start.x(), start.y(), end.x() - start.x(), end.y() - start.y()));
    f.release(end);

    QVERIFY(band(f)->isHidden());
    QCOMPARE(f.checkedLeds(), ledsOf(1, 3, 2, 4));
    for (int slot = 0; slot < 8; ++slot)
        QCOMPARE(f.strip(slot)->btn_MemorySlot->isChecked(), slot >= 1 && slot <= 3);
    QCOMPARE(SelectMemoryIndex, 1);
}

// A corner exactly on the band's edge is outside it.
void tst_LightingAreaSelection::cornersOnTheEdgeAreOutside()
{
    Fixture f;
    f.load(8, 8, 8);
    f.drag(f.ledCorner(1, 2), f.ledCorner(3, 4) + QPoint(1, 1));
    QCOMPARE(f.checkedLeds(), ledsOf(2, 3, 3, 4));

    f.drag(f.ledCorner(3, 4) + QPoint(1, 1), f.ledCorner(1, 2) - QPoint(1, 1));
    QCOMPARE(f.checkedLeds(), ledsOf(1, 3, 2, 4));
    f.drag(f.ledCorner(3, 4), f.ledCorner(1, 2) - QPoint(1, 1));
    QCOMPARE(f.checkedLeds(), ledsOf(1, 2, 2, 3));
}

// Enclosing an LED button's top-left corner selects it, however little of the button lies in
// the band.
void tst_LightingAreaSelection::cornerInsideIsEnough()
{
    Fixture f;
    f.load(8, 8, 5);
    const QPoint corner = f.ledCorner(6, 3);
    f.drag(corner - QPoint(2, 2), corner + QPoint(2, 2));
    QCOMPARE(f.checkedLeds(), QStringList{QStringLiteral("6:3")});
}

void tst_LightingAreaSelection::unavailableModulesStayUnselected()
{
    Fixture f;
    f.load(8, 5, 8);
    f.drag(QPoint(895, 318), QPoint(301, 21));
    QCOMPARE(f.checkedLeds(), ledsOf(0, 4, 0, 7));
    for (int slot = 5; slot < 8; ++slot)
        QVERIFY(!f.strip(slot)->btn_MemorySlot->isChecked());
}

void tst_LightingAreaSelection::wholeModuleRule_data()
{
    QTest::addColumn<int>("colorMode");
    QTest::addColumn<int>("selected");
    QTest::newRow("RGB: the LED alone") << 0 << 1;
    QTest::newRow("single colour: the whole module") << 1 << 8;
    QTest::newRow("built-in colours: the whole module") << 2 << 8;
    QTest::newRow("random: the LED alone") << 3 << 1;
}

void tst_LightingAreaSelection::wholeModuleRule()
{
    QFETCH(int, colorMode);
    QFETCH(int, selected);
    Fixture f;
    f.load(8, 8, 8, 4, 0, 1);
    f.page->setLighting(2, 4, colorMode, 1, false);
    const QPoint corner = f.ledCorner(2, 5);
    f.drag(corner - QPoint(3, 3), corner + QPoint(3, 3));
    const QStringList leds = f.checkedLeds();
    QCOMPARE(leds.size(), selected);
    QVERIFY(leds.contains(QStringLiteral("2:5")));
    QVERIFY(f.strip(2)->btn_MemorySlot->isChecked());
}

void tst_LightingAreaSelection::pressArea_data()
{
    QTest::addColumn<QPoint>("pressAt");
    QTest::addColumn<bool>("clears");
    QTest::addColumn<bool>("startsBand");
    QTest::newRow("x 300") << QPoint(300, 100) << true << false;
    QTest::newRow("x 301") << QPoint(301, 100) << true << true;
    QTest::newRow("left of the strips") << QPoint(150, 200) << true << false;
    QTest::newRow("y 20") << QPoint(500, 20) << false << false;
    QTest::newRow("y 21") << QPoint(500, 21) << true << true;
    QTest::newRow("y 319") << QPoint(500, 319) << true << true;
    QTest::newRow("y 320") << QPoint(500, 320) << false << false;
}

// A press in the LED rows clears the selection; right of x = 300 it also arms the band.
void tst_LightingAreaSelection::pressArea()
{
    QFETCH(QPoint, pressAt);
    QFETCH(bool, clears);
    QFETCH(bool, startsBand);
    Fixture f;
    f.load(8, 8, 8);
    f.clickSlot(4);
    QTest::mouseClick(f.buttonWithText(QStringLiteral("btn_SelectHorizontal"), QStringLiteral("B")),
                      Qt::LeftButton);
    QVERIFY(!f.checkedLeds().isEmpty());

    f.press(pressAt);
    QCOMPARE(f.checkedLeds().isEmpty(), clears);
    if (clears) {
        for (QPushButton* row : f.buttons(QStringLiteral("btn_SelectHorizontal")))
            QVERIFY(!row->isChecked());
        QVERIFY(!f.strip(4)->btn_MemorySlot->isChecked());
    }
    f.move(QPoint(700, 200));
    QCOMPARE(band(f)->isVisible(), startsBand);
    f.release(QPoint(700, 200));
    QVERIFY(band(f)->isHidden());
}

// While dragging, the band stops at x 300 on the left, at x 900 on the right and at y 20 and
// y 320; it is drawn from where the press was.
void tst_LightingAreaSelection::bandIsHeldInsideTheArea()
{
    Fixture f;
    f.load(8, 8, 8);
    f.press(QPoint(600, 100));
    f.move(QPoint(100, 450));
    QCOMPARE(band(f)->bandRect(), QRect(600, 100, 300 - 600, 320 - 100));
    f.move(QPoint(300, 300));
    QCOMPARE(band(f)->bandRect(), QRect(600, 100, -300, 200));
    f.move(QPoint(912, 2));
    QCOMPARE(band(f)->bandRect(), QRect(600, 100, 900 - 600, 20 - 100));

    // Released below and left of the area: everything between the band's start and the
    // area's lower left corner is selected.
    f.release(QPoint(100, 450));
    QStringList expected;
    for (int slot = 0; slot < 8; ++slot) {
        for (int led = 0; led < 8; ++led) {
            const QPoint corner = f.ledCorner(slot, led);
            if (corner.x() > 300 && corner.x() < 600 && corner.y() > 100 && corner.y() < 320)
                expected << QStringLiteral("%1:%2").arg(slot).arg(led);
        }
    }
    QVERIFY(expected.size() >= 12);
    QCOMPARE(f.checkedLeds(), expected);
}

void tst_LightingAreaSelection::releaseWithoutMoveSelectsNothing()
{
    Fixture f;
    f.load(8, 8, 8);
    const QPoint onLed = f.ledCorner(2, 2) + QPoint(1, 1);
    f.press(onLed);
    f.release(onLed);
    QVERIFY(f.checkedLeds().isEmpty());
    QVERIFY(band(f)->isHidden());
}

QTEST_MAIN(tst_LightingAreaSelection)
#include "tst_LightingAreaSelection.moc"
