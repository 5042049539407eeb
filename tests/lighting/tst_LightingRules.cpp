// Light modes and the rules between them, read off the page's widgets: which colour modes each
// light mode offers, which controls stay usable, the fixed speed, the hidden "disagree" items,
// the mode names with and without the newer module generation, and the MB Sync warning.

#include "LightingTestSupport.h"

#include "Widget_Light_Mode_View.h"

#include <QSignalSpy>
#include <QStandardPaths>

using namespace LightingTest;

namespace {

const QString Rgb = QStringLiteral("RGB");
const QString Single = QStringLiteral("Single");
const QString Off = QStringLiteral("OFF");
const QString Random = QStringLiteral("Random");

Widget_Light_Mode_View* modeList(const Fixture& f)
{
    return f.page->findChild<Widget_Light_Mode_View*>();
}

// The user picks a mode from the light-mode list.
void pickMode(const Fixture& f, int mode)
{
    emit modeList(f)->selectLightMode(mode);
}

} // namespace

class tst_LightingRules : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void ruleTable_data();
    void ruleTable();
    void enablingFollowsTheLatestMode();
    void listPickShowsModeAndClosesList();
    void newModesNeedNewerModules();
    void randomNeedsLanguageRefresh();
    void mbSyncLabel_data();
    void mbSyncLabel();
    void fontSizesPerLanguage_data();
    void fontSizesPerLanguage();
};

void tst_LightingRules::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void tst_LightingRules::init()
{
    isNewMode = true;
    mbSyncWarning = false;
    currentLanguage = 0;
    SelectMemoryIndex = 0;
}

void tst_LightingRules::ruleTable_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("colorItems");
    QTest::addColumn<bool>("colorCombo");
    QTest::addColumn<bool>("colorEntry");
    QTest::addColumn<bool>("brightness");
    QTest::addColumn<bool>("speedFixed");

    const QStringList off{Off};
    const QStringList rgbSingle{Rgb, Single};
    const QStringList withRandom{Rgb, Single, Random};
    struct Row {
        int mode;
        const char* name;
        QStringList items;
        bool combo;
        bool entry;
        bool bright;
        bool fixed;
    };
    const Row rows[] = {
        {0, "Flow", off, false, false, false, false},
        {1, "RGB Spectrum", off, false, false, false, false},
        {2, "Ripple", {Single, Random}, true, true, true, false},
        {3, "Blink", withRandom, true, true, true, false},
        {4, "Pulse", withRandom, true, true, true, false},
        {5, "Wave", {Rgb}, false, true, true, false},
        {6, "Static", rgbSingle, true, true, true, true},
        {7, "Copy", off, false, false, false, true},
        {8, "Movie", rgbSingle, true, true, true, true},
        {9, "Gaming", rgbSingle, true, true, true, true},
        {10, "Party", rgbSingle, true, true, true, true},
        {11, "Mobile_Movie", rgbSingle, true, true, true, true},
        {12, "Mobile_Gaming", rgbSingle, true, true, true, true},
        {13, "Mobile_Party", rgbSingle, true, true, true, true},
        {14, "Temp.", off, false, false, false, true},
        {15, "Cross", rgbSingle, true, true, true, false},
        {16, "Hello", off, false, false, false, true},
        {17, "Shooting Star", rgbSingle, true, true, true, true},
        {18, "Black Hole", rgbSingle, true, true, true, true},
        {19, "Aurora", off, false, false, false, true},
        {20, "RGB Sync", off, false, false, false, true},
        {21, "Twinkle", rgbSingle, true, true, true, false},
        {22, "Script", off, false, false, false, true},
        {23, "Weather", off, false, false, false, true},
        {24, "Raindrop", rgbSingle, true, true, true, false},
        {25, "Heartbeat", withRandom, true, true, true, false},
        {26, "Stack", rgbSingle, true, true, true, false},
        {27, "Scan", rgbSingle, true, true, true, false},
        {28, "Swirl", rgbSingle, true, true, true, false},
        {29, "Screen Gaming", off, false, false, false, true},
        {30, "Screen Movie", off, false, false, false, true},
        {31, "Clock", off, false, false, false, true},
        {32, "Rain", {Single}, false, true, true, false},
        {33, "Fireworks", rgbSingle, true, true, true, false},
        {34, "Explosion", rgbSingle, true, true, true, false},
        {35, "MB Sync", rgbSingle, true, true, true, false},
        {36, "Radiation", {Single, Random}, true, true, true, false},
        {37, "Aim", withRandom, true, true, true, false},
    };
    for (const Row& row : rows) {
        QTest::addRow("%d %s", row.mode, row.name)
            << row.mode << QString::fromLatin1(row.name) << row.items << row.combo << row.entry
            << row.bright << row.fixed;
    }
}

