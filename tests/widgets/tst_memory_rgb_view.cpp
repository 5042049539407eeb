#include "AppGlobals.h"
#include "Memory_RGB_View.h"

#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QWindow>

#include <memory>

namespace {

constexpr int Slot = 3;
constexpr COLORREF Green = 0x00FF00;
constexpr COLORREF Red = 0x0000FF;
constexpr COLORREF Blue = 0xFF0000;
constexpr COLORREF Grey = 0x646464;

using Colors = QVector<COLORREF>;

// The colour that an LED button's style sheet paints it with.
COLORREF shownColor(const QPushButton* led)
{
    static const QRegularExpression rgb(
        QStringLiteral("background-color:rgb\\((\\d+),(\\d+),(\\d+)\\)"));
    const QRegularExpressionMatch match = rgb.match(led->styleSheet());
    if (!match.hasMatch())
        return 0xFFFFFFFF;
    return match.captured(1).toUInt() | match.captured(2).toUInt() << 8 |
           match.captured(3).toUInt() << 16;
}

Colors shownColors(const Memory_RGB_View* strip)
{
    Colors colors;
    for (const QPushButton* led : strip->btn_Led)
        colors << shownColor(led);
    return colors;
}

Colors storedColors(const Memory_RGB_View* strip)
{
    return Colors(std::begin(strip->ledColor), std::end(strip->ledColor));
}

QVector<bool> checkedLeds(const Memory_RGB_View* strip)
{
    QVector<bool> checked;
    for (const QPushButton* led : strip->btn_Led)
        checked << led->isChecked();
    return checked;
}

QVector<bool> mask(std::initializer_list<int> indexes)
{
    QVector<bool> bits(Memory_RGB_View::LedCount, false);
    for (int i : indexes)
        bits[i] = true;
    return bits;
}

COLORREF toColorRef(QRgb pixel)
{
    return COLORREF(qRed(pixel)) | COLORREF(qGreen(pixel)) << 8 | COLORREF(qBlue(pixel)) << 16;
}

const Colors FiveTable = {0x0000FF, 0x00FFD8, 0x3BFF00, 0xFF6200,
                          0xFF00A7, 0x0000FF, 0x00FFD8, 0x3BFF00};
const Colors EightTable = {0x0000FF, 0x007FFF, 0x00FFFF, 0x00FF00,
                           0x7FFF00, 0xFFFF00, 0xFF0000, 0xFF007F};

} // namespace

