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
    void receivedLanguage_data();
    void receivedLanguage();
    void switchesAndLocationRow();

private:
    template <typename T = QWidget> T* child(const char* name)
    {
        return page->findChild<T*>(QLatin1String(name));
    }

    std::unique_ptr<Setting_View> page;
    QTranslator english;
};

void TestSettingView::languageList()
{
    QSignalSpy spy(page.get(), &Setting_View::changeSettingData);
    page->setSettingData(record(5, false, true, true));
    // A received record is shown, not sent back, and leaves the process language alone.
    QCOMPARE(spy.count(), 0);
    QCOMPARE(currentLanguage, 0);

    auto* button = child<QPushButton>("btn_Language");
    auto* list = child<Widget_Language>("widget_Language");
    QSignalSpy selected(list, &Widget_Language::selectLanguage);
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(list->isVisible() && list->hasFocus());
    QTest::mouseClick(page.get(), Qt::LeftButton, Qt::NoModifier, QPoint(700, 480));
    QTRY_VERIFY(list->isHidden());
    QCOMPARE(spy.count(), 0);

    // Entry i selects language i, sent with the rest of the record; the list closes and the
    // button is relabelled at once.
    const int last = Widget_Language::kLanguageCount - 1;
    const std::pair<int, const char*> entries[] = {{0, "English"}, {3, "Deutsch"}, {last, nullptr}};
    for (const auto& [i, name] : entries) {
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(list->isVisible() && list->hasFocus());
        QTest::mouseClick(list->findChild<QPushButton*>(QString::number(i)), Qt::LeftButton);
        QCOMPARE(selected.last().at(0).toInt(), i);
        QVERIFY(sent(spy, spy.count() - 1, record(i, false, true, true)));
        QCOMPARE(currentLanguage, i);
        if (name)
            QCOMPARE(button->text(), QString::fromUtf8(name));
        QTRY_VERIFY(list->isHidden());
    }
    QCOMPARE(spy.count(), 3);
}

void TestSettingView::receivedLanguage_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");

    QTest::newRow("en") << 0 << QStringLiteral("English");
    QTest::newRow("fr") << 4 << QStringLiteral("Français");
    QTest::newRow("12 keeps the text") << 12 << QStringLiteral("Français");
    QTest::newRow("-1 keeps the text") << -1 << QStringLiteral("Français");
}

void TestSettingView::receivedLanguage()
{
    QFETCH(int, index);

    page->setSettingData(record(4, true, true, false));
    page->setSettingData(record(index, true, true, false));
    QTEST(child<QPushButton>("btn_Language")->text(), "name");

    // The index is kept as received and sent back with the next change.
    QSignalSpy spy(page.get(), &Setting_View::changeSettingData);
    page->slot_AutoRun_Switch(false);
    QVERIFY(sent(spy, 0, record(index, true, false, false)));
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
