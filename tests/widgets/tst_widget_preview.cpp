#include "Widget_Preview.h"

#include <QEvent>
#include <QImage>
#include <QStandardPaths>
#include <QTest>
#include <QThread>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <thread>

namespace {

using Colors = QVector<COLORREF>;
using Positions = QVector<float>;

constexpr COLORREF Red = 0x0000FF;
constexpr COLORREF Green = 0x00FF00;
constexpr COLORREF Blue = 0xFF0000;
constexpr COLORREF Yellow = 0x00FFFF;
constexpr COLORREF Magenta = 0xFF00FF;
const QRgb EmptyBar = qRgb(80, 80, 80);

// Gradients are drawn from a colour table; a pixel on a stop may differ by a step or two.
bool near(QRgb actual, QRgb expected)
{
    return std::abs(qRed(actual) - qRed(expected)) <= 3 &&
           std::abs(qGreen(actual) - qGreen(expected)) <= 3 &&
           std::abs(qBlue(actual) - qBlue(expected)) <= 3;
}

QRgb toRgb(COLORREF color)
{
    return qRgb(int(color & 0xFF), int((color >> 8) & 0xFF), int((color >> 16) & 0xFF));
}

// Counts the paint events that reach a widget, and on which thread they ran.
class PaintCounter : public QObject
{
public:
    std::atomic<int> paints{0};
    std::atomic<bool> offThread{false};

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            ++paints;
            if (QThread::currentThread() != watched->thread())
                offThread = true;
        }
        return false;
    }
};

} // namespace

class TestWidgetPreview : public QObject
{
    Q_OBJECT

private:
    COLORREF frames[Widget_Preview::MaxSlots][Widget_Preview::MaxLeds] = {};

    QList<COLORREF*> frameList(int entries)
    {
        QList<COLORREF*> list;
        for (int i = 0; i < entries; ++i)
            list << frames[i];
        return list;
    }

    void fill(int entry, COLORREF color)
    {
        for (COLORREF& led : frames[entry])
            led = color;
    }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void stops_data()
    {
        QTest::addColumn<int>("ledCount");
        QTest::addColumn<Positions>("positions");
        QTest::addColumn<QVector<int>>("leds");
        QTest::newRow("5 LEDs") << 5 << Positions{0.1f, 0.3f, 0.5f, 0.7f, 0.9f}
                                << QVector<int>{0, 1, 2, 3, 4};
        QTest::newRow("8 LEDs: 3 and 4 go to the ornament")
            << 8 << Positions{0.1f, 0.225f, 0.35f, 0.725f, 0.85f, 0.975f}
            << QVector<int>{0, 1, 2, 5, 6, 7};
        QTest::newRow("1 LED") << 1 << Positions{0.1f} << QVector<int>{0};
        QTest::newRow("no LED count") << 0 << Positions{} << QVector<int>{};
        QTest::newRow("negative count") << -3 << Positions{} << QVector<int>{};
    }

    void stops()
    {
        QFETCH(int, ledCount);
        QFETCH(Positions, positions);
        QFETCH(QVector<int>, leds);
        const COLORREF colors[8] = {0x000001, 0x000202, 0x030003, 0x040400,
                                    0x050005, 0x060600, 0x070007, 0x080800};
        const QGradientStops stops = Widget_Preview::gradientStops(colors, ledCount);
        QCOMPARE(stops.size(), positions.size());
        for (int s = 0; s < stops.size(); ++s) {
            // The positions are computed in single precision and must match exactly.
            QCOMPARE(float(stops.at(s).first), positions.at(s));
            QCOMPARE(stops.at(s).second.rgba(), toRgb(colors[leds.at(s)]));
            QCOMPARE(stops.at(s).second.alpha(), 255);
        }
    }

    void columns_data()
    {
        QTest::addColumn<int>("slotCount");
        QTest::addColumn<QVector<int>>("xs");
        QTest::newRow("8 slots") << 8 << QVector<int>{17, 42, 67, 92, 152, 177, 202, 227};
        QTest::newRow("5 slots") << 5 << QVector<int>{17, 42, 67, 92, 152};
        QTest::newRow("4 slots") << 4 << QVector<int>{87, 112, 137, 162};
        QTest::newRow("2 slots") << 2 << QVector<int>{87, 112};
        QTest::newRow("no slot count") << 0 << QVector<int>{87};
        QTest::newRow("too many") << 9 << QVector<int>{0, 25, 50, 75, 135};
    }

    void columns()
    {
        QFETCH(int, slotCount);
        QFETCH(QVector<int>, xs);
        for (int column = 0; column < xs.size(); ++column)
            QCOMPARE(Widget_Preview::barX(column, slotCount), xs.at(column));
    }

