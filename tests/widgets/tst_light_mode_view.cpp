#include "Widget_Light_Mode_View.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

namespace {

const char* const ModeNames[] = {
    "Flow",          "RGB Spectrum", "Ripple",   "Blink",     "Pulse",     "Wave",
    "Static",        "Copy",         "Movie",    "Gaming",    "Party",     "Mobile_Movie",
    "Mobile_Gaming", "Mobile_Party", "Temp.",    "Cross",     "Hello",     "Shooting Star",
    "Black Hole",    "Aurora",       "RGB Sync", "Twinkle",   "Script",    "Weather",
    "Raindrop",      "Heartbeat",    "Stack",    "Scan",      "Swirl",     "Screen Gaming",
    "Screen Movie",  "Clock",        "Rain",     "Fireworks", "Explosion", "MB Sync",
    "Radiation",     "Aim"};

QMap<int, QString> modeMap(int last, const QString& prefix = QString())
{
    QMap<int, QString> map;
    for (int value = 0; value <= last; ++value)
        map.insert(value, prefix + QString::fromLatin1(ModeNames[value]));
    return map;
}

const QVector<int> NeverOffered = {7, 11, 12, 13, 16, 20, 22, 23, 29, 35};

QVector<int> offered(int last)
{
    QVector<int> values;
    for (int value = 0; value <= last; ++value) {
        if (!NeverOffered.contains(value))
            values << value;
    }
    return values;
}

QPushButton* modeButton(const Widget_Light_Mode_View& list, int value)
{
    return list.findChild<QPushButton*>(QString::number(value), Qt::FindDirectChildrenOnly);
}

} // namespace

class TestLightModeView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void placement_data()
    {
        QTest::addColumn<int>("last");
        QTest::addColumn<int>("buttons");
        QTest::newRow("with the new modes") << 37 << 28;
        QTest::newRow("without 36 and 37") << 35 << 26;
    }

    void placement()
    {
        QFETCH(int, last);
        QFETCH(int, buttons);
        Widget_Light_Mode_View list(600, 220);
        QCOMPARE(list.size(), QSize(600, 220));
        QCOMPARE(list.focusPolicy(), Qt::ClickFocus);
        list.setLightModeMap(modeMap(last));

        const auto* grid = qobject_cast<QGridLayout*>(list.layout());
        QVERIFY(grid);
        QCOMPARE(grid->contentsMargins(), QMargins(10, 10, 10, 10));
        QCOMPARE(grid->spacing(), 10);
        QCOMPARE(grid->count(), buttons);
        QCOMPARE(list.findChildren<QPushButton*>().size(), buttons);

        const QVector<int> values = offered(last);
        QCOMPARE(values.size(), buttons);
        for (int count = 0; count < values.size(); ++count) {
            QPushButton* button = modeButton(list, values.at(count));
            QVERIFY2(button, qPrintable(QString::number(values.at(count))));
            QCOMPARE(button->text(), QString::fromLatin1(ModeNames[values.at(count)]));
            int row = -1;
            int column = -1;
            int rowSpan = 0;
            int columnSpan = 0;
            grid->getItemPosition(grid->indexOf(button), &row, &column, &rowSpan, &columnSpan);
            QCOMPARE(row, count % 5);
            QCOMPARE(column, count / 5);
        }
        for (int value : NeverOffered)
            QVERIFY(!modeButton(list, value));
    }

    void refreshRenewsTexts()
    {
        Widget_Light_Mode_View list(600, 220);
        list.setLightModeMap(modeMap(37));
        const auto* grid = qobject_cast<QGridLayout*>(list.layout());
        const QRect before = [&] {
            list.show();
            return modeButton(list, 24)->geometry();
        }();
        list.setLightModeMap(modeMap(37, QStringLiteral("x ")));
        QCOMPARE(grid->count(), 28);
        QCOMPARE(modeButton(list, 24)->text(), QStringLiteral("x Raindrop"));
        QCOMPARE(modeButton(list, 0)->text(), QStringLiteral("x Flow"));
        QCOMPARE(modeButton(list, 24)->geometry(), before);
        int row = -1;
        int column = -1;
        int span = 0;
        grid->getItemPosition(grid->indexOf(modeButton(list, 37)), &row, &column, &span, &span);
        QCOMPARE(row, 2);
        QCOMPARE(column, 5);
    }

    void modesAddedLater()
    {
        // The new modes arrive at the next language refresh; the earlier buttons stay put.
        Widget_Light_Mode_View list(600, 220);
        list.setLightModeMap(modeMap(35));
        list.setLightModeMap(modeMap(37));
        const auto* grid = qobject_cast<QGridLayout*>(list.layout());
        QCOMPARE(grid->count(), 28);
        int row = -1;
        int column = -1;
        int span = 0;
        grid->getItemPosition(grid->indexOf(modeButton(list, 36)), &row, &column, &span, &span);
        QCOMPARE(row, 1);
        QCOMPARE(column, 5);
    }

    void clickEmitsMode()
    {
        Widget_Light_Mode_View list(600, 220);
        list.setLightModeMap(modeMap(37));
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        QSignalSpy picked(&list, &Widget_Light_Mode_View::selectLightMode);
        for (int value : {24, 0, 37}) {
            QTest::mouseClick(modeButton(list, value), Qt::LeftButton);
            QCOMPARE(picked.count(), 1);
            QCOMPARE(picked.takeFirst().at(0).toInt(), value);
        }
        // The list leaves closing to its owner.
        QVERIFY(list.isVisible());
    }

    void closesOnFocusLoss()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* edit = new QLineEdit(&window);
        layout->addWidget(edit);
        layout->addStretch();
        window.resize(700, 400);
        auto* list = new Widget_Light_Mode_View(600, 220, &window);
        list->move(10, 60);
        list->setLightModeMap(modeMap(37));
        list->hide();
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        edit->setFocus();
        QVERIFY(list->isHidden());

        list->show();
        QTRY_VERIFY(list->hasFocus());
        // Picking through a real click keeps the focus on the panel.
        QSignalSpy picked(list, &Widget_Light_Mode_View::selectLightMode);
        QPushButton* button = modeButton(*list, 15);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          button->mapTo(&window, button->rect().center()));
        QCOMPARE(picked.count(), 1);
        QCOMPARE(picked.at(0).at(0).toInt(), 15);
        QVERIFY(list->isVisible());
        QVERIFY(list->hasFocus());

        edit->setFocus();
        QTRY_VERIFY(list->isHidden());
    }

    void look()
    {
        Widget_Light_Mode_View list(300, 200);
        list.setLightModeMap(modeMap(4));
        QImage image(list.size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        list.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        QCOMPARE(image.pixelColor(0, 0).rgb(), QColor(20, 20, 20).rgb());
        QCOMPARE(image.pixelColor(299, 199).rgb(), QColor(20, 20, 20).rgb());
        // An almost opaque dark panel.
        const QColor ground = image.pixelColor(4, 100);
        QVERIFY(std::abs(ground.red() - 40) <= 2);
        QCOMPARE(ground.alpha(), 240);
        QCOMPARE(modeButton(list, 0)->focusPolicy(), Qt::NoFocus);
    }
};

QTEST_MAIN(TestLightModeView)
#include "tst_light_mode_view.moc"
