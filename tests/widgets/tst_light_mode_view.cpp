#include "Widget_Light_Mode_View.h"

#include <QGridLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

class TestLightModeView : public QObject
{
    Q_OBJECT

private slots:
    void placement_data()
    {
        QTest::addColumn<int>("last");
        QTest::addColumn<int>("buttons");
        QTest::newRow("modes up to 37") << 37 << 28;
        QTest::newRow("modes up to 35") << 35 << 26;
    }

    // Offered modes fill the grid column by column, five to a column; some modes never get a
    // button.
    void placement()
    {
        QFETCH(int, last);
        QFETCH(int, buttons);
        const QVector<int> neverOffered = {7, 11, 12, 13, 16, 20, 22, 23, 29, 35};
        QMap<int, QString> names;
        for (int value = 0; value <= last; ++value)
            names.insert(value, QStringLiteral("mode %1").arg(value));
        Widget_Light_Mode_View list(600, 220);
        list.setLightModeMap(names);
        const auto* grid = qobject_cast<QGridLayout*>(list.layout());
        QVERIFY(grid);
        QCOMPARE(grid->count(), buttons);
        QCOMPARE(list.findChildren<QPushButton*>().size(), buttons);

        int index = 0;
        int lastValue = -1;
        for (int value = 0; value <= last; ++value) {
            auto* button = list.findChild<QPushButton*>(QString::number(value));
            QVERIFY2(!button == neverOffered.contains(value), qPrintable(QString::number(value)));
            if (!button)
                continue;
            QCOMPARE(button->text(), names.value(value));
            int row = -1, column = -1, span = 0;
            grid->getItemPosition(grid->indexOf(button), &row, &column, &span, &span);
            QCOMPARE(QPoint(column, row), QPoint(index / 5, index % 5));
            ++index;
            lastValue = value;
        }
        QCOMPARE(index, buttons);

        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        QSignalSpy picked(&list, &Widget_Light_Mode_View::selectLightMode);
        QTest::mouseClick(list.findChild<QPushButton*>(QString::number(lastValue)), Qt::LeftButton);
        QCOMPARE(picked.count(), 1);
        QCOMPARE(picked.at(0).at(0).toInt(), lastValue);
    }
};

QTEST_MAIN(TestLightModeView)
#include "tst_light_mode_view.moc"
