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

    // By keyboard: the highlight walks the columns, stops at the ends, Return picks the
    // highlighted mode and Escape leaves without one; hiding forgets the highlight.
    void keyboard()
    {
        QMap<int, QString> names;
        for (int value = 0; value <= 37; ++value)
            names.insert(value, QStringLiteral("mode %1").arg(value));
        Widget_Light_Mode_View list(600, 220);
        list.setLightModeMap(names);
        list.show();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        QTRY_VERIFY(list.hasFocus());
        QSignalSpy picked(&list, &Widget_Light_Mode_View::selectLightMode);
        QSignalSpy finished(&list, &Widget_Light_Mode_View::keyboardFinished);

        // Nothing is highlighted for a mouse user; the first arrow starts at the first mode.
        QCOMPARE(list.highlighted(), -1);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(list.highlighted(), 0);
        QTest::keyClick(&list, Qt::Key_Up);
        QCOMPARE(list.highlighted(), 0);
        // Offered in order: 0 1 2 3 4 | 5 6 8 9 10 | 14 15 17 18 19 | ... ; 7 is never listed.
        QTest::keyClick(&list, Qt::Key_Right);
        QCOMPARE(list.highlighted(), 5);
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(list.highlighted(), 8);
        QTest::keyClick(&list, Qt::Key_Left);
        QCOMPARE(list.highlighted(), 2);
        QTest::keyClick(&list, Qt::Key_Left);
        QCOMPARE(list.highlighted(), 2);
        QTest::keyClick(&list, Qt::Key_End);
        QCOMPARE(list.highlighted(), 37);
        QTest::keyClick(&list, Qt::Key_Right);
        QCOMPARE(list.highlighted(), 37);
        QTest::keyClick(&list, Qt::Key_Home);
        QCOMPARE(list.highlighted(), 0);
        QCOMPARE(picked.count(), 0);

        // A listed mode is highlighted as asked; an unlisted one falls back to the first.
        list.highlight(15);
        QCOMPARE(list.highlighted(), 15);
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(picked.count(), 1);
        QCOMPARE(picked.at(0).at(0).toInt(), 17);
        QCOMPARE(finished.count(), 1);
        list.highlight(7);
        QCOMPARE(list.highlighted(), 0);

        QTest::keyClick(&list, Qt::Key_Escape);
        QCOMPARE(finished.count(), 2);
        QCOMPARE(picked.count(), 1);

        list.hide();
        QCOMPARE(list.highlighted(), -1);
        // Space with nothing highlighted picks nothing.
        list.show();
        QTest::keyClick(&list, Qt::Key_Space);
        QCOMPARE(picked.count(), 1);
    }
};

QTEST_MAIN(TestLightModeView)
#include "tst_light_mode_view.moc"
