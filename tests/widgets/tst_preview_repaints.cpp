#include "PreviewLayers.h"
#include "PreviewScene.h"
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
    void reset()
    {
        paints = 0;
        painted = QRegion();
    }
};

qint64 area(const QRegion& region)
{
    qint64 pixels = 0;
    for (const QRect& r : region)
        pixels += qint64(r.width()) * r.height();
    return pixels;
}

// Eight slots on a page with a picture for background: entries 0 to 5 hold modules of 8 and 5
// LEDs in a shuffled order, 6 and 7 are empty.
struct Scene {
    Recorded<QWidget> page;
    Recorded<Widget_Preview>* preview = new Recorded<Widget_Preview>(&page);
    COLORREF colors[8][Widget_Preview::MaxLeds] = {};

    Scene()
    {
        PreviewScene::setUp(page, preview);
        page.show();
    }

    void send() { PreviewScene::send(preview, colors); }

    // Lets the queued repaints happen and forgets what they painted.
    void settle()
    {
        QTest::qWait(20);
        QCoreApplication::processEvents();
        page.reset();
        preview->reset();
    }
};

} // namespace

class TestPreviewRepaints : public QObject
{
    Q_OBJECT

private slots:
    // A frame redraws the changed bars with their outlines and ornaments, and the page under
    // them, and nothing else: not the whole column, not the frame, not empty slots.
    void frameRepaintsOnlyChangedBars()
    {
        Scene scene;
        QVERIFY(QTest::qWaitForWindowExposed(&scene.page));
        scene.colors[0][0] = 0x102030;
        scene.send();
        QTRY_VERIFY(scene.preview->paints > 0);
        scene.settle();

        // A 5-LED module (entry 1, column 0): its bar, 10 x 240, and the outline around it.
        scene.colors[1][2] = 0x00FF00;
        scene.send();
        QTRY_COMPARE(scene.preview->paints, 1);
        const QRect barOne = scene.preview->painted.boundingRect();
        const int x1 = Widget_Preview::barX(0, 8);
        QVERIFY(barOne.contains(QRect(x1 - 1, 4, 12, 242)));
        QVERIFY2(area(scene.preview->painted) <= 16 * 246,
                 qPrintable(QString::number(area(scene.preview->painted))));
        QCOMPARE(scene.page.painted.translated(-scene.preview->pos()), scene.preview->painted);
        scene.settle();

        // An 8-LED module adds its ornament's rows, not the column's full height.
        scene.colors[2][3] = 0x0000FF;
        scene.send();
        QTRY_COMPARE(scene.preview->paints, 1);
        QVERIFY2(area(scene.preview->painted) <= 16 * 246 + 31 * 60,
                 qPrintable(QString::number(area(scene.preview->painted))));
        QVERIFY(scene.preview->painted.boundingRect().height() < scene.preview->height() - 2);
        scene.settle();

        // Colours for empty slots show nowhere, and unchanged frames repaint nothing.
        scene.colors[6][0] = 0xFFFFFF;
        scene.colors[7][5] = 0x00FFFF;
        scene.send();
        scene.send();
        QTest::qWait(50);
        QCOMPARE(scene.preview->paints, 0);
        QCOMPARE(scene.page.paints, 0);
    }

    // What partial repaints leave on screen equals a full repaint, whichever bars change,
    // including ornaments that overlap their neighbours' areas.
    void partialFramesMatchFullPicture()
    {
        Scene scene;
        QVERIFY(QTest::qWaitForWindowExposed(&scene.page));
        for (int step = 1; step <= 12; ++step) {
            const int entry = (step * 5) % 8;
            for (int k = 0; k < Widget_Preview::MaxLeds; ++k)
                scene.colors[entry][k] = COLORREF((step * 71 + k * 29) % 256) |
                                         COLORREF((step * 13 + k * 97) % 256) << 8 |
                                         COLORREF((step * 43 + entry * 61) % 256) << 16;
            scene.send();
            QCoreApplication::processEvents();
        }
        QTest::qWait(50);
        QCoreApplication::processEvents();
        QScreen* screen = scene.page.windowHandle()->screen();
        const QImage shown =
            screen->grabWindow(scene.page.winId()).toImage().convertToFormat(QImage::Format_RGB32);
        const QImage full = scene.page.grab().toImage().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(shown.size(), full.size());
        QVERIFY(shown == full);
    }

    // Repaints away from the edges skip the frame: it must be transparent there. The rim of
    // the ornament is kept cropped: nothing of the stroke may lie outside it.
    void cachedLayersCoverTheirStrokes()
    {
        PreviewLayers layers;
        const QSize size(258, 252);
        const QImage frame = layers.frame(size, 1.0, false).toImage();
        const QRegion band = PreviewLayers::frameBand(size);
        int inside = 0;
        int outside = 0;
        for (int y = 0; y < frame.height(); ++y)
            for (int x = 0; x < frame.width(); ++x) {
                if (qAlpha(frame.pixel(x, y)) == 0)
                    continue;
                band.contains(QPoint(x, y)) ? ++inside : ++outside;
            }
        QVERIFY(inside > 0);
        QCOMPARE(outside, 0);

        const QImage rim = layers.rim(size, 1.0).toImage();
        QCOMPARE(rim.size(), QSize(PreviewLayers::RimWidth, PreviewLayers::RimHeight));
        // The stroke does not touch the cropped pixmap's edges: it was cut with room to spare.
        for (int x = 0; x < rim.width(); ++x) {
            QCOMPARE(qAlpha(rim.pixel(x, 0)), 0);
            QCOMPARE(qAlpha(rim.pixel(x, rim.height() - 1)), 0);
        }
        for (int y = 0; y < rim.height(); ++y) {
            QCOMPARE(qAlpha(rim.pixel(0, y)), 0);
            QCOMPARE(qAlpha(rim.pixel(rim.width() - 1, y)), 0);
        }
        const QRect outline = PreviewLayers::ornament(PreviewLayers::RimLeft).boundingRect();
        QVERIFY(qAlpha(rim.pixel(outline.left(), 125 - PreviewLayers::RimTop)) > 0);
        QVERIFY(qAlpha(rim.pixel(outline.right(), 125 - PreviewLayers::RimTop)) > 0);
    }
};

QTEST_MAIN(TestPreviewRepaints)
#include "tst_preview_repaints.moc"
