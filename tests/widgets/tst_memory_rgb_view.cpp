#include "Memory_RGB_View.h"

#include <QImage>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <memory>

namespace {

constexpr int Slot = 3;
constexpr COLORREF Green = 0x00FF00;
constexpr COLORREF Red = 0x0000FF;
constexpr COLORREF Blue = 0xFF0000;
constexpr COLORREF Grey = 0x646464;

using Colors = QVector<COLORREF>;

} // namespace

class TestMemoryRgbView : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Memory_RGB_View> strip;

    // The colour painted at the centre of each LED.
    Colors shownColors() const
    {
        const QImage image = strip->grab().toImage();
        Colors colors;
        for (const QPushButton* led : strip->btn_Led) {
            const QRgb pixel = image.pixel(led->mapTo(strip.get(), led->rect().center()));
            colors << (COLORREF(qRed(pixel)) | COLORREF(qGreen(pixel)) << 8 |
                       COLORREF(qBlue(pixel)) << 16);
        }
        return colors;
    }

    Colors storedColors() const
    {
        return Colors(std::begin(strip->ledColor), std::end(strip->ledColor));
    }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

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

    // In RGB mode a click selects one LED; in single-colour and off mode the whole module.
    void ledClick_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("whole");
        QTest::addColumn<Colors>("shown");
        QTest::newRow("rgb") << 0 << false << Colors(8, Green);
        QTest::newRow("single colour") << 1 << true << Colors(8, Red);
        QTest::newRow("off") << 2 << true << Colors(8, Grey);
    }

    void ledClick()
    {
        QFETCH(int, mode);
        QFETCH(bool, whole);
        QFETCH(Colors, shown);
        strip->slot_ChangeColorMode(Slot, mode);
        QSignalSpy selected(strip.get(), &Memory_RGB_View::SelectMemSlot);

        QTest::mouseClick(strip->btn_Led[2], Qt::LeftButton);
        for (int i = 0; i < Memory_RGB_View::LedCount; ++i)
            QCOMPARE(strip->btn_Led[i]->isChecked(), whole || i == 2);
        QVERIFY(strip->btn_MemorySlot->isChecked());
        QCOMPARE(shownColors(), shown);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.at(0).at(0).toInt(), Slot);

        // A second click deselects the module.
        QTest::mouseClick(strip->btn_Led[2], Qt::LeftButton);
        for (const QPushButton* led : strip->btn_Led)
            QVERIFY(!led->isChecked());
        QVERIFY(!strip->btn_MemorySlot->isChecked());
        QCOMPARE(selected.count(), 2);
    }

    // LEDs 1 and 2 are checked; the slot button decides whether the colour lands.
    void pressColor_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("slotChecked");
        QTest::addColumn<Colors>("stored");
        QTest::addColumn<COLORREF>("single");
        QTest::addColumn<Colors>("shown");
        const Colors greens(8, Green);
        Colors twoBlue = greens;
        twoBlue[1] = twoBlue[2] = Blue;
        Colors singleShown(8, Red);
        singleShown[1] = singleShown[2] = Blue;
        QTest::newRow("rgb, slot unchecked") << 0 << false << greens << Red << greens;
        QTest::newRow("single, slot unchecked") << 1 << false << greens << Red << Colors(8, Red);
        QTest::newRow("rgb") << 0 << true << twoBlue << Red << twoBlue;
        QTest::newRow("single") << 1 << true << greens << Blue << singleShown;
    }

    void pressColor()
    {
        QFETCH(int, mode);
        QFETCH(bool, slotChecked);
        QFETCH(Colors, stored);
        QFETCH(COLORREF, single);
        QFETCH(Colors, shown);
        strip->slot_ChangeColorMode(Slot, mode);
        strip->btn_MemorySlot->setChecked(slotChecked);
        for (int i = 0; i < Memory_RGB_View::LedCount; ++i)
            strip->btn_Led[i]->setChecked(i == 1 || i == 2);

        strip->pressRGB(Blue);
        QCOMPARE(storedColors(), stored);
        QCOMPARE(strip->singleColor, single);
        QCOMPARE(shownColors(), shown);
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