    // What a paint shows: colours of modules in their columns, grey bars for the rest, the
    // ornament for 8-LED modules only.
    void rendering()
    {
        Widget_Preview preview;
        preview.setGeometry(0, 0, 258, 252);
        preview.setSlotNum(8);
        preview.setModuleNum(2);
        const int leds[8] = {5, 8, 8, 5, 5, 5, 5, 5};
        preview.setLEDNum(8, leds);
        const int order[8] = {4, 5, 6, 7, 0, 1, 2, 3};
        preview.setSlotsOrder(8, order);

        const COLORREF fiveLeds[5] = {Red, Green, Blue, Yellow, Magenta};
        for (int k = 0; k < 8; ++k)
            frames[0][k] = k < 5 ? fiveLeds[k] : 0;
        fill(1, Green);
        frames[1][3] = Blue;
        frames[1][4] = Red;
        fill(2, Red); // received, but the slot holds no module
        preview.updatePreviewList(frameList(8));

        const QImage image = preview.grab().toImage();
        const int entry0 = Widget_Preview::barX(4, 8); // reordered into the fifth column
        QCOMPARE(entry0, 152);
        QCOMPARE(image.pixel(entry0 + 5, 10), toRgb(Red));        // above the first stop
        QVERIFY(near(image.pixel(entry0 + 5, 28), toRgb(Red)));   // first stop, 0.1
        QVERIFY(near(image.pixel(entry0 + 5, 75), toRgb(Green))); // second stop, 0.3
        QVERIFY(near(image.pixel(entry0 + 5, 122), toRgb(Blue))); // middle stop, 0.5
        QCOMPARE(image.pixel(entry0 + 5, 235), toRgb(Magenta));   // below the last stop, 0.9

        // Entry 1 (8 LEDs) in the sixth column: LEDs 3 and 4 only in the two diamonds.
        const int entry1 = Widget_Preview::barX(5, 8);
        QCOMPARE(image.pixel(entry1 + 5, 60), toRgb(Green));
        QCOMPARE(image.pixel(entry1 - 3, 113), toRgb(Blue));
        QCOMPARE(image.pixel(entry1 - 3, 137), toRgb(Red));
        QCOMPARE(image.pixel(entry1 + 11, 113), toRgb(Blue));
        // A 5-LED module has no ornament.
        QVERIFY(image.pixel(entry0 - 3, 113) != toRgb(Yellow));
        QCOMPARE(image.pixel(entry0 - 3, 113), image.pixel(entry0 - 3, 20));

        // Entry 2 (8 LEDs, colours received) stands in the seventh column as a plain grey bar:
        // slots beyond the module count show no colours and no ornament.
        for (int column : {0, 1, 2, 3, 6, 7})
            QCOMPARE(image.pixel(Widget_Preview::barX(column, 8) + 5, 122), EmptyBar);
        const int entry2 = Widget_Preview::barX(6, 8);
        QCOMPARE(image.pixel(entry2 - 3, 113), image.pixel(entry2 - 3, 20));
    }

    void unchangedFramesSkipRepaint()
    {
        Widget_Preview preview;
        preview.resize(258, 252);
        preview.setSlotNum(4);
        preview.setModuleNum(4);
        PaintCounter counter;
        preview.installEventFilter(&counter);
        preview.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preview));
        fill(0, Red);
        fill(1, Green);
        preview.updatePreviewList(frameList(4));
        QTRY_VERIFY(counter.paints > 0);
        QTest::qWait(50);

        counter.paints = 0;
        for (int repeat = 0; repeat < 5; ++repeat)
            preview.updatePreviewList(frameList(4));
        QTest::qWait(50);
        QCOMPARE(counter.paints.load(), 0);

        frames[1][6] = Blue; // one LED of one module
        preview.updatePreviewList(frameList(4));
        QTRY_COMPARE(counter.paints.load(), 1);

        // A list that ends early compares only the entries it carries.
        counter.paints = 0;
        preview.updatePreviewList(frameList(1));
        QTest::qWait(50);
        QCOMPARE(counter.paints.load(), 0);
    }

    // The library may deliver frames on its own thread; the paint still happens on ours.
    void updateFromAnotherThread()
    {
        Widget_Preview preview;
        preview.resize(258, 252);
        preview.setSlotNum(8);
        preview.setModuleNum(8);
        PaintCounter counter;
        preview.installEventFilter(&counter);
        preview.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preview));
        QTest::qWait(20);
        counter.paints = 0;

        std::thread producer([&] {
            COLORREF local[8][8];
            for (int frame = 1; frame <= 200; ++frame) {
                QList<COLORREF*> list;
                for (int i = 0; i < 8; ++i) {
                    for (int k = 0; k < 8; ++k)
                        local[i][k] = COLORREF(frame * 8 + k) & 0xFFFFFF;
                    list << local[i];
                }
                preview.updatePreviewList(list);
            }
        });
        // Keep painting while the producer writes.
        for (int spin = 0; spin < 20; ++spin) {
            preview.repaint();
            QTest::qWait(1);
        }
        producer.join();
        QTRY_VERIFY(counter.paints > 20);
        QVERIFY(!counter.offThread);

        // The last frame is what the widget holds: sending it again changes nothing.
        counter.paints = 0;
        QTest::qWait(30);
        COLORREF last[8][8];
        QList<COLORREF*> list;
        for (int i = 0; i < 8; ++i) {
            for (int k = 0; k < 8; ++k)
                last[i][k] = COLORREF(200 * 8 + k);
            list << last[i];
        }
        counter.paints = 0;
        preview.updatePreviewList(list);
        QTest::qWait(50);
        QCOMPARE(counter.paints.load(), 0);
    }
};

QTEST_MAIN(TestWidgetPreview)
#include "tst_widget_preview.moc"
