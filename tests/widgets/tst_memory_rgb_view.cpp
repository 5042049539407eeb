#include "Memory_RGB_View.h"

#include <QImage>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

constexpr int Slot = 3;
constexpr COLORREF Green = 0x00FF00;
constexpr COLORREF Red = 0x0000FF;
constexpr COLORREF Blue = 0xFF0000;

using Colors = QVector<COLORREF>;

} // namespace

class TestMemoryRgbView : public QObject
{
    Q_OBJECT

    std::unique_ptr<Memory_RGB_View> strip;

    // The colour painted at the centre of each LED.
    Colors shownColors() const
    {
        const QImage image = strip->grab().toImage();
        Colors colors;
        for (const QPushButton* led : strip->btn_Led) {
            const QRgb pixel = image.pixel(led->mapTo(strip.get(), led->rect().center()));
            colors << (qRgb(qBlue(pixel), qGreen(pixel), qRed(pixel)) & 0xFFFFFF); // 0x00BBGGRR
        }
        return colors;
    }

    Colors storedColors() const
    {
        return Colors(std::begin(strip->ledColor), std::end(strip->ledColor));
    }

private slots:
    void init()
    {
        strip = std::make_unique<Memory_RGB_View>();
        strip->setSlotNumber(Slot);
        strip->setDisable(true);
        strip->setLEDNumber(8);
        strip->show();
        QVERIFY(QTest::qWaitForWindowExposed(strip.get()));
    }

    void cleanup() { strip.reset(); }

    // In RGB mode a click selects one LED, in single-colour and off mode the whole module; a
    // colour lands on the selection while the slot button is checked, and only then.
    void clickThenColour_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<Colors>("shown");
        QTest::addColumn<Colors>("coloured");
        QTest::addColumn<COLORREF>("single");
        const Colors led2Blue{Green, Green, Blue, Green, Green, Green, Green, Green};
        QTest::newRow("rgb") << 0 << Colors(8, Green) << led2Blue << Red;
        QTest::newRow("single colour") << 1 << Colors(8, Red) << Colors(8, Blue) << Blue;
        QTest::newRow("off") << 2 << Colors(8, 0x646464) << Colors(8, 0x646464) << Red;
    }

    void clickThenColour()
    {
        QFETCH(int, mode);
        QFETCH(Colors, shown);
        QFETCH(Colors, coloured);
        QFETCH(COLORREF, single);
        strip->slot_ChangeColorMode(Slot, mode);
        QSignalSpy selected(strip.get(), &Memory_RGB_View::SelectMemSlot);
        QTest::mouseClick(strip->btn_Led[2], Qt::LeftButton);
        for (int i = 0; i < Memory_RGB_View::LedCount; ++i)
            QCOMPARE(strip->btn_Led[i]->isChecked(), mode != 0 || i == 2);
        QVERIFY(strip->btn_MemorySlot->isChecked());
        QCOMPARE(shownColors(), shown);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.at(0).at(0).toInt(), Slot);

        strip->pressRGB(Blue);
        const Colors stored = storedColors();
        QCOMPARE(stored, mode == 0 ? coloured : Colors(8, Green));
        QCOMPARE(strip->singleColor, single);
        QCOMPARE(shownColors(), coloured);

        // A second click deselects the module; a colour then changes nothing, not even on a
        // checked LED.
        QTest::mouseClick(strip->btn_Led[2], Qt::LeftButton);
        for (const QPushButton* led : strip->btn_Led)
            QVERIFY(!led->isChecked());
        QVERIFY(!strip->btn_MemorySlot->isChecked());
        QCOMPARE(selected.count(), 2);
        strip->btn_Led[1]->setChecked(true);
        strip->pressRGB(0x123456);
        QCOMPARE(storedColors(), stored);
        QCOMPARE(strip->singleColor, single);
        QCOMPARE(shownColors(), coloured);
    }

    void defaults_data()
    {
        QTest::addColumn<int>("ledCount");
        QTest::addColumn<Colors>("table");
        QTest::newRow("5 visible LEDs") << 5 << Colors{0x0000FF, 0x00FFD8, 0x3BFF00, 0xFF6200,
                                                       0xFF00A7, 0x0000FF, 0x00FFD8, 0x3BFF00};
        QTest::newRow("8 visible LEDs") << 8 << Colors{0x0000FF, 0x007FFF, 0x00FFFF, 0x00FF00,
                                                       0x7FFF00, 0xFFFF00, 0xFF0000, 0xFF007F};
    }

    void defaults()
    {
        QFETCH(int, ledCount);
        QFETCH(Colors, table);
        strip->setLEDNumber(ledCount);
        strip->setSingleRGB(Blue, 0.5f);
        for (int i = 0; i < Memory_RGB_View::LedCount; ++i)
            strip->setRGB(i, Blue, 0.5f);

        strip->slot_Default();
        QCOMPARE(storedColors(), table);
        for (float bright : strip->ledBright)
            QCOMPARE(bright, 1.0f);
        QCOMPARE(strip->singleColor, Red);
        QCOMPARE(strip->singleBright, 1.0f);
    }
};

QTEST_MAIN(TestMemoryRgbView)
#include "tst_memory_rgb_view.moc"
