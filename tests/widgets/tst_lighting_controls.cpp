// The lighting page's own widgets: a module's LED strip, the light-mode list and the colour
// wheels.
#include "Memory_RGB_View.h"
#include "RGB_Palette.h"
#include "Widget_Light_Mode_View.h"
#include "Widget_Select_Palette.h"

#include <QImage>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <memory>

namespace {

constexpr int Slot = 3;
constexpr COLORREF Green = 0x00FF00;
constexpr COLORREF Red = 0x0000FF;
constexpr COLORREF Blue = 0xFF0000;

using Colors = QVector<COLORREF>;

COLORREF colorRef(QRgb pixel)
{
    return qRgb(qBlue(pixel), qGreen(pixel), qRed(pixel)) & 0xFFFFFF;
}

// The colour painted at the centre of each LED.
Colors shownColors(Memory_RGB_View& strip)
{
    const QImage image = strip.grab().toImage();
    Colors colors;
    for (const QPushButton* led : strip.btn_Led)
        colors << colorRef(image.pixel(led->mapTo(&strip, led->rect().center())));
    return colors;
}

Colors storedColors(const Memory_RGB_View& strip)
{
    return Colors(std::begin(strip.ledColor), std::end(strip.ledColor));
}

} // namespace

class TestLightingControls : public QObject
{
    Q_OBJECT

private slots:
    // In RGB mode a click selects one LED, in single colour the whole module; a colour lands
    // on the selection while the slot button is checked, and only then. (Effect modes show the
    // LEDs grey: tst_accessibility reads that in their names.)
    void stripClickThenColour()
    {
        for (const int mode : {0, 1}) {
            Memory_RGB_View strip;
            strip.setSlotNumber(Slot);
            strip.setDisable(true);
            strip.setLEDNumber(8);
            strip.show();
            QVERIFY(QTest::qWaitForWindowExposed(&strip));
            strip.slot_ChangeColorMode(Slot, mode);
            QSignalSpy selected(&strip, &Memory_RGB_View::SelectMemSlot);
            QTest::mouseClick(strip.btn_Led[2], Qt::LeftButton);
            for (int i = 0; i < Memory_RGB_View::LedCount; ++i)
                QCOMPARE(strip.btn_Led[i]->isChecked(), mode == 1 || i == 2);
            QVERIFY(strip.btn_MemorySlot->isChecked());
            QCOMPARE(shownColors(strip), Colors(8, mode == 1 ? Red : Green));
            QCOMPARE(selected.count(), 1);
            QCOMPARE(selected.at(0).at(0).toInt(), Slot);

            strip.pressRGB(Blue);
            Colors coloured(8, mode == 1 ? Blue : Green);
            coloured[2] = Blue;
            QCOMPARE(storedColors(strip), mode == 1 ? Colors(8, Green) : coloured);
            QCOMPARE(strip.singleColor, mode == 1 ? Blue : Red);
            QCOMPARE(shownColors(strip), coloured);

            // A second click deselects the module; a colour then changes nothing, not even on a
            // checked LED.
            QTest::mouseClick(strip.btn_Led[2], Qt::LeftButton);
            QVERIFY(!strip.btn_MemorySlot->isChecked() && !strip.btn_Led[2]->isChecked());
            QCOMPARE(selected.count(), 2);
            strip.btn_Led[1]->setChecked(true);
            strip.pressRGB(0x123456);
            QCOMPARE(shownColors(strip), coloured);
            QCOMPARE(strip.singleColor, mode == 1 ? Blue : Red);
        }
    }

    // By keyboard the highlight walks the columns of five and stops at the ends, an unlisted
    // mode falls back to the first, and hiding forgets the highlight.
    void lightModeList()
    {
        QMap<int, QString> names;
        for (int value = 0; value <= 37; ++value)
            names.insert(value, QStringLiteral("mode %1").arg(value));
        Widget_Light_Mode_View list(600, 220);
        list.setLightModeMap(names);
        list.show();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        QTRY_VERIFY(list.hasFocus());
        // Offered in order: 0 1 2 3 4 | 5 6 8 9 10 | 14 15 17 18 19 | ...
        QCOMPARE(list.highlighted(), -1);
        const std::pair<Qt::Key, int> walk[] = {
            {Qt::Key_Down, 0}, {Qt::Key_Up, 0},   {Qt::Key_Right, 5},
            {Qt::Key_Down, 6}, {Qt::Key_Down, 8}, {Qt::Key_Left, 2},
            {Qt::Key_Left, 2}, {Qt::Key_End, 37}, {Qt::Key_Right, 37}};
        for (const auto& [key, mode] : walk) {
            QTest::keyClick(&list, key);
            QCOMPARE(list.highlighted(), mode);
        }
        list.highlight(7);
        QCOMPARE(list.highlighted(), 0);
        list.hide();
        QCOMPARE(list.highlighted(), -1);
    }

    // Both wheels accept a click up to 88 px from the centre and give the picture's own pixel
    // there (the 176 px picture's last column at the rim); the pop-up shows the picture 12 px
    // in from its corner.
    void wheelPicks()
    {
        const QImage picture(QStringLiteral(":/QXRGBMemory/Images/palette.png"));
        const QPoint refused(-1, -1);
        const struct {
            bool popup;
            QPoint click;
            QPoint sample;
        } cases[] = {{false, {88, 88}, {88, 88}},
                     {false, {176, 101}, {175, 101}},
                     {false, {177, 88}, refused},
                     {true, {12, 100}, {0, 88}},
                     {true, {189, 100}, refused}};
        for (const auto& c : cases) {
            const std::unique_ptr<QWidget> wheel(
                c.popup ? static_cast<QWidget*>(new Widget_Select_Palette) : new RGB_Palette);
            QSignalSpy picked(wheel.get(), SIGNAL(pressRGB(COLORREF)));
            QTest::mouseClick(wheel.get(), Qt::LeftButton, Qt::NoModifier, c.click);
            QCOMPARE(picked.count(), c.sample == refused ? 0 : 1);
            if (c.sample != refused)
                QCOMPARE(picked.at(0).at(0).value<COLORREF>(), colorRef(picture.pixel(c.sample)));
        }
    }
};

QTEST_MAIN(TestLightingControls)
#include "tst_lighting_controls.moc"