void tst_LightingRules::ruleTable()
{
    QFETCH(int, mode);
    QFETCH(QString, name);
    QFETCH(QStringList, colorItems);
    QFETCH(bool, colorCombo);
    QFETCH(bool, colorEntry);
    QFETCH(bool, brightness);
    QFETCH(bool, speedFixed);

    Fixture f;
    // Module 2 is the first selected one and runs "Fast"; module 5 runs "Slow".
    f.load(8, 8, 8, 15, 0, 1);
    f.page->setLighting(5, 15, 0, 3, false);
    f.clickSlot(5);
    f.clickSlot(2);
    QCOMPARE(SelectMemoryIndex, 2);

    pickMode(f, mode);

    QCOMPARE(f.child<QPushButton>(QStringLiteral("btn_LightMode"))->text(), name);
    auto* colorBox = f.child<QComboBox>(QStringLiteral("comboBox_ColorMode"));
    QCOMPARE(visibleItems(colorBox), colorItems);
    QCOMPARE(colorBox->count(), colorItems.size() + 1);
    QVERIFY(colorBox->itemText(colorBox->count() - 1).isEmpty());
    QCOMPARE(colorBox->isEnabled(), colorCombo);

    for (const char* entry : {"slider_R_Value", "slider_G_Value", "slider_B_Value",
                              "lineEdit_R_Value", "lineEdit_G_Value", "lineEdit_B_Value"})
        QVERIFY2(f.child(QString::fromLatin1(entry))->isEnabled() == colorEntry, entry);
    QCOMPARE(f.child(QStringLiteral("slider_Light"))->isEnabled(), brightness);

    auto* speedBox = f.child<QComboBox>(QStringLiteral("comboBox_LightSpeed"));
    QCOMPARE(visibleItems(speedBox),
             (QStringList{QStringLiteral("Extreme"), QStringLiteral("Fast"),
                          QStringLiteral("Normal"), QStringLiteral("Slow")}));
    QCOMPARE(speedBox->count(), 5);
    QVERIFY(speedBox->itemText(4).isEmpty());
    if (speedFixed) {
        QCOMPARE(speedBox->currentText(), QStringLiteral("Normal"));
        QVERIFY(!speedBox->isEnabled());
    } else {
        // The first selected module's own speed.
        QCOMPARE(speedBox->currentText(), QStringLiteral("Fast"));
        QVERIFY(speedBox->isEnabled());
    }
}

// Leaving a built-in-colour mode gives the colour entry and brightness back; leaving a
// fixed-speed mode gives the speed back, showing the module's stored speed.
void tst_LightingRules::enablingFollowsTheLatestMode()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 3);
    f.clickSlot(0);
    auto* red = f.child<QSlider>(QStringLiteral("slider_R_Value"));
    auto* redEdit = f.child<QLineEdit>(QStringLiteral("lineEdit_R_Value"));
    auto* bright = f.child(QStringLiteral("slider_Light"));
    auto* speedBox = f.child<QComboBox>(QStringLiteral("comboBox_LightSpeed"));

    pickMode(f, 19); // Aurora: built-in colours, fixed speed
    QVERIFY(!red->isEnabled());
    QVERIFY(!redEdit->isEnabled());
    QVERIFY(!bright->isEnabled());
    QVERIFY(!speedBox->isEnabled());
    QCOMPARE(speedBox->currentIndex(), 2);

    pickMode(f, 15); // Cross
    QVERIFY(red->isEnabled());
    QVERIFY(redEdit->isEnabled());
    QVERIFY(bright->isEnabled());
    QVERIFY(speedBox->isEnabled());
    QCOMPARE(speedBox->currentText(), QStringLiteral("Slow"));

    // The combo was rebuilt: the colour combo is back on its first item.
    pickMode(f, 2);
    QCOMPARE(f.child<QComboBox>(QStringLiteral("comboBox_ColorMode"))->currentText(), Single);
}

