#include "SwitchButton.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

class TestSwitchButton : public QObject
{
    Q_OBJECT

private slots:
    void knob_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("on");
        QTest::newRow("47x19") << QSize(47, 19) << QPoint(27, 0);
        QTest::newRow("60x24") << QSize(60, 24) << QPoint(35, 0);
    }

    // setChecked places the knob at once and emits nothing. A click slides it over 100 ms; a
    // click during the slide does not toggle but is reported again with the same state.
    void knob()
    {
        QFETCH(QSize, size);
        QFETCH(QPoint, on);
        SwitchButton button(size.width(), size.height());
        QSignalSpy clicked(&button, &SwitchButton::sigClicked);
        const QLabel* knob = button.findChild<QLabel*>();
        QCOMPARE(knob->pos(), QPoint(1, 0));
        button.setChecked(true);
        QVERIFY(button.isChecked());
        QCOMPARE(knob->pos(), on);
        button.setChecked(false);
        QCOMPARE(knob->pos(), QPoint(1, 0));
        QCOMPARE(clicked.count(), 0);

        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, QPoint(), 50);
        QCOMPARE(clicked.count(), 2);
        QCOMPARE(clicked.at(0).at(0).toBool(), true);
        QCOMPARE(clicked.at(1).at(0).toBool(), true);
        QVERIFY(button.isChecked());
        QTRY_COMPARE_WITH_TIMEOUT(knob->pos(), on, 1000);
        QTest::qWait(150);
        QCOMPARE(knob->pos(), on);

        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.count(), 3);
        QCOMPARE(clicked.at(2).at(0).toBool(), false);
        QVERIFY(!button.isChecked());
        QTRY_COMPARE_WITH_TIMEOUT(knob->pos(), QPoint(1, 0), 1000);
    }
};

QTEST_MAIN(TestSwitchButton)
#include "tst_switch_button.moc"
