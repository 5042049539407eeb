#include "Widget_Preview.h"

#include <QImage>
#include <QPaintEvent>
#include <QScreen>
#include <QTest>

namespace {

// Records what each paint event asked a widget to redraw.
template <class Base> struct Recorded : Base {
    using Base::Base;
    int paints = 0;
    QRegion painted;
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        painted += event->region();
        Base::paintEvent(event);
    }
};

qint64 area(const QRegion& region)
{
    qint64 pixels = 0;
    for (const QRect& r : region)
        pixels += qint64(r.width()) * r.height();
    return pixels;
}

QImage rgb32(const QImage& image)
{
    return image.convertToFormat(QImage::Format_RGB32);
}

// The preview see-through over a picture, as the lighting page holds it: eight slots, two
// empty, modules of 8 and 5 LEDs in a shuffled order.
struct Scene {
    Recorded<QWidget> page;
    Recorded<Widget_Preview>* preview = new Recorded<Widget_Preview>(&page);
    COLORREF colors[8][Widget_Preview::MaxLeds] = {};

    Scene()
    {
        page.resize(300, 280);
        QImage shade(300, 280, QImage::Format_RGB32);
        for (int y = 0; y < shade.height(); ++y)
            for (int x = 0; x < shade.width(); ++x)
                shade.setPixel(x, y, qRgb(10 + x / 4, 40 + y / 8, 70 - (x + y) / 10));
        QPalette palette = page.palette();
        palette.setBrush(QPalette::Window, QPixmap::fromImage(shade));
        page.setPalette(palette);
        page.setAutoFillBackground(true);
        preview->setGeometry(21, 14, 258, 252);
        preview->setSlotNum(8);
        preview->setModuleNum(6);
        const int leds[8] = {8, 5, 8, 8, 5, 8, 0, 0};
        preview->setLEDNum(8, leds);
        const int order[8] = {2, 0, 1, 3, 7, 4, 6, 5};
        preview->setSlotsOrder(8, order);
    }

    void send()
    {
        QList<COLORREF*> list;
        for (auto& module : colors)
            list << module;
        preview->updatePreviewList(list);
    }
    void fill(int entry, int step)
    {
        for (int k = 0; k < Widget_Preview::MaxLeds; ++k)
            colors[entry][k] = COLORREF((37 * (entry + step) + 11 * k) % 256) |
                               COLORREF((91 * k + 13 * entry + 7 * step) % 256) << 8 |
                               COLORREF((53 * entry * k + 29 * step) % 256) << 16;
    }
    // Lets the queued repaints happen and forgets what they painted.
    void settle()
    {
        QTest::qWait(20);
        QCoreApplication::processEvents();
        page.paints = preview->paints = 0;
        page.painted = preview->painted = QRegion();
    }
};

} // namespace

class TestWidgetPreview : public QObject
{
    Q_OBJECT

private slots:
    // The picture is pinned down by a reference taken from the plain drawing (every part
    // stroked and filled on every paint): the cached parts must not change a pixel.
    void matchesReferencePicture()
    {
        Scene scene;
        for (int entry = 0; entry < 8; ++entry)
            scene.fill(entry, 0);
        scene.send();
        const QImage reference(
            QStringLiteral(NX_SOURCE_DIR "/tests/widgets/data/preview_page.png"));
        QVERIFY(!reference.isNull());
        QCOMPARE(rgb32(scene.page.grab().toImage()), rgb32(reference));
    }

    // A frame redraws the changed bars with their outlines and ornaments, and the page under
    // them, and nothing else; what partial frames leave on screen equals a full repaint.
    void framesRepaintOnlyChangedBars()
    {
        Scene scene;
        scene.page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&scene.page));
        scene.colors[0][0] = 0x102030;
        scene.send();
        QTRY_VERIFY(scene.preview->paints > 0);
        scene.settle();

        // A 5-LED module (entry 1, column 0): its bar, 10 x 240, and the outline around it.
        scene.colors[1][2] = 0x00FF00;
        scene.send();
        QTRY_COMPARE(scene.preview->paints, 1);
        const int x1 = Widget_Preview::barX(0, 8);
        QVERIFY(scene.preview->painted.boundingRect().contains(QRect(x1 - 1, 4, 12, 242)));
        QVERIFY(area(scene.preview->painted) <= 16 * 246);
        QCOMPARE(scene.page.painted.translated(-scene.preview->pos()), scene.preview->painted);
        scene.settle();

        // An 8-LED module adds its ornament's rows, not the column's full height.
        scene.colors[2][3] = 0x0000FF;
        scene.send();
        QTRY_COMPARE(scene.preview->paints, 1);
        QVERIFY(area(scene.preview->painted) <= 16 * 246 + 31 * 60);
        scene.settle();

        // Colours for empty slots show nowhere, and unchanged frames repaint nothing.
        scene.colors[6][0] = 0xFFFFFF;
        scene.colors[7][5] = 0x00FFFF;
        scene.send();
        scene.send();
        QTest::qWait(50);
        QCOMPARE(scene.preview->paints + scene.page.paints, 0);

        // Bars changing one at a time, ornaments overlapping their neighbours' areas.
        for (int step = 1; step <= 12; ++step) {
            scene.fill((step * 5) % 8, step);
            scene.send();
            QCoreApplication::processEvents();
        }
        QTest::qWait(50);
        QCoreApplication::processEvents();
        QScreen* screen = scene.page.windowHandle()->screen();
        QCOMPARE(rgb32(screen->grabWindow(scene.page.winId()).toImage()),
                 rgb32(scene.page.grab().toImage()));
    }
};

QTEST_MAIN(TestWidgetPreview)
#include "tst_widget_preview.moc"
