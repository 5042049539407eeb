#include "RGB_Palette.h"
#include "Widget_Select_Palette.h"

#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <memory>

class TestPalettes : public QObject
{
    Q_OBJECT

private slots:
    // Both wheels accept a click up to 88 px from the centre and give the picture's own pixel
    // there (no sample: refused); the pop-up shows the picture 12 px in from its corner.
    void pick_data()
    {
        QTest::addColumn<bool>("popup");
        QTest::addColumn<QPoint>("click");
        QTest::addColumn<QPoint>("sample");
        const QPoint refused(-1, -1);
        QTest::newRow("wheel centre") << false << QPoint(88, 88) << QPoint(88, 88);
        QTest::newRow("wheel 88 px") << false << QPoint(176, 88) << QPoint(176, 88);
        QTest::newRow("wheel 89 px") << false << QPoint(177, 88) << refused;
        QTest::newRow("wheel 88.96 px") << false << QPoint(176, 101) << QPoint(176, 101);
        QTest::newRow("wheel 89.1 px") << false << QPoint(25, 25) << refused;
        QTest::newRow("wheel inside") << false << QPoint(130, 40) << QPoint(130, 40);
        QTest::newRow("popup centre") << true << QPoint(100, 100) << QPoint(88, 88);
        QTest::newRow("popup 88 px") << true << QPoint(12, 100) << QPoint(0, 88);
        QTest::newRow("popup 89 px") << true << QPoint(189, 100) << refused;
        QTest::newRow("popup inside") << true << QPoint(60, 150) << QPoint(48, 138);
    }

    void pick()
    {
        QFETCH(bool, popup);
        QFETCH(QPoint, click);
        QFETCH(QPoint, sample);
        const std::unique_ptr<QWidget> wheel(
            popup ? static_cast<QWidget*>(new Widget_Select_Palette) : new RGB_Palette);
        QSignalSpy picked(wheel.get(), SIGNAL(pressRGB(COLORREF)));
        QVERIFY(picked.isValid());
        QTest::mouseClick(wheel.get(), Qt::LeftButton, Qt::NoModifier, click);
        QCOMPARE(picked.count(), sample.x() < 0 ? 0 : 1);
        if (sample.x() < 0)
            return;
        const QImage picture(QStringLiteral(":/QXRGBMemory/Images/palette.png"));
        const QRgb pixel = picture.pixel(std::clamp(sample.x(), 0, picture.width() - 1),
                                         std::clamp(sample.y(), 0, picture.height() - 1));
        const COLORREF expected = qRgb(qBlue(pixel), qGreen(pixel), qRed(pixel)) & 0xFFFFFF;
        QCOMPARE(picked.at(0).at(0).value<COLORREF>(), expected);
    }
};

QTEST_MAIN(TestPalettes)
#include "tst_palettes.moc"