void tst_LightingRules::listPickShowsModeAndClosesList()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    f.clickSlot(0);
    f.clickSlot(1);
    QSignalSpy colorModes(f.page, &Lighting_View::changeColorMode);
    auto* modeButton = f.child<QPushButton>(QStringLiteral("btn_LightMode"));
    Widget_Light_Mode_View* list = modeList(f);

    QVERIFY(list->isHidden());
    QTest::mouseClick(modeButton, Qt::LeftButton);
    QVERIFY(list->isVisible());
    QTRY_VERIFY(list->hasFocus());

    // The list holds the names the page gave it; never-offered modes are missing.
    QPushButton* wave = nullptr;
    QStringList offered;
    for (QPushButton* button : list->findChildren<QPushButton*>()) {
        offered << button->text();
        if (button->text() == QLatin1String("Wave"))
            wave = button;
    }
    QVERIFY(offered.contains(QStringLiteral("Radiation")));
    QVERIFY(!offered.contains(QStringLiteral("MB Sync")));
    QVERIFY(wave);

    QTest::mouseClick(wave, Qt::LeftButton);
    QCOMPARE(modeButton->text(), QStringLiteral("Wave"));
    QVERIFY(list->isHidden());
    // Each selected module previews the colour mode of the new rule right away.
    QCOMPARE(colorModes.count(), 2);
    QCOMPARE(colorModes.at(0), (QVariantList{0, 0}));
    QCOMPARE(colorModes.at(1), (QVariantList{1, 0}));

    // A second click on the mode button while the list is open closes it.
    QTest::mouseClick(modeButton, Qt::LeftButton);
    QTRY_VERIFY(list->hasFocus());
    QTest::mouseClick(modeButton, Qt::LeftButton);
    QVERIFY(list->isHidden());

    // So does a click anywhere else on the page.
    QTest::mouseClick(modeButton, Qt::LeftButton);
    QTRY_VERIFY(list->hasFocus());
    QTest::mouseClick(f.page, Qt::LeftButton, {}, QPoint(400, 8));
    QVERIFY(list->isHidden());
    QCOMPARE(modeButton->text(), QStringLiteral("Wave"));
}

// Without the newer generation, modes 36 and 37 have no name: a module reported in mode 36
// shows an empty mode button. A language refresh after the flag is raised names them.
void tst_LightingRules::newModesNeedNewerModules()
{
    isNewMode = false;
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    auto* modeButton = f.child<QPushButton>(QStringLiteral("btn_LightMode"));
    for (QPushButton* button : modeList(f)->findChildren<QPushButton*>())
        QVERIFY(button->text() != QLatin1String("Radiation") &&
                button->text() != QLatin1String("Aim"));

    f.page->setLighting(0, 36, 1, 1, false);
    QVERIFY(modeButton->text().isEmpty());
    f.page->setLighting(0, 37, 0, 1, false);
    QVERIFY(modeButton->text().isEmpty());

    isNewMode = true;
    f.page->updateLanguage_Lighting();
    f.page->setLighting(0, 37, 0, 1, false);
    QCOMPARE(modeButton->text(), QStringLiteral("Aim"));
}

// Until the first language refresh "Random" is not among the known colour modes and is sent as
// colour mode 0; afterwards it is sent as 3.
void tst_LightingRules::randomNeedsLanguageRefresh()
{
    Fixture f;
    f.load(8, 8, 8, 3, 0, 1);
    f.clickSlot(0);
    auto* colorBox = f.child<QComboBox>(QStringLiteral("comboBox_ColorMode"));
    QCOMPARE(visibleItems(colorBox), (QStringList{Rgb, Single, Random}));
    QSignalSpy colorModes(f.page, &Lighting_View::changeColorMode);

    colorBox->setFocus();
    QTest::keyClick(colorBox, Qt::Key_Down);
    QTest::keyClick(colorBox, Qt::Key_Down);
    QCOMPARE(colorBox->currentText(), Random);
    QCOMPARE(colorModes.last(), (QVariantList{0, 0}));
    // The hidden empty item cannot be reached with the keyboard.
    QTest::keyClick(colorBox, Qt::Key_Down);
    QCOMPARE(colorBox->currentText(), Random);

    f.page->updateLanguage_Lighting();
    colorModes.clear();
    QTest::keyClick(colorBox, Qt::Key_Up);
    QCOMPARE(colorModes.last(), (QVariantList{0, 1}));
    QTest::keyClick(colorBox, Qt::Key_Down);
    QCOMPARE(colorModes.last(), (QVariantList{0, 3}));
}

