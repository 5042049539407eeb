#include "TestEnvironment.h"

#include "AppGlobals.h"
#include "Setting_View.h"
#include "SwitchButton.h"
#include "Widget_Language.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTranslator>
#include <QtTest>

#include <cstring>
#include <memory>

Q_DECLARE_METATYPE(SettingData)

namespace {

const char* const kFileCodes[] = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"};

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

bool sameRecord(const SettingData& a, const SettingData& b)
{
    return std::memcmp(&a, &b, sizeof(SettingData)) == 0;
}

SettingData recordAt(const QSignalSpy& spy, int index)
{
    return spy.at(index).at(0).value<SettingData>();
}

QString qmFile(const char* code)
{
    return QStringLiteral(":/QXRGBMemory/NORVALEX_") + QLatin1String(code) + QStringLiteral(".qm");
}

} // namespace

class TestSettingView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void startsWithDefaults();
    void chooseLanguageFromList_data();
    void chooseLanguageFromList();
    void clickOutsideClosesListWithoutChoice();
    void unknownLanguageIndexKeepsText();
    void switchesSendWholeRecord_data();
    void switchesSendWholeRecord();
    void setSettingDataShowsRecord();
    void locationRowNeedsExtendedFeatures();
    void autoRunSizePerLanguage_data();
    void autoRunSizePerLanguage();
    void captionsFitInEveryLanguage_data();
    void captionsFitInEveryLanguage();
    void languageUnderline();

private:
    std::unique_ptr<Setting_View> makePage();
    template <typename T> T* child(QWidget* page, const char* name)
    {
        T* widget = page->findChild<T*>(QLatin1String(name));
        if (!widget)
            qFatal("missing child %s", name);
        return widget;
    }
    QPushButton* listButton(QWidget* page, int index)
    {
        auto* list = child<Widget_Language>(page, "widget_Language");
        return child<QPushButton>(list, qPrintable(QString::number(index)));
    }

    QTranslator english;
};

void TestSettingView::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    qRegisterMetaType<SettingData>();
    QVERIFY(english.load(qmFile("en")));
    QCoreApplication::installTranslator(&english);
}

void TestSettingView::init()
{
    extendedFeatures = true;
    currentLanguage = 0;
}

std::unique_ptr<Setting_View> TestSettingView::makePage()
{
    auto page = std::make_unique<Setting_View>();
    page->show();
    page->activateWindow();
    if (!QTest::qWaitForWindowActive(page.get()))
        qWarning("page window did not become active");
    return page;
}

void TestSettingView::startsWithDefaults()
{
    auto page = makePage();
    QCOMPARE(page->objectName(), QStringLiteral("Information_View"));
    QCOMPARE(page->size(), QSize(800, 510));
    QVERIFY(child<SwitchButton>(page.get(), "switch_AutoUpdate")->isChecked());
    QVERIFY(child<SwitchButton>(page.get(), "switch_AutoRun")->isChecked());
    QVERIFY(!child<SwitchButton>(page.get(), "switch_CurrentLocation")->isChecked());
    QCOMPARE(child<QPushButton>(page.get(), "btn_Language")->text(), QStringLiteral("English"));
    QCOMPARE(child<QLabel>(page.get(), "label_Language")->text(), QStringLiteral("Language"));
    QCOMPARE(child<QLabel>(page.get(), "label_AutoUpdate")->text(), QStringLiteral("Auto Update"));
    QCOMPARE(child<QLabel>(page.get(), "label_AutoRun")->text(),
             QStringLiteral("Minimize after system startup"));
    QCOMPARE(child<QLabel>(page.get(), "label_CurrentLocation")->text(),
             QStringLiteral("Turn on location services to receive local weather updates"));
    QCOMPARE(child<QLabel>(page.get(), "label_Version")->text(), QStringLiteral("Version:"));
    QCOMPARE(child<QLabel>(page.get(), "label_Version_Value")->text(), programVersion);
    QVERIFY(child<Widget_Language>(page.get(), "widget_Language")->isHidden());

    // The first switch change carries the starting record.
    QSignalSpy spy(page.get(), &Setting_View::changeSettingData);
    page->slot_AutoUpdate_Switch(false);
    QCOMPARE(spy.count(), 1);
    const SettingData sent = recordAt(spy, 0);
    QCOMPARE(sent.languageIndex, 0);
    QCOMPARE(sent.autoUpdate, false);
    QCOMPARE(sent.autoRun, true);
    QCOMPARE(sent.currentLocation, false);
}

void TestSettingView::chooseLanguageFromList_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");

    QTest::newRow("Deutsch") << 3 << QStringLiteral("Deutsch");
    QTest::newRow("Русский") << 7 << QStringLiteral("Русский");
    QTest::newRow("Spanish") << 9 << QStringLiteral("Spanish");
    QTest::newRow("正體中文") << 1 << QStringLiteral("正體中文");
    QTest::newRow("English") << 0 << QStringLiteral("English");
}

