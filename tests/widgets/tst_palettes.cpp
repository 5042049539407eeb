#include "Palette_draw_rect.h"
#include "RGB_Palette.h"
#include "Widget_Select_Palette.h"

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QSet>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

const QString WheelPicture = QStringLiteral(":/QXRGBMemory/Images/palette.png");

COLORREF toColorRef(QRgb pixel)
{
    return COLORREF(qRed(pixel)) | COLORREF(qGreen(pixel)) << 8 | COLORREF(qBlue(pixel)) << 16;
}

// The picture's own pixel, taken at the nearest point of the picture.
COLORREF picturePixel(int x, int y)
{
    const QImage wheel(WheelPicture);
    return toColorRef(
        wheel.pixel(std::clamp(x, 0, wheel.width() - 1), std::clamp(y, 0, wheel.height() - 1)));
}

int channelStep(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

} // namespace

class TestPalettes : public QObject
{
    Q_OBJECT

private:
    void pickData()
    {
        QTest::addColumn<QPoint>("click");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QPoint>("sample");
    }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void picture()
    {
        const QImage wheel(WheelPicture);
        QCOMPARE(wheel.size(), QSize(176, 176));
        QVERIFY(wheel.hasAlphaChannel());

        // White in the middle, fully saturated hues on the rim, transparent outside.
        const QRgb centre = wheel.pixel(88, 88);
        QVERIFY(qRed(centre) >= 250 && qGreen(centre) >= 250 && qBlue(centre) >= 250);
        QCOMPARE(qAlpha(centre), 255);
        const auto hueAt = [&](int x, int y) { return QColor(wheel.pixel(x, y)).hsvHue(); };
        QVERIFY(hueAt(172, 88) >= 355 || hueAt(172, 88) <= 5); // red on the right
        QVERIFY(std::abs(hueAt(88, 3) - 90) <= 5);             // chartreuse at the top
        QVERIFY(std::abs(hueAt(3, 88) - 180) <= 5);            // cyan on the left
        QVERIFY(std::abs(hueAt(88, 172) - 270) <= 5);          // violet at the bottom
        QCOMPARE(QColor(wheel.pixel(172, 88)).value(), 255);
        QVERIFY(QColor(wheel.pixel(172, 88)).hsvSaturation() > 240);

        int opaque = 0;
        for (int y = 0; y < 176; ++y) {
            for (int x = 0; x < 176; ++x) {
                const double r = std::hypot(x + 0.5 - 88.0, y + 0.5 - 88.0);
                const int alpha = qAlpha(wheel.pixel(x, y));
                if (r >= 88.5)
                    QCOMPARE(alpha, 0);
                else if (r <= 87.5)
                    QCOMPARE(alpha, 255);
                opaque += alpha == 255;
            }
        }
        QVERIFY(std::abs(opaque - 24328) < 600); // close to pi * 88^2

        // Smooth: neighbours inside the disc differ by a few steps at most, and a radius
        // passes through many distinct shades.
        int worst = 0;
        for (int y = 1; y < 175; ++y) {
            for (int x = 1; x < 175; ++x) {
                if (std::hypot(x + 0.5 - 88.0, y + 0.5 - 88.0) > 86.0)
                    continue;
                worst = std::max(worst, channelStep(wheel.pixel(x, y), wheel.pixel(x + 1, y)));
                worst = std::max(worst, channelStep(wheel.pixel(x, y), wheel.pixel(x, y + 1)));
            }
        }
        QVERIFY2(worst <= 8, qPrintable(QString::number(worst)));
        QSet<int> shades;
        for (int x = 88; x < 176; ++x)
            shades << qGreen(wheel.pixel(x, 88));
        QVERIFY(shades.size() >= 80);
    }

    void wheelPick_data()
    {
        pickData();
        QTest::newRow("centre") << QPoint(88, 88) << true << QPoint(88, 88);
        QTest::newRow("right, 88 px") << QPoint(176, 88) << true << QPoint(176, 88);
        QTest::newRow("right, 89 px") << QPoint(177, 88) << false << QPoint();
        QTest::newRow("top, 88 px") << QPoint(88, 0) << true << QPoint(88, 0);
        QTest::newRow("88.96 px") << QPoint(176, 101) << true << QPoint(176, 101);
        QTest::newRow("diagonal, 87.7 px") << QPoint(26, 26) << true << QPoint(26, 26);
        QTest::newRow("diagonal, 89.1 px") << QPoint(25, 25) << false << QPoint();
        QTest::newRow("corner") << QPoint(2, 2) << false << QPoint();
        QTest::newRow("inside") << QPoint(130, 40) << true << QPoint(130, 40);
    }

    void wheelPick()
    {
        QFETCH(QPoint, click);
        QFETCH(bool, accepted);
        QFETCH(QPoint, sample);
        RGB_Palette wheel;
        QCOMPARE(wheel.size(), QSize(176, 176));
        QSignalSpy picked(&wheel, &RGB_Palette::pressRGB);
        QTest::mouseClick(&wheel, Qt::LeftButton, Qt::NoModifier, click);
        QCOMPARE(picked.count(), accepted ? 1 : 0);
        if (accepted)
            QCOMPARE(picked.at(0).at(0).value<COLORREF>(), picturePixel(sample.x(), sample.y()));
    }

