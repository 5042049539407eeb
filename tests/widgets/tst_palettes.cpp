#include "RGB_Palette.h"
#include "Widget_Select_Palette.h"

#include <QImage>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <algorithm>
#include <memory>

class TestPalettes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    // Both wheels accept a click up to 88 px from the centre and give the picture's own pixel
    // there; the pop-up shows the picture 12 px in from its corner.
    void pick_data()
    {
        QTest::addColumn<bool>("popup");
        QTest::addColumn<QPoint>("click");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QPoint>("sample");
        QTest::newRow("wheel centre") << false << QPoint(88, 88) << true << QPoint(88, 88);
        QTest::newRow("wheel 88 px") << false << QPoint(176, 88) << true << QPoint(176, 88);
        QTest::newRow("wheel 89 px") << false << QPoint(177, 88) << false << QPoint();
        QTest::newRow("wheel 88.96 px") << false << QPoint(176, 101) << true << QPoint(176, 101);
        QTest::newRow("wheel 89.1 px") << false << QPoint(25, 25) << false << QPoint();
        QTest::newRow("wheel inside") << false << QPoint(130, 40) << true << QPoint(130, 40);
        QTest::newRow("popup centre") << true << QPoint(100, 100) << true << QPoint(88, 88);
        QTest::newRow("popup 88 px") << true << QPoint(12, 100) << true << QPoint(0, 88);
        QTest::newRow("popup 89 px") << true << QPoint(189, 100) << false << QPoint();
        QTest::newRow("popup inside") << true << QPoint(60, 150) << true << QPoint(48, 138);
    }

    void pick()
    {
        QFETCH(bool, popup);
        QFETCH(QPoint, click);
        QFETCH(bool, accepted);
        QFETCH(QPoint, sample);
        std::unique_ptr<QWidget> wheel;
        if (popup)
            wheel = std::make_unique<Widget_Select_Palette>();
        else
            wheel = std::make_unique<RGB_Palette>();
        QSignalSpy picked(wheel.get(), SIGNAL(pressRGB(COLORREF)));
        QVERIFY(picked.isValid());
        QTest::mouseClick(wheel.get(), Qt::LeftButton, Qt::NoModifier, click);
        QCOMPARE(picked.count(), accepted ? 1 : 0);
        if (!accepted)
            return;
        const QImage picture(QStringLiteral(":/QXRGBMemory/Images/palette.png"));
        const QRgb pixel = picture.pixel(std::clamp(sample.x(), 0, picture.width() - 1),
                                         std::clamp(sample.y(), 0, picture.height() - 1));
        const COLORREF expected =
            COLORREF(qRed(pixel)) | COLORREF(qGreen(pixel)) << 8 | COLORREF(qBlue(pixel)) << 16;
        QCOMPARE(picked.at(0).at(0).value<COLORREF>(), expected);
    }
};

QTEST_MAIN(TestPalettes)
#include "tst_palettes.moc"