void TestSettingView::chooseLanguageFromList()
{
    QFETCH(int, index);
    QFETCH(QString, name);

    auto page = makePage();
    const SettingData base = record(5, false, true, true);
    page->setSettingData(base);
    QSignalSpy spy(page.get(), &Setting_View::changeSettingData);

    auto* button = child<QPushButton>(page.get(), "btn_Language");
    auto* list = child<Widget_Language>(page.get(), "widget_Language");
    auto* grid = child<QWidget>(page.get(), "widget_Grid");
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(list->isVisible());
    QCOMPARE(list->pos(), grid->pos() + button->pos() + QPoint(0, button->height() + 1));
    QCOMPARE(list->size(), QSize(300, 200));
    QTRY_VERIFY(list->hasFocus());

    auto* entry = listButton(page.get(), index);
    QCOMPARE(entry->text(), name);
    QTest::mouseClick(entry, Qt::LeftButton);

    QCOMPARE(spy.count(), 1);
    SettingData expected = base;
    expected.languageIndex = index;
    QVERIFY(sameRecord(recordAt(spy, 0), expected));
    QCOMPARE(currentLanguage, index);
    QCOMPARE(button->text(), name);
    // A choice closes the list.
    QTRY_VERIFY(list->isHidden());
}

void TestSettingView::clickOutsideClosesListWithoutChoice()
{
    auto page = makePage();
    QSignalSpy spy(page.get(), &Setting_View::changeSettingData);
    auto* list = child<Widget_Language>(page.get(), "widget_Language");

    QTest::mouseClick(child<QPushButton>(page.get(), "btn_Language"), Qt::LeftButton);
    QVERIFY(list->isVisible());
    QTRY_VERIFY(list->hasFocus());
    QTest::mouseClick(page.get(), Qt::LeftButton, Qt::NoModifier, QPoint(700, 480));
    QTRY_VERIFY(list->isHidden());
    QCOMPARE(spy.count(), 0);
    QCOMPARE(currentLanguage, 0);

    // It opens again on the next press.
    QTest::mouseClick(child<QPushButton>(page.get(), "btn_Language"), Qt::LeftButton);
    QVERIFY(list->isVisible());
}

void TestSettingView::unknownLanguageIndexKeepsText()
{
    auto page = makePage();
    auto* button = child<QPushButton>(page.get(), "btn_Language");
    page->setSettingData(record(4, true, true, false));
    QCOMPARE(button->text(), QStringLiteral("Français"));

    page->setSettingData(record(12, true, true, false));
    QCOMPARE(button->text(), QStringLiteral("Français"));
    page->setSettingData(record(-1, true, true, false));
    QCOMPARE(button->text(), QStringLiteral("Français"));

    // The index is stored as received and sent back with the next change.
    page->setSettingData(record(12, true, true, false));
    QSignalSpy spy(page.get(), &Setting_View::changeSettingData);
    page->slot_AutoRun_Switch(false);
    QCOMPARE(recordAt(spy, 0).languageIndex, 12);
    QCOMPARE(child<QLabel>(page.get(), "label_AutoRun")->text(),
             QStringLiteral("Minimize after system startup"));
}

void TestSettingView::switchesSendWholeRecord_data()
{
    QTest::addColumn<QString>("switchName");
    QTest::addColumn<int>("field");

    QTest::newRow("auto update") << "switch_AutoUpdate" << 0;
    QTest::newRow("auto run") << "switch_AutoRun" << 1;
    QTest::newRow("location") << "switch_CurrentLocation" << 2;
}

void TestSettingView::switchesSendWholeRecord()
{
    QFETCH(QString, switchName);
    QFETCH(int, field);

    auto page = makePage();
    const SettingData base = record(8, true, false, true);
    page->setSettingData(base);
    QSignalSpy spy(page.get(), &Setting_View::changeSettingData);

    auto* button = child<SwitchButton>(page.get(), qPrintable(switchName));
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
    QCOMPARE(spy.count(), 1);

    SettingData expected = base;
    bool* flags[] = {&expected.autoUpdate, &expected.autoRun, &expected.currentLocation};
    *flags[field] = !*flags[field];
    QVERIFY(sameRecord(recordAt(spy, 0), expected));
    QCOMPARE(button->isChecked(), *flags[field]);
}

void TestSettingView::setSettingDataShowsRecord()
{
    auto page = makePage();
    QSignalSpy spy(page.get(), &Setting_View::changeSettingData);
    page->setSettingData(record(2, false, false, true));
    QCOMPARE(spy.count(), 0);
    QVERIFY(!child<SwitchButton>(page.get(), "switch_AutoUpdate")->isChecked());
    QVERIFY(!child<SwitchButton>(page.get(), "switch_AutoRun")->isChecked());
    QVERIFY(child<SwitchButton>(page.get(), "switch_CurrentLocation")->isChecked());
    QCOMPARE(child<QPushButton>(page.get(), "btn_Language")->text(), QStringLiteral("簡體中文"));

    // The page shows the record; the process-wide language follows only the user's choice.
    QCOMPARE(currentLanguage, 0);
}