class TestMemoryRgbView : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QWidget> host;
    Memory_RGB_View* strip = nullptr;

    // A strip of an available module, shown in a window so that clicks are routed by position.
    void makeStrip(int ledCount)
    {
        host = std::make_unique<QWidget>();
        host->resize(60, 320);
        strip = new Memory_RGB_View(host.get());
        strip->move(10, 10);
        strip->setSlotNumber(Slot);
        strip->setDisable(true);
        strip->setLEDNumber(ledCount);
        host->show();
        QVERIFY(QTest::qWaitForWindowExposed(host.get()));
    }

    // A real click at a point of the strip, delivered to whatever widget lies on top there.
    void clickStripAt(const QPoint& point)
    {
        const QPoint inWindow = strip->mapTo(host.get(), point);
        QTest::mouseClick(host->windowHandle(), Qt::LeftButton, Qt::NoModifier, inWindow);
    }

    void clickLed(int index) { clickStripAt(strip->btn_Led[index]->geometry().center()); }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { makeStrip(8); }
    void cleanup() { host.reset(); }

    void ledStyleRule()
    {
        QCOMPARE(Memory_RGB_View::ledStyleSheet(0x3BFF10),
                 QStringLiteral("QPushButton{background-color:rgb(16,255,59); "
                                "border-radius:9px;margin:6 6 6 6;}QPushButton:checked{"
                                "background-color:rgb(16,255,59); border-radius:12px; "
                                "margin: 3 3 3 3;}"));
    }

    void construction()
    {
        Memory_RGB_View fresh;
        QCOMPARE(fresh.geometry(), QRect(0, 0, 30, 295));
        QCOMPARE(fresh.slotNumber, -1);
        QCOMPARE(fresh.slotPosition, -1);
        QCOMPARE(fresh.singleColor, Red);
        QCOMPARE(fresh.singleBright, 1.0f);
        QCOMPARE(fresh.colorMode, 0);
        QVERIFY(!fresh.available);
        QVERIFY(fresh.btn_MemorySlot->isCheckable());
        QCOMPARE(fresh.btn_MemorySlot->objectName(), QStringLiteral("btn_MemorySlot"));
        for (int i = 0; i < Memory_RGB_View::LedCount; ++i) {
            QCOMPARE(fresh.ledColor[i], Green);
            QCOMPARE(fresh.ledBright[i], 1.0f);
            QCOMPARE(fresh.btn_Led[i]->objectName(), QStringLiteral("btn_Led"));
            QCOMPARE(fresh.btn_Led[i]->geometry(), QRect(0, 30 + 52 * i, 30, 30));
            QCOMPARE(shownColor(fresh.btn_Led[i]), Green);
        }
        fresh.setSlotNumber(6);
        QCOMPARE(fresh.slotNumber, 6);
        QCOMPARE(fresh.slotPosition, 6);
    }

    void ledLayout_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("pitch");
        QTest::addColumn<int>("visible");
        QTest::newRow("five") << 5 << 52 << 5;
        QTest::newRow("eight") << 8 << 30 << 8;
    }

    void ledLayout()
    {
        QFETCH(int, count);
        QFETCH(int, pitch);
        QFETCH(int, visible);
        strip->setLEDNumber(count);
        for (int i = 0; i < Memory_RGB_View::LedCount; ++i) {
            QCOMPARE(strip->btn_Led[i]->isHidden(), i >= visible);
            if (i < visible)
                QCOMPARE(strip->btn_Led[i]->geometry(), QRect(0, 30 + pitch * i, 30, 30));
        }
        // Any other count leaves the layout as it is.
        strip->setLEDNumber(6);
        for (int i = 0; i < Memory_RGB_View::LedCount; ++i)
            QCOMPARE(strip->btn_Led[i]->isHidden(), i >= visible);
    }

    void availability()
    {
        strip->btn_MemorySlot->setChecked(true);
        strip->btn_Led[1]->setChecked(true);
        strip->setDisable(false);
        QVERIFY(!strip->available);
        QVERIFY(!strip->btn_MemorySlot->isCheckable());
        QVERIFY(!strip->btn_MemorySlot->isChecked());
        for (const QPushButton* led : strip->btn_Led) {
            QVERIFY(led->isHidden());
            QVERIFY(!led->isCheckable());
        }
        // A click on the empty slot selects nothing.
        clickStripAt(QPoint(15, 15));
        QVERIFY(!strip->btn_MemorySlot->isChecked());

        strip->setDisable(true);
        strip->setLEDNumber(5);
        QVERIFY(strip->available);
        QVERIFY(strip->btn_MemorySlot->isCheckable());
        for (int i = 0; i < Memory_RGB_View::LedCount; ++i) {
            QCOMPARE(strip->btn_Led[i]->isHidden(), i >= 5);
            QVERIFY(strip->btn_Led[i]->isCheckable());
        }
    }

    void ledClick_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QVector<bool>>("checked");
        QTest::addColumn<Colors>("shown");
        QTest::newRow("rgb: one LED") << 0 << mask({2}) << Colors(8, Green);
        QTest::newRow("single: whole module")
            << 1 << mask({0, 1, 2, 3, 4, 5, 6, 7}) << Colors(8, Red);
        QTest::newRow("off: whole module, grey")
            << 2 << mask({0, 1, 2, 3, 4, 5, 6, 7}) << Colors(8, Grey);
        QTest::newRow("random: whole module, grey")
            << 3 << mask({0, 1, 2, 3, 4, 5, 6, 7}) << Colors(8, Grey);
    }

    void ledClick()
    {
        QFETCH(int, mode);
        QFETCH(QVector<bool>, checked);
        QFETCH(Colors, shown);
        strip->slot_ChangeColorMode(Slot, mode);
        QSignalSpy selected(strip, &Memory_RGB_View::SelectMemSlot);

        clickLed(2);
        QCOMPARE(checkedLeds(strip), checked);
        QVERIFY(strip->btn_MemorySlot->isChecked());
        QCOMPARE(shownColors(strip), shown);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.at(0).at(0).toInt(), Slot);

        // Clicking it again deselects the module.
        clickLed(2);
        QCOMPARE(checkedLeds(strip), mask({}));
        QVERIFY(!strip->btn_MemorySlot->isChecked());
        QCOMPARE(selected.count(), 2);
    }

    void rgbModeSelection()
    {
        QSignalSpy selected(strip, &Memory_RGB_View::SelectMemSlot);
        clickLed(1);
        clickLed(5);
        QCOMPARE(checkedLeds(strip), mask({1, 5}));
        clickLed(1);
        QVERIFY(strip->btn_MemorySlot->isChecked());
        clickLed(5);
        QVERIFY(!strip->btn_MemorySlot->isChecked());
        QCOMPARE(selected.count(), 4);
        // Called without a sender (as the area selection does) it only recomputes the slot.
        strip->btn_Led[7]->setChecked(true);
        strip->slot_SelectLED();
        QVERIFY(strip->btn_MemorySlot->isChecked());
        QCOMPARE(checkedLeds(strip), mask({7}));
        QCOMPARE(selected.count(), 5);
    }

    void slotButton()
    {
        SelectMemoryIndex = 0;
        QSignalSpy selected(strip, &Memory_RGB_View::SelectMemSlot);
        strip->btn_Led[4]->setChecked(true);
        clickStripAt(QPoint(15, 15));
        QCOMPARE(SelectMemoryIndex, Slot);
        QVERIFY(strip->btn_MemorySlot->isChecked());
        QCOMPARE(checkedLeds(strip), mask({0, 1, 2, 3, 4, 5, 6, 7}));
        clickStripAt(QPoint(15, 15));
        QCOMPARE(checkedLeds(strip), mask({}));
        QCOMPARE(selected.count(), 2);
        QCOMPARE(selected.at(1).at(0).toInt(), Slot);
    }

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
        QTest::newRow("slot unchecked") << 0 << false << greens << Red << greens;
        QTest::newRow("rgb") << 0 << true << twoBlue << Red << twoBlue;
        QTest::newRow("single") << 1 << true << greens << Blue << singleShown;
        QTest::newRow("off") << 2 << true << greens << Red << Colors(8, Grey);
        QTest::newRow("random") << 3 << true << greens << Red << Colors(8, Grey);
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
        QCOMPARE(storedColors(strip), stored);
        QCOMPARE(strip->singleColor, single);
        QCOMPARE(shownColors(strip), shown);
    }

    void brightness()
    {
        strip->btn_MemorySlot->setChecked(true);
        strip->btn_Led[3]->setChecked(true);
        strip->slot_ChangeBright(0.3f);
        QCOMPARE(strip->ledBright[3], 0.3f);
        QCOMPARE(strip->ledBright[2], 1.0f);
        QCOMPARE(strip->singleBright, 1.0f);
        QCOMPARE(shownColors(strip), Colors(8, Green));

        strip->slot_ChangeColorMode(Slot, 1);
        strip->slot_ChangeBright(0.6f);
        QCOMPARE(strip->singleBright, 0.6f);
        QCOMPARE(strip->ledBright[3], 0.3f);

        strip->btn_MemorySlot->setChecked(false);
        strip->slot_ChangeBright(0.1f);
        QCOMPARE(strip->singleBright, 0.6f);

        strip->setRGB(5, Blue, 0.2f);
        strip->setSingleRGB(Blue, 0.4f);
        QCOMPARE(strip->ledColor[5], Blue);
        QCOMPARE(strip->ledBright[5], 0.2f);
        QCOMPARE(strip->singleBright, 0.4f);
        // Stored only: the buttons still show the module colour of before.
        QCOMPARE(shownColors(strip), Colors(8, Red));
    }

    void colorModeChange()
    {
        strip->setRGB(0, Blue, 1.0f);
        // Another slot's mode is not ours.
        strip->slot_ChangeColorMode(Slot + 1, 1);
        QCOMPARE(strip->colorMode, 0);

        strip->slot_ChangeColorMode(Slot, 0);
        Colors rgbShown(8, Green);
        rgbShown[0] = Blue;
        QCOMPARE(shownColors(strip), rgbShown);

        // Single colour selects the whole module only while the slot is selected.
        strip->btn_Led[6]->setChecked(true);
        strip->slot_ChangeColorMode(Slot, 1);
        QCOMPARE(checkedLeds(strip), mask({6}));
        QCOMPARE(shownColors(strip), Colors(8, Red));
        strip->btn_MemorySlot->setChecked(true);
        strip->slot_ChangeColorMode(Slot, 1);
        QCOMPARE(checkedLeds(strip), mask({0, 1, 2, 3, 4, 5, 6, 7}));

        // Off follows the slot button both ways.
        strip->btn_MemorySlot->setChecked(false);
        strip->slot_ChangeColorMode(Slot, 2);
        QCOMPARE(checkedLeds(strip), mask({}));
        QCOMPARE(shownColors(strip), Colors(8, Grey));

        // Back to RGB: the stored colours return and the checked states stay.
        strip->btn_Led[2]->setChecked(true);
        strip->slot_ChangeColorMode(Slot, 0);
        QCOMPARE(shownColors(strip), rgbShown);
        QCOMPARE(checkedLeds(strip), mask({2}));

        // Unknown modes are stored and otherwise ignored.
        strip->slot_ChangeColorMode(Slot, 9);
        QCOMPARE(strip->colorMode, 9);
        QCOMPARE(shownColors(strip), rgbShown);
    }

    void defaults_data()
    {
        QTest::addColumn<int>("ledCount");
        QTest::addColumn<Colors>("table");
        QTest::newRow("5 visible LEDs") << 5 << FiveTable;
        QTest::newRow("8 visible LEDs") << 8 << EightTable;
        QTest::newRow("no visible LED") << 0 << FiveTable;
    }

    void defaults()
    {
        QFETCH(int, ledCount);
        QFETCH(Colors, table);
        if (ledCount == 0)
            strip->setDisable(false);
        else
            strip->setLEDNumber(ledCount);
        strip->setSingleRGB(Blue, 0.5f);
        for (int i = 0; i < Memory_RGB_View::LedCount; ++i)
            strip->setRGB(i, Blue, 0.5f);

        strip->slot_Default();
        QCOMPARE(storedColors(strip), table);
        for (float bright : strip->ledBright)
            QCOMPARE(bright, 1.0f);
        QCOMPARE(strip->singleColor, Red);
        QCOMPARE(strip->singleBright, 1.0f);
    }

    void defaultsRepaint()
    {
        for (int i = 0; i < Memory_RGB_View::LedCount; ++i)
            strip->setRGB(i, Blue, 1.0f);
        strip->slot_ChangeColorMode(Slot, 0);
        // Not selected: the values are reset but the look stays.
        strip->slot_Default();
        QCOMPARE(shownColors(strip), Colors(8, Blue));
        strip->btn_MemorySlot->setChecked(true);
        strip->slot_Default();
        QCOMPARE(shownColors(strip), EightTable);

        strip->setSingleRGB(Blue, 1.0f);
        strip->slot_ChangeColorMode(Slot, 1);
        QCOMPARE(shownColors(strip), Colors(8, Blue));
        strip->slot_Default();
        QCOMPARE(shownColors(strip), Colors(8, Red));
    }

    void frames_data()
    {
        QTest::addColumn<bool>("selected");
        QTest::addColumn<bool>("edited");
        QTest::addColumn<QColor>("frame");
        QTest::newRow("plain") << false << false << QColor();
        QTest::newRow("selected") << true << false << QColor(255, 0, 0);
        QTest::newRow("edited") << false << true << QColor(32, 158, 199);
        QTest::newRow("selected wins") << true << true << QColor(255, 0, 0);
    }

    void frames()
    {
        QFETCH(bool, selected);
        QFETCH(bool, edited);
        QFETCH(QColor, frame);
        strip->slot_Selected(Slot, selected);
        strip->slot_Selected(Slot + 2, !selected); // another strip's mark
        strip->setEdited(edited);
        QCOMPARE(strip->isSelected(), selected);
        QCOMPARE(strip->isEdited(), edited);

        const QImage image = strip->grab().toImage();
        const QColor edge = image.pixelColor(1, 150);
        if (frame.isValid())
            QCOMPARE(edge.rgb(), frame.rgb());
        else
            QVERIFY(edge != QColor(255, 0, 0) && edge != QColor(32, 158, 199));
        // The grey line that joins the LEDs.
        QCOMPARE(image.pixelColor(15, 60).rgb(), QColor(82, 82, 82).rgb());
    }

    void editedOverlay()
    {
        strip->setEdited(true);
        const QLabel* overlay = strip->findChild<QLabel*>(QStringLiteral("label_BK"));
        QVERIFY(overlay);
        QVERIFY(overlay->isVisible());
        QCOMPARE(overlay->geometry(), QRect(0, 0, 30, 295));
        QSignalSpy selected(strip, &Memory_RGB_View::SelectMemSlot);

        clickStripAt(QPoint(15, 15));
        clickLed(3);
        QVERIFY(!strip->btn_MemorySlot->isChecked());
        QCOMPARE(checkedLeds(strip), mask({}));
        QCOMPARE(selected.count(), 0);
        for (const QPushButton* led : strip->btn_Led)
            QVERIFY(!led->isEnabled());

        strip->setEdited(false);
        QVERIFY(!overlay->isVisible());
        clickLed(3);
        QCOMPARE(checkedLeds(strip), mask({3}));
        QCOMPARE(selected.count(), 1);
    }

    // Each LED reads as a round disc of its colour: 18 pixels across, 24 when checked.
    void ledsAreDiscs()
    {
        strip->setRGB(0, Blue, 1.0f);
        strip->slot_ChangeColorMode(Slot, 0);
        strip->btn_MemorySlot->setChecked(true);
        strip->btn_Led[1]->setChecked(true);
        const QImage image = strip->grab().toImage();
        const auto colorAt = [&](int led, int dx, int dy) {
            const QPoint centre = strip->btn_Led[led]->geometry().center();
            return toColorRef(image.pixel(centre.x() + dx, centre.y() + dy));
        };
        QCOMPARE(colorAt(0, 0, 0), Blue);
        QCOMPARE(colorAt(0, 6, 0), Blue);
        QCOMPARE(colorAt(0, 0, -6), Blue);
        QVERIFY(colorAt(0, 7, 7) != Blue);  // outside the round edge
        QVERIFY(colorAt(0, 11, 0) != Blue); // beyond the unchecked radius
        QCOMPARE(colorAt(1, 10, 0), Green); // a checked LED is larger
        QVERIFY(colorAt(1, 10, 10) != Green);
    }
};

QTEST_MAIN(TestMemoryRgbView)
#include "tst_memory_rgb_view.moc"
