#include "SwitchButton.h"

#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <memory>

namespace {

const QString OnPicture = QStringLiteral(":/QXRGBMemory/Images/Btn_Switch_ON.png");
const QString OffPicture = QStringLiteral(":/QXRGBMemory/Images/Btn_Switch_OFF.png");

QLabel* knob(const SwitchButton& button)
{
    return button.findChild<QLabel*>();
}

bool showsPicture(const SwitchButton& button, const QString& picture)
{
    const QPixmap shown = knob(button)->pixmap(Qt::ReturnByValue);
    if (shown.isNull())
        return false;
    return shown.toImage().convertToFormat(QImage::Format_ARGB32) ==
           QImage(picture).convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class TestSwitchButton : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<SwitchButton> button;

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void init()
    {
        button = std::make_unique<SwitchButton>(47, 19);
        button->show();
        QVERIFY(QTest::qWaitForWindowExposed(button.get()));
    }

    void cleanup() { button.reset(); }

    void knobPictures_data()
    {
        QTest::addColumn<QString>("picture");
        QTest::addColumn<bool>("blue");
        QTest::newRow("on") << OnPicture << true;
        QTest::newRow("off") << OffPicture << false;
    }

    void knobPictures()
    {
        QFETCH(QString, picture);
        QFETCH(bool, blue);
        const QImage image(picture);
        QCOMPARE(image.size(), QSize(19, 19));
        for (const QPoint corner : {QPoint(0, 0), QPoint(18, 0), QPoint(0, 18), QPoint(18, 18)})
            QCOMPARE(qAlpha(image.pixel(corner)), 0);
        const QColor body = image.pixelColor(10, 11);
        QCOMPARE(body.alpha(), 255);
        if (blue) {
            QVERIFY(std::abs(body.hsvHue() - QColor(32, 158, 199).hsvHue()) <= 8);
            QVERIFY(body.hsvSaturation() > 120);
        } else {
            QVERIFY(body.hsvSaturation() < 10);
            QVERIFY(body.lightness() > 170);
        }
        // Round: the edge of the ball is soft, not a square.
        QVERIFY(qAlpha(image.pixel(2, 2)) < body.alpha() / 2);
    }

    void construction()
    {
        QCOMPARE(button->size(), QSize(47, 19));
        QVERIFY(!button->isChecked());
        QCOMPARE(knob(*button)->size(), QSize(19, 19));
        QCOMPARE(knob(*button)->pos(), QPoint(1, 0));
        QVERIFY(showsPicture(*button, OffPicture));

        // The pill track: dark grey from end to end, transparent beyond its rounded corners.
        button->setChecked(true);
        const QImage image = button->grab().toImage();
        QCOMPARE(image.pixelColor(5, 9).rgb(), QColor(48, 48, 48).rgb());
        QVERIFY(image.pixelColor(0, 0) != QColor(48, 48, 48));
    }

    void clickSlidesKnob()
    {
        QSignalSpy clicked(button.get(), &SwitchButton::sigClicked);
        QTest::mouseClick(button.get(), Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.at(0).at(0).toBool(), true);
        QVERIFY(button->isChecked());
        // The picture changes at the start of the slide; the knob arrives after 100 ms.
        QVERIFY(showsPicture(*button, OnPicture));
        QTRY_COMPARE_WITH_TIMEOUT(knob(*button)->pos(), QPoint(27, 0), 1000);

        QTest::mouseClick(button.get(), Qt::LeftButton);
        QCOMPARE(clicked.count(), 2);
        QCOMPARE(clicked.at(1).at(0).toBool(), false);
        QVERIFY(showsPicture(*button, OffPicture));
        QTRY_COMPARE_WITH_TIMEOUT(knob(*button)->pos(), QPoint(1, 0), 1000);
    }

    void clickDuringSlide()
    {
        QSignalSpy clicked(button.get(), &SwitchButton::sigClicked);
        QTest::mouseClick(button.get(), Qt::LeftButton);
        QTest::mouseClick(button.get(), Qt::LeftButton, Qt::NoModifier, QPoint(), 50);
        // Toggled once, reported twice with the same state.
        QCOMPARE(clicked.count(), 2);
        QCOMPARE(clicked.at(0).at(0).toBool(), true);
        QCOMPARE(clicked.at(1).at(0).toBool(), true);
        QVERIFY(button->isChecked());
        QTRY_COMPARE_WITH_TIMEOUT(knob(*button)->pos(), QPoint(27, 0), 1000);
        QTest::qWait(150);
        QCOMPARE(knob(*button)->pos(), QPoint(27, 0));
    }

    void setCheckedWithoutSignal()
    {
        QSignalSpy clicked(button.get(), &SwitchButton::sigClicked);
        button->setChecked(true);
        QCOMPARE(knob(*button)->pos(), QPoint(27, 0)); // at once
        QVERIFY(showsPicture(*button, OnPicture));
        QVERIFY(button->isChecked());
        QCOMPARE(clicked.count(), 0);

        QTest::mouseClick(button.get(), Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.at(0).at(0).toBool(), false);
        QTRY_COMPARE_WITH_TIMEOUT(knob(*button)->pos(), QPoint(1, 0), 1000);

        button->setChecked(false);
        QCOMPARE(knob(*button)->pos(), QPoint(1, 0));
        QVERIFY(showsPicture(*button, OffPicture));
        QCOMPARE(clicked.count(), 1);
    }

    void otherSizes()
    {
        SwitchButton wide(60, 24);
        QCOMPARE(knob(wide)->size(), QSize(24, 24));
        wide.setChecked(true);
        QCOMPARE(knob(wide)->pos(), QPoint(35, 0));
    }
};

QTEST_MAIN(TestSwitchButton)
#include "tst_switch_button.moc"
