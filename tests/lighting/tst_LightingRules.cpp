// Light modes and their rules, read off the page's widgets after the user picks a mode.

#include "LightingTestSupport.h"

#include "Widget_Light_Mode_View.h"

#include <QRegularExpression>
#include <QSignalSpy>

using namespace LightingTest;

namespace {

QStringList offeredModes(Page& p)
{
    QStringList names;
    for (QPushButton* button :
         p.page.findChild<Widget_Light_Mode_View*>()->findChildren<QPushButton*>())
        names << button->text();
    return names;
}

} // namespace

class tst_LightingRules : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        isNewMode = true;
        SelectMemoryIndex = 0;
    }
    void ruleTable_data();
    void ruleTable();
    void newModesOnlyForNewerModules();
    void randomBeforeFirstLanguageRefresh();
};

void tst_LightingRules::ruleTable_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("items");
    QTest::addColumn<bool>("colorCombo");
    QTest::addColumn<bool>("colorEntry");
    QTest::addColumn<bool>("brightness");
    QTest::addColumn<bool>("speedFixed");
    const auto row = [](int mode, const char* name, const char* items, bool colorCombo,
                        bool colorEntry, bool brightness, bool speedFixed) {
        QTest::addRow("%d %s", mode, name)
            << mode << QString::fromLatin1(name) << QString::fromLatin1(items) << colorCombo
            << colorEntry << brightness << speedFixed;
    };
    // Colour combo, colour entry and brightness enabled; speed fixed at "Normal".
    row(0, "Flow", "OFF", 0, 0, 0, 0);
    row(1, "RGB Spectrum", "OFF", 0, 0, 0, 0);
    row(2, "Ripple", "Single,Random", 1, 1, 1, 0);
    row(3, "Blink", "RGB,Single,Random", 1, 1, 1, 0);
    row(4, "Pulse", "RGB,Single,Random", 1, 1, 1, 0);
    row(5, "Wave", "RGB", 0, 1, 1, 0);
    row(6, "Static", "RGB,Single", 1, 1, 1, 1);
    row(7, "Copy", "OFF", 0, 0, 0, 1);
    row(8, "Movie", "RGB,Single", 1, 1, 1, 1);
    row(9, "Gaming", "RGB,Single", 1, 1, 1, 1);
    row(10, "Party", "RGB,Single", 1, 1, 1, 1);
    row(11, "Mobile_Movie", "RGB,Single", 1, 1, 1, 1);
    row(12, "Mobile_Gaming", "RGB,Single", 1, 1, 1, 1);
    row(13, "Mobile_Party", "RGB,Single", 1, 1, 1, 1);
    row(14, "Temp.", "OFF", 0, 0, 0, 1);
    row(15, "Cross", "RGB,Single", 1, 1, 1, 0);
    row(16, "Hello", "OFF", 0, 0, 0, 1);
    row(17, "Shooting Star", "RGB,Single", 1, 1, 1, 1);
    row(18, "Black Hole", "RGB,Single", 1, 1, 1, 1);
    row(19, "Aurora", "OFF", 0, 0, 0, 1);
    row(20, "RGB Sync", "OFF", 0, 0, 0, 1);
    row(21, "Twinkle", "RGB,Single", 1, 1, 1, 0);
    row(22, "Script", "OFF", 0, 0, 0, 1);
    row(23, "Weather", "OFF", 0, 0, 0, 1);
    row(24, "Raindrop", "RGB,Single", 1, 1, 1, 0);
    row(25, "Heartbeat", "RGB,Single,Random", 1, 1, 1, 0);
    row(26, "Stack", "RGB,Single", 1, 1, 1, 0);
    row(27, "Scan", "RGB,Single", 1, 1, 1, 0);
    row(28, "Swirl", "RGB,Single", 1, 1, 1, 0);
    row(29, "Screen Gaming", "OFF", 0, 0, 0, 1);
    row(30, "Screen Movie", "OFF", 0, 0, 0, 1);
    row(31, "Clock", "OFF", 0, 0, 0, 1);
    row(32, "Rain", "Single", 0, 1, 1, 0);
    row(33, "Fireworks", "RGB,Single", 1, 1, 1, 0);
    row(34, "Explosion", "RGB,Single", 1, 1, 1, 0);
    row(35, "MB Sync", "RGB,Single", 1, 1, 1, 0);
    row(36, "Radiation", "Single,Random", 1, 1, 1, 0);
    row(37, "Aim", "RGB,Single,Random", 1, 1, 1, 0);
}

