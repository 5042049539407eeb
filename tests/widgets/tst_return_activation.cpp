// Return and Enter press the focused push button once; dialogs keep their default button, and
// the switches, which take Return themselves, still toggle once.
#include "Accessibility.h"
#include "SwitchButton.h"

#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

class TestReturnActivation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Accessibility::install(); }

    void press()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* button = new QPushButton(QStringLiteral("Apply"), &window);
        auto* other = new QPushButton(QStringLiteral("Cancel"), &window);
        auto* toggle = new SwitchButton(47, 19, &window);
        layout->addWidget(button);
        layout->addWidget(other);
        layout->addWidget(toggle);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QSignalSpy released(button, &QPushButton::released);
        QSignalSpy otherClicked(other, &QPushButton::clicked);

        button->setFocus(Qt::TabFocusReason);
        QTest::keyClick(button, Qt::Key_Return);
        QTRY_COMPARE(released.count(), 1);
        QTest::keyClick(button, Qt::Key_Enter, Qt::KeypadModifier);
        QTRY_COMPARE(released.count(), 2);
        QTest::keyClick(button, Qt::Key_Return, Qt::ControlModifier);
        button->setEnabled(false);
        QTest::keyClick(button, Qt::Key_Return);
        QTest::qWait(300);
        QCOMPARE(released.count(), 2);
        QCOMPARE(otherClicked.count(), 0);

        QSignalSpy toggled(toggle, &SwitchButton::sigClicked);
        toggle->setFocus(Qt::TabFocusReason);
        QTest::keyClick(toggle, Qt::Key_Return);
        QTRY_COMPARE(toggled.count(), 1);
        QTest::qWait(300);
        QCOMPARE(toggled.count(), 1);
        QVERIFY(toggle->isChecked());
    }

    // In a dialog Return goes to the default button, not to the focused one as well.
    void dialog()
    {
        QDialog dialog;
        auto* layout = new QVBoxLayout(&dialog);
        auto* ok = new QPushButton(QStringLiteral("OK"), &dialog);
        auto* focused = new QPushButton(QStringLiteral("Other"), &dialog);
        focused->setAutoDefault(false);
        ok->setDefault(true);
        layout->addWidget(ok);
        layout->addWidget(focused);
        QSignalSpy okClicked(ok, &QPushButton::clicked);
        QSignalSpy focusedClicked(focused, &QPushButton::clicked);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        focused->setFocus(Qt::TabFocusReason);
        QTest::keyClick(focused, Qt::Key_Return);
        QTRY_COMPARE(okClicked.count(), 1);
        QCOMPARE(focusedClicked.count(), 0);
    }
};

QTEST_MAIN(TestReturnActivation)
#include "tst_return_activation.moc"