void TestSettingView::locationRowNeedsExtendedFeatures()
{
    auto page = makePage();
    auto* locationSwitch = child<SwitchButton>(page.get(), "switch_CurrentLocation");
    auto* locationLabel = child<QLabel>(page.get(), "label_CurrentLocation");
    page->setSettingData(record(0, true, true, true));
    QVERIFY(!locationSwitch->isHidden());
    QVERIFY(!locationLabel->isHidden());

    extendedFeatures = false;
    page->setSettingData(record(0, true, true, true));
    QVERIFY(locationSwitch->isHidden());
    QVERIFY(locationLabel->isHidden());
    QVERIFY(!child<SwitchButton>(page.get(), "switch_AutoRun")->isHidden());

    // Nothing brings it back.
    page->slot_AutoUpdate_Switch(false);
    page->updateLanguage_Setting();
    extendedFeatures = true;
    page->setSettingData(record(0, true, true, true));
    QVERIFY(locationSwitch->isHidden());
    QVERIFY(locationLabel->isHidden());
}

void TestSettingView::autoRunSizePerLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("pixels");

    QTest::newRow("en") << 0 << 22;
    QTest::newRow("de") << 3 << 22;
    QTest::newRow("fr") << 4 << 19;
    QTest::newRow("ru") << 7 << 20;
    QTest::newRow("es") << 9 << 22;
}

void TestSettingView::autoRunSizePerLanguage()
{
    QFETCH(int, language);
    QFETCH(int, pixels);

    auto page = makePage();
    auto* autoRun = child<QLabel>(page.get(), "label_AutoRun");
    auto* location = child<QLabel>(page.get(), "label_CurrentLocation");

    page->setSettingData(record(language, true, true, false));
    autoRun->ensurePolished();
    location->ensurePolished();
    QCOMPARE(autoRun->font().pixelSize(), pixels);
    QCOMPARE(location->font().pixelSize(), 18);

    // The same size when the choice comes from the list.
    page->setSettingData(record(0, true, true, false));
    page->currentLanguageIndex(language);
    autoRun->ensurePolished();
    QCOMPARE(autoRun->font().pixelSize(), pixels);
}

void TestSettingView::captionsFitInEveryLanguage_data()
{
    QTest::addColumn<int>("language");
    for (int i = 0; i < 10; ++i)
        QTest::newRow(kFileCodes[i]) << i;
}

void TestSettingView::captionsFitInEveryLanguage()
{
    QFETCH(int, language);

    QTranslator translator;
    QVERIFY(translator.load(qmFile(kFileCodes[language])));
    QCoreApplication::installTranslator(&translator);
    auto page = makePage();
    page->setSettingData(record(language, true, true, false));

    // Every language file gives the list's names natively.
    const char* const names[] = {"English", "正體中文", "簡體中文", "Deutsch", "Français",
                                 "日本語",  "ไทย",      "Русский",  "한국어",  "Spanish"};
    for (int i = 0; i < 10; ++i)
        QCOMPARE(listButton(page.get(), i)->text(), QString::fromUtf8(names[i]));
    QCOMPARE(child<QPushButton>(page.get(), "btn_Language")->text(),
             QString::fromUtf8(names[language]));

    for (QLabel* label : page->findChildren<QLabel*>()) {
        if (label->isHidden())
            continue;
        label->ensurePolished();
        const int needed = QFontMetrics(label->font()).horizontalAdvance(label->text());
        QVERIFY2(needed <= label->width(), qPrintable(label->text()));
        QVERIFY2(label->text() != QLatin1String("Current_Location"), "untranslated");
    }
    auto* button = child<QPushButton>(page.get(), "btn_Language");
    button->ensurePolished();
    // Room for the arrow at the right.
    const int textWidth = QFontMetrics(button->font()).horizontalAdvance(button->text());
    QVERIFY2(textWidth + 14 <= button->width(), qPrintable(button->text()));

    QCoreApplication::removeTranslator(&translator);
}

void TestSettingView::languageUnderline()
{
    auto page = makePage();
    auto* button = child<QPushButton>(page.get(), "btn_Language");
    const QWidget* grid = child<QWidget>(page.get(), "widget_Grid");
    const QImage shot = page->grab().toImage();
    const QPoint below = grid->pos() + button->geometry().bottomLeft() + QPoint(0, 1);
    QCOMPARE(QColor(shot.pixel(below + QPoint(3, 0))), QColor(Qt::darkGray));
    QCOMPARE(QColor(shot.pixel(below + QPoint(button->width() - 2, 0))), QColor(Qt::darkGray));
    QVERIFY(QColor(shot.pixel(below + QPoint(button->width() + 2, 0))) != QColor(Qt::darkGray));
}

QTEST_MAIN(TestSettingView)
#include "tst_setting_view.moc"
