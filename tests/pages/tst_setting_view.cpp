#include "TestEnvironment.h"

#include "AppGlobals.h"
#include "Setting_View.h"
#include "SwitchButton.h"
#include "Widget_Language.h"

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
// list without a choice; an entry is sent with the rest of the record.
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

    const int last = Widget_Language::kLanguageCount - 1;
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(list->isVisible() && list->hasFocus());
    QTest::mouseClick(list->findChild<QPushButton*>(QString::number(last)), Qt::LeftButton);
    QCOMPARE(spy.count(), 2);
    QVERIFY(sent(spy, 1, record(last, false, false, true)));
    QCOMPARE(currentLanguage, last);
    QTRY_VERIFY(list->isHidden());
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
    QVERIFY(child("switch_AutoRun")->isVisible());
}

QTEST_MAIN(TestSettingView)
#include "tst_setting_view.moc"
