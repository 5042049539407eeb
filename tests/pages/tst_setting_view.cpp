#include "TestEnvironment.h"

#include "AppGlobals.h"
#include "Setting_View.h"
#include "SwitchButton.h"
#include "Widget_Language.h"
#include "Widget_LocationPolicy.h"

#include <QCheckBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QStandardPaths>
#include <QTranslator>
#include <QtTest>

#include <cstring>
#include <memory>

Q_DECLARE_METATYPE(SettingData)

namespace {

SettingData record(int language, bool autoUpdate, bool autoRun, bool location)
{
    SettingData data{};
    data.languageIndex = language;
    data.autoUpdate = autoUpdate;
    data.autoRun = autoRun;
    data.currentLocation = location;
    data.reserved7 = 9;
    return data;
}

// Whether the record sent `index`th equals `expected` byte for byte.
bool sent(const QSignalSpy& spy, int index, const SettingData& expected)
{
    const SettingData data = spy.at(index).at(0).value<SettingData>();
    return std::memcmp(&data, &expected, sizeof(SettingData)) == 0;
}

// Delivers a mouse event for a pointer at `screen` to a widget of `window`, as the window system
// would: an event the widget ignores travels on to its parent.
void sendMouse(QWidget* window, QWidget* widget, QEvent::Type type, QPoint screen)
{
    const QPoint local = screen - window->pos() - widget->mapTo(window, QPoint(0, 0));
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons buttons =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(Qt::LeftButton);
    QMouseEvent event(type, local, screen, button, buttons, Qt::NoModifier);
    QCoreApplication::instance()->notify(widget, &event);
}

} // namespace

class TestSettingView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        qRegisterMetaType<SettingData>();
        QVERIFY(english.load(QStringLiteral(":/QXRGBMemory/NORVALEX_en.qm")));
        QCoreApplication::installTranslator(&english);
    }
    void init()
    {
        extendedFeatures = true;
        currentLanguage = 0;
        page = std::make_unique<Setting_View>();
        page->show();
        page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
    }
    void cleanup() { page.reset(); }

    void languageList();
    void switchesAndLocationRow();
    void consentDialog();

private:
    template <typename T = QWidget> T* child(const char* name)
    {
        return page->findChild<T*>(QLatin1String(name));
    }

    std::unique_ptr<Setting_View> page;
    QTranslator english;
};

// A received record is shown, not sent back, and leaves the process language alone; an index
// out of range keeps the button's text and is sent back as received. A click outside closes the
// list without a choice (the journey picks an entry).
void TestSettingView::languageList()
{
    QSignalSpy spy(page.get(), &Setting_View::changeSettingData);
    auto* button = child<QPushButton>("btn_Language");
    page->setSettingData(record(4, false, true, true));
    page->setSettingData(record(12, false, true, true));
    QCOMPARE(button->text(), QStringLiteral("Français"));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(currentLanguage, 0);
    page->slot_AutoRun_Switch(false);
    QVERIFY(sent(spy, 0, record(12, false, false, true)));

    auto* list = child<Widget_Language>("widget_Language");
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(list->isVisible() && list->hasFocus());
    QTest::mouseClick(page.get(), Qt::LeftButton, Qt::NoModifier, QPoint(700, 480));
    QTRY_VERIFY(list->isHidden());
    QCOMPARE(spy.count(), 1);
}

// Each switch sends the whole record with its flag flipped; the location row needs the extended
// features.
void TestSettingView::switchesAndLocationRow()
{
    SettingData held = record(8, true, false, true);
    page->setSettingData(held);
    const std::pair<const char*, bool SettingData::*> switches[] = {
        {"switch_AutoUpdate", &SettingData::autoUpdate},
        {"switch_AutoRun", &SettingData::autoRun},
        {"switch_CurrentLocation", &SettingData::currentLocation}};
    for (const auto& [name, flag] : switches) {
        QSignalSpy spy(page.get(), &Setting_View::changeSettingData);
        auto* button = child<SwitchButton>(name);
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
        QCOMPARE(spy.count(), 1);
        held.*flag = !(held.*flag);
        QVERIFY2(sent(spy, 0, held), name);
        QCOMPARE(button->isChecked(), held.*flag);
    }

    QVERIFY(child("switch_CurrentLocation")->isVisible());
    extendedFeatures = false;
    page->setSettingData(held);
    QVERIFY(child("switch_CurrentLocation")->isHidden() &&
            child("label_CurrentLocation")->isHidden());
}

// The location consent dialog: OK reports whether the box is ticked and closes the dialog; shown
// again, it keeps the answer. A press on the text, which the label passes on, drags the dialog
// without a jump.
void TestSettingView::consentDialog()
{
    Widget_LocationPolicy dialog;
    dialog.move(200, 150);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QSignalSpy spy(&dialog, &Widget_LocationPolicy::sendPushOK);
    auto* box = dialog.findChild<QCheckBox*>("check_notRemind");
    auto* ok = dialog.findChild<QPushButton*>("btn_OK");
    QTest::mouseClick(ok, Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    dialog.show();
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    QTest::mouseClick(ok, Qt::LeftButton);
    dialog.show();
    QTest::mouseClick(ok, Qt::LeftButton);
    QCOMPARE(spy, (QList<QVariantList>{{false}, {true}, {true}}));

    QWidget* target = dialog.findChild<QWidget*>("label_Content");
    const QPoint start = dialog.pos();
    const QPoint offset = target->mapTo(&dialog, QPoint(160, 40));
    // The pointer's place on the screen; dragging keeps it over the same spot of the window.
    QPoint pointer = start + offset;
    sendMouse(&dialog, target, QEvent::MouseButtonPress, pointer);
    QCOMPARE(dialog.pos(), start);
    for (const QPoint& step : {QPoint(30, 20), QPoint(-5, 12), QPoint(40, -60)}) {
        pointer += step;
        sendMouse(&dialog, target, QEvent::MouseMove, pointer);
        QCOMPARE(pointer - dialog.pos(), offset);
    }
    sendMouse(&dialog, target, QEvent::MouseButtonRelease, pointer);
    // After the release the pointer moves alone.
    const QPoint released = dialog.pos();
    sendMouse(&dialog, target, QEvent::MouseMove, pointer + QPoint(25, 25));
    QCOMPARE(dialog.pos(), released);
}

QTEST_MAIN(TestSettingView)
#include "tst_setting_view.moc"