// Modules 2 (speed Fast) and 5 (speed Slow) are selected; a speed that is not fixed shows the
// first selected module's.
void tst_LightingRules::ruleTable()
{
    QFETCH(int, mode);
    QFETCH(QString, name);
    QFETCH(QString, items);
    QFETCH(bool, colorCombo);
    QFETCH(bool, colorEntry);
    QFETCH(bool, brightness);
    QFETCH(bool, speedFixed);
    Page p;
    p.page.setLighting(5, 15, 0, 3, false);
    p.clickSlot(5);
    p.clickSlot(2);

    emit p.page.findChild<Widget_Light_Mode_View*>()->selectLightMode(mode);

    QCOMPARE(p.child<QPushButton>("btn_LightMode")->text(), name);
    auto* colorBox = p.child<QComboBox>("comboBox_ColorMode");
    const QStringList expected = items.split(QLatin1Char(','));
    // The items, then the hidden empty one shown while selected modules disagree.
    QCOMPARE(colorBox->count(), expected.size() + 1);
    for (int i = 0; i < colorBox->count(); ++i)
        QCOMPARE(colorBox->itemText(i), expected.value(i));
    QCOMPARE(colorBox->isEnabled(), colorCombo);
    for (const char* entry : {"slider_R_Value", "slider_G_Value", "slider_B_Value",
                              "lineEdit_R_Value", "lineEdit_G_Value", "lineEdit_B_Value"})
        QVERIFY2(p.child(entry)->isEnabled() == colorEntry, entry);
    QCOMPARE(p.child("slider_Light")->isEnabled(), brightness);
    auto* speedBox = p.child<QComboBox>("comboBox_LightSpeed");
    QCOMPARE(speedBox->currentText(), QLatin1String(speedFixed ? "Normal" : "Fast"));
    QCOMPARE(speedBox->isEnabled(), !speedFixed);
}

// Modes 36 and 37 have names, and a place in the mode list, only for the newer modules.
void tst_LightingRules::newModesOnlyForNewerModules()
{
    isNewMode = false;
    Page p;
    auto* modeButton = p.child<QPushButton>("btn_LightMode");
    const QRegularExpression someModes(QStringLiteral("^(Swirl|Radiation|Aim)$"));
    QCOMPARE(offeredModes(p).filter(someModes), QStringList{"Swirl"});
    p.page.setLighting(0, 36, 1, 1, false);
    QVERIFY(modeButton->text().isEmpty());

    isNewMode = true;
    p.page.updateLanguage_Lighting();
    QCOMPARE(offeredModes(p).filter(someModes), (QStringList{"Swirl", "Radiation", "Aim"}));
    p.page.setLighting(0, 37, 0, 1, false);
    QCOMPARE(modeButton->text(), QStringLiteral("Aim"));
}

// "Random" is sent as colour mode 0 until the first language refresh, as 3 after it.
void tst_LightingRules::randomBeforeFirstLanguageRefresh()
{
    Page p;
    p.page.setLighting(0, 3, 0, 1, false);
    p.clickSlot(0);
    auto* colorBox = p.child<QComboBox>("comboBox_ColorMode");
    QSignalSpy colorModes(&p.page, &Lighting_View::changeColorMode);
    colorBox->setFocus();
    QTest::keyClick(colorBox, Qt::Key_Down);
    QTest::keyClick(colorBox, Qt::Key_Down);
    QCOMPARE(colorBox->currentText(), QStringLiteral("Random"));
    QCOMPARE(colorModes.last(), (QVariantList{0, 0}));

    p.page.updateLanguage_Lighting();
    QTest::keyClick(colorBox, Qt::Key_Up);
    QCOMPARE(colorModes.last(), (QVariantList{0, 1}));
    QTest::keyClick(colorBox, Qt::Key_Down);
    QCOMPARE(colorModes.last(), (QVariantList{0, 3}));
}

QTEST_MAIN(tst_LightingRules)
#include "tst_LightingRules.moc"