    void popupPick_data()
    {
        pickData();
        QTest::newRow("centre") << QPoint(100, 100) << true << QPoint(88, 88);
        QTest::newRow("right, 88 px") << QPoint(188, 100) << true << QPoint(176, 88);
        QTest::newRow("right, 89 px") << QPoint(189, 100) << false << QPoint();
        QTest::newRow("left, 88 px") << QPoint(12, 100) << true << QPoint(0, 88);
        QTest::newRow("bottom, 89 px") << QPoint(100, 189) << false << QPoint();
        QTest::newRow("panel corner") << QPoint(3, 196) << false << QPoint();
        QTest::newRow("inside") << QPoint(60, 150) << true << QPoint(48, 138);
    }

    void popupPick()
    {
        QFETCH(QPoint, click);
        QFETCH(bool, accepted);
        QFETCH(QPoint, sample);
        Widget_Select_Palette panel;
        QCOMPARE(panel.size(), QSize(200, 200));
        QSignalSpy picked(&panel, &Widget_Select_Palette::pressRGB);
        QTest::mouseClick(&panel, Qt::LeftButton, Qt::NoModifier, click);
        QCOMPARE(picked.count(), accepted ? 1 : 0);
        if (accepted)
            QCOMPARE(picked.at(0).at(0).value<COLORREF>(), picturePixel(sample.x(), sample.y()));
    }

    // The alpha of the picture is dropped: a transparent pixel inside the accepting disc still
    // gives the colour it carries.
    void transparentPixelKeepsColour()
    {
        const QImage picture(WheelPicture);
        const QRgb pixel = picture.pixel(175, 101);
        QCOMPARE(qAlpha(pixel), 0);
        QVERIFY(qRed(pixel) == 255 && qBlue(pixel) > 0); // the rim's red, shading toward magenta

        RGB_Palette wheel;
        QSignalSpy picked(&wheel, &RGB_Palette::pressRGB);
        QTest::mouseClick(&wheel, Qt::LeftButton, Qt::NoModifier, QPoint(175, 101));
        QCOMPARE(picked.count(), 1);
        QCOMPARE(picked.at(0).at(0).value<COLORREF>(), toColorRef(pixel));
    }

    void popupLook()
    {
        Widget_Select_Palette panel;
        const QLabel* label = panel.findChild<QLabel*>();
        QVERIFY(label);
        QCOMPARE(label->geometry(), QRect(12, 12, 176, 176));
        QImage image(panel.size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        panel.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        // An almost opaque dark panel with a darker rim.
        const QColor ground = image.pixelColor(5, 100);
        QVERIFY(std::abs(ground.red() - 40) <= 2 && ground.red() == ground.blue());
        QCOMPARE(ground.alpha(), 245);
        QVERIFY(image.pixelColor(0, 100).red() < ground.red() - 5);
        QVERIFY(image.pixelColor(199, 100).red() < ground.red() - 5);
        // The wheel itself shows through the label: red on the right, near-white centre.
        const QColor rim = image.pixelColor(12 + 170, 100);
        QVERIFY(rim.red() > 240 && rim.green() < 40);
        QVERIFY(image.pixelColor(100, 100).lightness() > 240);
    }

    void popupClosesOnFocusLoss()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* edit = new QLineEdit(&window);
        layout->addWidget(edit);
        layout->addStretch();
        window.resize(300, 300);
        auto* panel = new Widget_Select_Palette(&window);
        panel->hide();
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        // Losing the focus while hidden changes nothing.
        edit->setFocus();
        QVERIFY(panel->isHidden());

        panel->show();
        QTRY_VERIFY(panel->hasFocus());
        // A pick keeps the panel open.
        QTest::mouseClick(panel, Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
        QVERIFY(panel->isVisible());
        edit->setFocus();
        QTRY_VERIFY(panel->isHidden());
    }

    void selectionBand()
    {
        QWidget window;
        window.resize(400, 400);
        auto* band = new Palette_draw_rect(&window);
        QCOMPARE(band->geometry(), QRect(0, 0, 340, 340));
        QCOMPARE(band->bandRect(), QRect());

        // Dragged up and to the left: the extent is negative and the band covers the same area.
        band->setRect(200, 150, -100, -80);
        QCOMPARE(band->bandRect(), QRect(200, 150, -100, -80));
        QImage image(band->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        band->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        QCOMPARE(qAlpha(image.pixel(20, 20)), 0); // the widget's own ground is transparent
        const QRgb inside = image.pixel(150, 110);
        QCOMPARE(qAlpha(inside), 100);
        QCOMPARE(qRed(inside), qGreen(inside));
        QCOMPARE(qAlpha(image.pixel(150, 160)), 0);
        // The white dash-dot outline lies on the band's edge.
        int white = 0;
        for (int x = 100; x <= 200; ++x)
            white += qRed(image.pixel(x, 70)) > 200 && qAlpha(image.pixel(x, 70)) > 200;
        QVERIFY(white > 30 && white < 100);

        band->setRect(100, 70, 100, 80);
        QImage same(band->size(), QImage::Format_ARGB32_Premultiplied);
        same.fill(Qt::transparent);
        band->render(&same, QPoint(), QRegion(), QWidget::DrawChildren);
        QCOMPARE(same, image);
    }
};

QTEST_MAIN(TestPalettes)
#include "tst_palettes.moc"