void tst_LightingRules::mbSyncLabel_data()
{
    QTest::addColumn<bool>("flag");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("shown");
    QTest::newRow("flag, MB Sync") << true << 35 << true;
    QTest::newRow("flag, other mode") << true << 34 << false;
    QTest::newRow("no flag, MB Sync") << false << 35 << false;
}

void tst_LightingRules::mbSyncLabel()
{
    QFETCH(bool, flag);
    QFETCH(int, mode);
    QFETCH(bool, shown);
    mbSyncWarning = flag;
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    auto* label = f.child<QLabel>(QStringLiteral("label_MB_Sync"));
    QVERIFY(label->isHidden());
    QVERIFY(label->wordWrap());
    QVERIFY(!label->text().isEmpty());

    // From the controller for the focused module, and from a pick in the list.
    f.page->setLighting(0, mode, 0, 1, false);
    QCOMPARE(label->isVisible(), shown);
    // Shown, it reads on top of the colour wheel it reaches over.
    if (shown) {
        QWidget* deck = label->parentWidget();
        const QRect shared = label->geometry() & f.child(QStringLiteral("rgb_Palette"))->geometry();
        QVERIFY(!shared.isEmpty());
        QCOMPARE(deck->childAt(shared.center()), label);
    }
    f.page->setLighting(0, 15, 0, 1, false);
    QVERIFY(label->isHidden());
    f.clickSlot(0);
    pickMode(f, mode);
    QCOMPARE(label->isVisible(), shown);
    // Another module's report leaves the warning alone.
    f.page->setLighting(3, 15, 0, 1, false);
    QCOMPARE(label->isVisible(), shown);
}

void tst_LightingRules::fontSizesPerLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("defaultButton");
    QTest::addColumn<int>("colorModeLabel");
    QTest::addColumn<int>("speedLabel");
    QTest::addColumn<int>("turnLightLabel");
    QTest::addColumn<int>("speedCombo");
    QTest::newRow("English") << 0 << 12 << 22 << 22 << 22 << 14;
    QTest::newRow("Traditional Chinese") << 1 << 12 << 22 << 22 << 22 << 14;
    QTest::newRow("German") << 3 << 12 << 22 << 12 << 22 << 14;
    QTest::newRow("Japanese") << 5 << 8 << 13 << 12 << 22 << 14;
    QTest::newRow("Russian") << 7 << 8 << 14 << 12 << 22 << 12;
    QTest::newRow("Korean") << 8 << 12 << 22 << 22 << 22 << 14;
    QTest::newRow("Spanish") << 9 << 9 << 16 << 9 << 14 << 14;
}

void tst_LightingRules::fontSizesPerLanguage()
{
    QFETCH(int, language);
    QFETCH(int, defaultButton);
    QFETCH(int, colorModeLabel);
    QFETCH(int, speedLabel);
    QFETCH(int, turnLightLabel);
    QFETCH(int, speedCombo);
    Fixture f;
    currentLanguage = language;
    f.page->updateLanguage_Lighting();
    const auto pixelSize = [&f](const char* name) {
        QWidget* widget = f.child(QString::fromLatin1(name));
        widget->ensurePolished();
        return widget->font().pixelSize();
    };
    QCOMPARE(pixelSize("btn_Default"), defaultButton);
    QCOMPARE(pixelSize("label_colorMode"), colorModeLabel);
    QCOMPARE(pixelSize("label_ligheSpeed"), speedLabel);
    QCOMPARE(pixelSize("label_TurnLight"), turnLightLabel);
    QCOMPARE(pixelSize("comboBox_LightSpeed"), speedCombo);
}

QTEST_MAIN(tst_LightingRules)
#include "tst_LightingRules.moc"
