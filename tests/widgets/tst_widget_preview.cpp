#include "PreviewScene.h"
#include "Widget_Preview.h"

#include <QImage>
#include <QScreen>
#include <QTest>

namespace {

constexpr COLORREF Red = 0x0000FF;
constexpr COLORREF Green = 0x00FF00;
constexpr COLORREF Blue = 0xFF0000;

struct CountedPreview : Widget_Preview {
    int paints = 0;
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        Widget_Preview::paintEvent(event);
    }
};

struct PreviewOnPage {
    QWidget page;
    Widget_Preview* preview = new Widget_Preview(&page);
    COLORREF colors[8][Widget_Preview::MaxLeds] = {};

    PreviewOnPage()
    {
        PreviewScene::setUp(page, preview);
        paintFrame(0);
    }

    void paintFrame(int step)
    {
        for (int i = 0; i < 8; ++i)
            for (int k = 0; k < Widget_Preview::MaxLeds; ++k)
                colors[i][k] = COLORREF((37 * (i + step) + 11 * k) % 256) |
                               COLORREF((91 * k + 13 * i + 7 * step) % 256) << 8 |
                               COLORREF((53 * i * k + 29 * step) % 256) << 16;
        PreviewScene::send(preview, colors);
    }
};

} // namespace

class TestWidgetPreview : public QObject
{
    Q_OBJECT

private slots:
    // The picture is pinned down by a reference taken from the plain drawing (every part
    // stroked and filled on every paint): the cached parts must not change a pixel. The
    // shuffled slot order and the 5- and 8-LED modules pin each bar's column and stops too.
    void matchesReferencePicture()
    {
        PreviewOnPage scene;
        const QImage image = scene.page.grab().toImage().convertToFormat(QImage::Format_RGB32);
        if (qEnvironmentVariableIsSet("NX_PREVIEW_PICTURE"))
            image.save(qEnvironmentVariable("NX_PREVIEW_PICTURE"));
        QImage reference(QStringLiteral(NX_SOURCE_DIR "/tests/widgets/data/preview_page.png"));
        QVERIFY(!reference.isNull());
        reference = reference.convertToFormat(QImage::Format_RGB32);
        QCOMPARE(image.size(), reference.size());
        int differing = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                differing += image.pixel(x, y) != reference.pixel(x, y);
        QCOMPARE(differing, 0);
    }

    // Frames repaint only what changed; what is on screen afterwards equals a full repaint.
    void partialRepaintLeavesNothingStale()
    {
        PreviewOnPage scene;
        scene.page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&scene.page));
        for (int step = 1; step <= 3; ++step) {
            scene.paintFrame(step);
            QCoreApplication::processEvents();
            // One module alone changes: only its neighbourhood is painted, over and under the
            // ornaments of its neighbours.
            scene.colors[2][4] ^= 0x00FFFFFFu;
            scene.colors[2][0] ^= 0x00FFFFFFu;
            QList<COLORREF*> list;
            for (auto& module : scene.colors)
                list << module;
            scene.preview->updatePreviewList(list);
            QCoreApplication::processEvents();
        }
        QTest::qWait(50);
        QScreen* screen = scene.page.windowHandle()->screen();
        const QImage shown =
            screen->grabWindow(scene.page.winId()).toImage().convertToFormat(QImage::Format_RGB32);
        const QImage full = scene.page.grab().toImage().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(shown.size(), full.size());
        if (qEnvironmentVariableIsSet("NX_PREVIEW_PICTURE")) {
            shown.save(qEnvironmentVariable("NX_PREVIEW_PICTURE") + QStringLiteral(".shown.png"));
            full.save(qEnvironmentVariable("NX_PREVIEW_PICTURE") + QStringLiteral(".full.png"));
        }
        QVERIFY(shown == full);
    }

    void unchangedFramesSkipRepaint()
    {
        CountedPreview preview;
        preview.resize(258, 252);
        preview.setSlotNum(4);
        preview.setModuleNum(4);
        preview.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preview));
        COLORREF frames[4][Widget_Preview::MaxLeds] = {};
        std::fill(std::begin(frames[0]), std::end(frames[0]), Red);
        std::fill(std::begin(frames[1]), std::end(frames[1]), Green);
        const QList<COLORREF*> list{frames[0], frames[1], frames[2], frames[3]};
        preview.updatePreviewList(list);
        QTRY_VERIFY(preview.paints > 0);
        QTest::qWait(50);

        preview.paints = 0;
        for (int repeat = 0; repeat < 5; ++repeat)
            preview.updatePreviewList(list);
        QTest::qWait(50);
        QCOMPARE(preview.paints, 0);

        frames[1][6] = Blue;
        preview.updatePreviewList(list);
        QTRY_COMPARE(preview.paints, 1);
    }
};

QTEST_MAIN(TestWidgetPreview)
#include "tst_widget_preview.moc"
