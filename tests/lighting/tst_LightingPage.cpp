// The lighting page as the user and the controller drive it: selecting modules, Apply and
// Default, profiles, colour entry through sliders, fields and the wheel, the on/off switch,
// row selection, and the state the controller pushes in.

#include "LightingTestSupport.h"

#include "RGB_Palette.h"
#include "SwitchButton.h"

#include <QImage>
#include <QSet>
#include <QSignalSpy>
#include <QStandardPaths>

using namespace LightingTest;

namespace {

constexpr COLORREF kDefaultRainbow[8] = {0x0000FF, 0x007FFF, 0x00FFFF, 0x00FF00,
                                         0x7FFF00, 0xFFFF00, 0xFF0000, 0xFF007F};

QComboBox* colorBox(const Fixture& f)
{
    return f.child<QComboBox>(QStringLiteral("comboBox_ColorMode"));
}

QComboBox* speedBox(const Fixture& f)
{
    return f.child<QComboBox>(QStringLiteral("comboBox_LightSpeed"));
}

QPushButton* modeButton(const Fixture& f)
{
    return f.child<QPushButton>(QStringLiteral("btn_LightMode"));
}

QSlider* slider(const Fixture& f, const char* name)
{
    return f.child<QSlider>(QString::fromLatin1(name));
}

QLineEdit* lineEdit(const Fixture& f, const char* name)
{
    return f.child<QLineEdit>(QString::fromLatin1(name));
}

void clickButton(const Fixture& f, const char* name)
{
    QTest::mouseClick(f.child<QPushButton>(QString::fromLatin1(name)), Qt::LeftButton);
}

// The user types into a colour field, replacing what it holds.
void typeInto(QLineEdit* edit, const QString& text)
{
    QTest::mouseClick(edit, Qt::LeftButton);
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

} // namespace

class tst_LightingPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void applyWithAgreeingModules();
    void applyKeepsWhatSelectedModulesDisagreeOn();
    void applyKeepsDisagreeingColourModes();
    void applyWithoutSelectionSendsNothing();
    void uncheckingEverythingKeepsTheFocus();
    void defaultRestoresColoursUntilApply();
    void profiles();
    void colourFields();
    void colourFromSliderAndWheel();
    void switchTurnsSelectedModulesOff();
    void rowButtonsSelectLedRows();
    void controllerStateForTheFocusedModule();
    void controllerStateForAnotherModule();
    void selectedStripsStandOnAField();
};

void tst_LightingPage::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void tst_LightingPage::init()
{
    isNewMode = true;
    mbSyncWarning = false;
    currentLanguage = 0;
    SelectMemoryIndex = 0;
}

void tst_LightingPage::applyWithAgreeingModules()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    f.clickSlot(1);
    f.clickSlot(3);
    QCOMPARE(SelectMemoryIndex, 1);
    QCOMPARE(modeButton(f)->text(), QStringLiteral("Cross"));
    QCOMPARE(colorBox(f)->currentText(), QStringLiteral("RGB"));
    QCOMPARE(speedBox(f)->currentText(), QStringLiteral("Fast"));

    // Single colour, slow, brightness 6 of 10.
    QTest::keyClick(colorBox(f), Qt::Key_Down);
    QTest::keyClick(speedBox(f), Qt::Key_Down);
    QTest::keyClick(speedBox(f), Qt::Key_Down);
    QTest::keyClick(slider(f, "slider_Light"), Qt::Key_Home);
    for (int i = 0; i < 6; ++i)
        QTest::keyClick(slider(f, "slider_Light"), Qt::Key_Right);
    QCOMPARE(colorBox(f)->currentText(), QStringLiteral("Single"));
    QCOMPARE(speedBox(f)->currentText(), QStringLiteral("Slow"));

    Recorder controller(f.page);
    clickButton(f, "btn_Apply");
    QCOMPARE(controller.log, (QStringList{
                                 QStringLiteral("changeBright 0.6"),
                                 QStringLiteral("changeColor 1"),
                                 QStringLiteral("changeBright 0.6"),
                                 QStringLiteral("changeColor 3"),
                                 QStringLiteral("changeLightMode 1 15 1 3 on"),
                                 QStringLiteral("changeColorMode 1 1"),
                                 QStringLiteral("changeLightMode 3 15 1 3 on"),
                                 QStringLiteral("changeColorMode 3 1"),
                             }));
    // The colours are the strips' own, brightness included.
    QCOMPARE(controller.colors.size(), 2);
    const Recorder::Colors& sent = controller.colors.at(1);
    QCOMPARE(sent.slot, 3);
    for (int led = 0; led < 8; ++led)
        QCOMPARE(sent.leds[led], f.strip(3)->ledColor[led]);
    QCOMPARE(sent.single, f.strip(3)->singleColor);
    QCOMPARE(sent.singleBright, 0.6f);

    // The page remembers what it applied: selecting the module again shows it.
    f.clickSlot(1);
    f.clickSlot(3);
    f.clickSlot(3);
    QCOMPARE(colorBox(f)->currentText(), QStringLiteral("Single"));
    QCOMPARE(speedBox(f)->currentText(), QStringLiteral("Slow"));
}

// Two selected modules in different light modes: an empty mode button and two empty disabled
// combos; Apply keeps each module's own mode, colour mode and speed but still sends colours.
void tst_LightingPage::applyKeepsWhatSelectedModulesDisagreeOn()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    f.page->setLighting(4, 24, 1, 2, false);
    f.clickSlot(2);
    f.clickSlot(4);
    QVERIFY(modeButton(f)->text().isEmpty());
    QVERIFY(!colorBox(f)->isEnabled());
    QVERIFY(!speedBox(f)->isEnabled());
    QVERIFY(colorBox(f)->currentText().isEmpty());
    QVERIFY(speedBox(f)->currentText().isEmpty());

    Recorder controller(f.page);
    clickButton(f, "btn_Apply");
    QCOMPARE(controller.only(QStringLiteral("changeLightMode")),
             (QStringList{QStringLiteral("changeLightMode 2 15 0 1 on"),
                          QStringLiteral("changeLightMode 4 24 1 2 on")}));
    QCOMPARE(controller.only(QStringLiteral("changeColor")),
             (QStringList{QStringLiteral("changeColor 2"), QStringLiteral("changeColor 4")}));
    QCOMPARE(controller.only(QStringLiteral("changeBright")).size(), 2);
}

// Same light mode, different colour modes: the colour combo shows its hidden empty item, and
// Apply sets the mode and speed while each module keeps its colour mode.
void tst_LightingPage::applyKeepsDisagreeingColourModes()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    f.page->setLighting(6, 15, 1, 1, false);
    f.clickSlot(0);
    f.clickSlot(6);
    QCOMPARE(modeButton(f)->text(), QStringLiteral("Cross"));
    QVERIFY(colorBox(f)->currentText().isEmpty());
    QVERIFY(colorBox(f)->isEnabled());
    QCOMPARE(speedBox(f)->currentText(), QStringLiteral("Fast"));

    QTest::keyClick(speedBox(f), Qt::Key_Up);
    Recorder controller(f.page);
    clickButton(f, "btn_Apply");
    QCOMPARE(controller.only(QStringLiteral("changeLightMode")),
             (QStringList{QStringLiteral("changeLightMode 0 15 0 0 on"),
                          QStringLiteral("changeLightMode 6 15 1 0 on")}));
}

void tst_LightingPage::applyWithoutSelectionSendsNothing()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    Recorder controller(f.page);
    clickButton(f, "btn_Apply");
    QVERIFY(controller.log.isEmpty());
}

// Unchecking the last selected module leaves the focused module and the controls as they were.
void tst_LightingPage::uncheckingEverythingKeepsTheFocus()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    f.page->setLighting(5, 21, 1, 0, false);
    f.clickSlot(5);
    QCOMPARE(SelectMemoryIndex, 5);
    f.clickSlot(5);
    QVERIFY(f.checkedLeds().isEmpty());
    QCOMPARE(SelectMemoryIndex, 5);
    QCOMPARE(modeButton(f)->text(), QStringLiteral("Twinkle"));
    QCOMPARE(colorBox(f)->currentText(), QStringLiteral("Single"));
    QCOMPARE(speedBox(f)->currentText(), QStringLiteral("Extreme"));
}

// Default previews the default colours at once, sends full brightness and the stored colour
// modes, and leaves the module's lighting to the next Apply.
void tst_LightingPage::defaultRestoresColoursUntilApply()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    f.page->setLighting(2, 15, 1, 1, false);
    f.clickSlot(0);
    f.clickSlot(2);
    QTest::keyClick(slider(f, "slider_Light"), Qt::Key_Left);
    QCOMPARE(slider(f, "slider_Light")->value(), 9);

    Recorder controller(f.page);
    clickButton(f, "btn_Default");
    QCOMPARE(controller.log,
             (QStringList{QStringLiteral("changeBright 1"), QStringLiteral("changeColorMode 0 0"),
                          QStringLiteral("changeColorMode 2 1"), QStringLiteral("sendDefault")}));
    QCOMPARE(speedBox(f)->currentText(), QStringLiteral("Normal"));
    QCOMPARE(slider(f, "slider_Light")->value(), 9);
    for (int led = 0; led < 8; ++led) {
        QCOMPARE(f.strip(0)->ledColor[led], kDefaultRainbow[led]);
        QCOMPARE(f.strip(0)->ledBright[led], 1.0f);
        // Unselected modules are reset too; only their look waits.
        QCOMPARE(f.strip(5)->ledColor[led], kDefaultRainbow[led]);
    }
    QCOMPARE(f.strip(2)->singleColor, COLORREF(0x0000FF));
    QVERIFY(f.strip(0)->btn_Led[4]->styleSheet().contains(QStringLiteral("rgb(0,255,127)")));

    controller.log.clear();
    clickButton(f, "btn_Apply");
    QCOMPARE(controller.only(QStringLiteral("changeLightMode")),
             (QStringList{QStringLiteral("changeLightMode 0 15 0 2 on"),
                          QStringLiteral("changeLightMode 2 15 1 2 on")}));
    QCOMPARE(controller.colors.first().leds[1], kDefaultRainbow[1]);
}

void tst_LightingPage::profiles()
{
    Fixture f;
    QSignalSpy picked(f.page, &Lighting_View::select_Profile);
    auto* first = f.child<QPushButton>(QStringLiteral("btn_Profile0"));
    auto* third = f.child<QPushButton>(QStringLiteral("btn_Profile2"));
    auto* fifth = f.child<QPushButton>(QStringLiteral("btn_Profile4"));
    QVERIFY(first->isChecked());
    QCOMPARE(third->text(), QStringLiteral("Profile 3"));

    QTest::mouseClick(third, Qt::LeftButton);
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.takeFirst().at(0).toInt(), 2);
    QVERIFY(third->isChecked());
    QVERIFY(!first->isChecked());

    // The controller reports the library's profile: shown, not sent back.
    f.page->slot_setProfile(4);
    QVERIFY(fifth->isChecked());
    QVERIFY(!third->isChecked());
    QCOMPARE(picked.count(), 0);
    f.page->slot_setProfile(9);
    QVERIFY(fifth->isChecked());
}

// Typing 300 is refused; Return commits the field and sends the colour; leaving a field without
// Return puts the slider's value back.
void tst_LightingPage::colourFields()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    f.clickSlot(4);
    QLineEdit* red = lineEdit(f, "lineEdit_R_Value");
    QLineEdit* green = lineEdit(f, "lineEdit_G_Value");
    QLineEdit* blue = lineEdit(f, "lineEdit_B_Value");
    Recorder controller(f.page);

    typeInto(red, QStringLiteral("300"));
    QCOMPARE(red->text(), QStringLiteral("30"));
    QTest::keyClick(red, Qt::Key_Return);
    QCOMPARE(slider(f, "slider_R_Value")->value(), 30);
    QVERIFY(!red->hasFocus());
    const COLORREF expected =
        rgb(30, slider(f, "slider_G_Value")->value(), slider(f, "slider_B_Value")->value());
    QCOMPARE(controller.only(QStringLiteral("pressRGB")),
             (QStringList{QStringLiteral("pressRGB %1").arg(expected, 6, 16, QLatin1Char('0'))}));
    // The selected module shows the colour on every LED.
    for (int led = 0; led < 8; ++led)
        QCOMPARE(f.strip(4)->ledColor[led], expected);

    const int greenBefore = slider(f, "slider_G_Value")->value();
    typeInto(green, QStringLiteral("77"));
    QCOMPARE(green->text(), QStringLiteral("77"));
    QTest::mouseClick(blue, Qt::LeftButton);
    QTRY_VERIFY(blue->hasFocus());
    QCOMPARE(green->text(), QString::number(greenBefore));
    QCOMPARE(slider(f, "slider_G_Value")->value(), greenBefore);
    QCOMPARE(controller.only(QStringLiteral("pressRGB")).size(), 1);

    // A slider move shows the value in its field at once.
    slider(f, "slider_B_Value")->setValue(12);
    QCOMPARE(blue->text(), QStringLiteral("12"));
}

// Releasing a colour slider sends the colour; a click in the wheel sets all three sliders and
// sends the picked colour once per strip connection.
void tst_LightingPage::colourFromSliderAndWheel()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    f.clickSlot(0);
    Recorder controller(f.page);

    QSlider* green = slider(f, "slider_G_Value");
    green->setSliderDown(true);
    green->setValue(200);
    green->setSliderDown(false);
    const COLORREF afterSlider =
        rgb(slider(f, "slider_R_Value")->value(), 200, slider(f, "slider_B_Value")->value());
    QCOMPARE(
        controller.only(QStringLiteral("pressRGB")),
        (QStringList{QStringLiteral("pressRGB %1").arg(afterSlider, 6, 16, QLatin1Char('0'))}));

    controller.log.clear();
    auto* wheel = f.page->findChild<RGB_Palette*>();
    QVERIFY(wheel);
    QTest::mouseClick(wheel, Qt::LeftButton, {}, QPoint(130, 88));
    const QStringList sent = controller.only(QStringLiteral("pressRGB"));
    QCOMPARE(sent.size(), 8);
    QCOMPARE(QSet<QString>(sent.begin(), sent.end()).size(), 1);
    const COLORREF picked = sent.first().section(QLatin1Char(' '), 1).toUInt(nullptr, 16);
    QCOMPARE(slider(f, "slider_R_Value")->value(), int(picked & 0xFF));
    QCOMPARE(slider(f, "slider_G_Value")->value(), int((picked >> 8) & 0xFF));
    QCOMPARE(slider(f, "slider_B_Value")->value(), int((picked >> 16) & 0xFF));
    QCOMPARE(lineEdit(f, "lineEdit_G_Value")->text(), QString::number((picked >> 8) & 0xFF));
    // Off the disc nothing is picked.
    controller.log.clear();
    QTest::mouseClick(wheel, Qt::LeftButton, {}, QPoint(2, 2));
    QVERIFY(controller.log.isEmpty());
}

void tst_LightingPage::switchTurnsSelectedModulesOff()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    f.page->setLighting(6, 15, 0, 1, true);
    auto* toggle = f.page->findChild<SwitchButton*>();
    auto* state = f.child<QLabel>(QStringLiteral("label_Switch"));

    // Selecting a module shows its own state.
    f.clickSlot(6);
    QVERIFY(!toggle->isChecked());
    QCOMPARE(state->text(), QStringLiteral("OFF"));
    f.clickSlot(6);
    f.clickSlot(1);
    QVERIFY(toggle->isChecked());
    QCOMPARE(state->text(), QStringLiteral("ON"));

    Recorder controller(f.page);
    QTest::mouseClick(toggle, Qt::LeftButton);
    QCOMPARE(state->text(), QStringLiteral("OFF"));
    QVERIFY(controller.log.isEmpty());
    clickButton(f, "btn_Apply");
    QCOMPARE(controller.only(QStringLiteral("changeLightMode")),
             (QStringList{QStringLiteral("changeLightMode 1 15 0 1 off")}));
}

// A row button selects that LED on every available module (every LED of a module outside RGB
// mode) and the modules with it; it follows the LEDs when they are picked one by one.
void tst_LightingPage::rowButtonsSelectLedRows()
{
    Fixture f;
    f.load(8, 6, 8, 15, 0, 1);
    f.page->setLighting(3, 15, 1, 1, false);
    QPushButton* rowC =
        f.buttonWithText(QStringLiteral("btn_SelectHorizontal"), QStringLiteral("C"));
    QPushButton* rowA =
        f.buttonWithText(QStringLiteral("btn_SelectHorizontal"), QStringLiteral("A"));
    QVERIFY(rowC && rowA);

    QTest::mouseClick(rowC, Qt::LeftButton);
    QStringList expected;
    for (int slot = 0; slot < 6; ++slot) {
        for (int led = 0; led < 8; ++led) {
            if (led == 2 || slot == 3)
                expected << QStringLiteral("%1:%2").arg(slot).arg(led);
        }
        QVERIFY(f.strip(slot)->btn_MemorySlot->isChecked());
    }
    QCOMPARE(f.checkedLeds(), expected);
    QCOMPARE(SelectMemoryIndex, 0);

    QTest::mouseClick(rowC, Qt::LeftButton);
    QVERIFY(f.checkedLeds().isEmpty());

    // Picking the top LED of every available module lights row A by itself.
    for (int slot = 0; slot < 6; ++slot) {
        QVERIFY(!rowA->isChecked());
        QTest::mouseClick(f.strip(slot)->btn_Led[0], Qt::LeftButton);
    }
    QVERIFY(rowA->isChecked());
}

void tst_LightingPage::controllerStateForTheFocusedModule()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    // Module 0 is focused but not selected, so moving the brightness slider changes no strip.
    f.clickSlot(0);
    f.clickSlot(0);
    COLORREF colors[12] = {rgb(10, 20, 30), rgb(40, 50, 60), rgb(70, 80, 90)};
    float brights[12] = {0.3f, 0.5f};
    f.page->setRGB(0, colors, rgb(1, 2, 3), brights, 0.7f);
    QCOMPARE(f.strip(0)->ledColor[1], rgb(40, 50, 60));
    QCOMPARE(f.strip(0)->singleBright, 0.7f);

    QSignalSpy colorModes(f.page, &Lighting_View::changeColorMode);
    f.page->setLighting(0, 24, 1, 3, true);
    QCOMPARE(modeButton(f)->text(), QStringLiteral("Raindrop"));
    QCOMPARE(colorBox(f)->currentText(), QStringLiteral("Single"));
    QCOMPARE(speedBox(f)->currentText(), QStringLiteral("Slow"));
    QVERIFY(!f.page->findChild<SwitchButton*>()->isChecked());
    QCOMPARE(slider(f, "slider_Light")->value(), 7);
    QCOMPARE(colorModes.count(), 1);
    QCOMPARE(colorModes.first(), (QVariantList{0, 1}));
    // The strip shows the module colour on every LED.
    QVERIFY(f.strip(0)->btn_Led[5]->styleSheet().contains(QStringLiteral("rgb(1,2,3)")));

    // In RGB mode the brightness is the first LED's; the selected LED's colour fills the sliders.
    f.page->setLighting(0, 24, 0, 3, false);
    QCOMPARE(slider(f, "slider_Light")->value(), 3);
    QCOMPARE(colorBox(f)->currentText(), QStringLiteral("RGB"));
    QTest::mouseClick(f.strip(0)->btn_Led[2], Qt::LeftButton);
    QVERIFY(f.strip(0)->btn_MemorySlot->isChecked());
    QCOMPARE(slider(f, "slider_R_Value")->value(), 70);
    QCOMPARE(slider(f, "slider_G_Value")->value(), 80);
    QCOMPARE(lineEdit(f, "lineEdit_B_Value")->text(), QStringLiteral("90"));
}

// A report for a module other than the focused one only stores it and updates its strip.
void tst_LightingPage::controllerStateForAnotherModule()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    f.clickSlot(0);
    QSignalSpy colorModes(f.page, &Lighting_View::changeColorMode);
    f.page->setLighting(4, 24, 2, 3, true);
    QCOMPARE(modeButton(f)->text(), QStringLiteral("Cross"));
    QCOMPARE(colorBox(f)->currentText(), QStringLiteral("RGB"));
    QCOMPARE(speedBox(f)->currentText(), QStringLiteral("Fast"));
    QVERIFY(f.page->findChild<SwitchButton*>()->isChecked());
    QCOMPARE(colorModes.count(), 1);
    QCOMPARE(colorModes.first(), (QVariantList{4, 2}));
    QCOMPARE(f.strip(4)->colorMode, 2);
    QVERIFY(f.strip(4)->btn_Led[0]->styleSheet().contains(QStringLiteral("rgb(100,100,100)")));

    // Selecting it later shows what was stored.
    f.clickSlot(0);
    f.clickSlot(4);
    QCOMPARE(modeButton(f)->text(), QStringLiteral("Raindrop"));
    QCOMPARE(speedBox(f)->currentText(), QStringLiteral("Slow"));
    QCOMPARE(f.child<QLabel>(QStringLiteral("label_Switch"))->text(), QStringLiteral("OFF"));
}

// The page paints a field under the selected strips and nothing under the others.
void tst_LightingPage::selectedStripsStandOnAField()
{
    Fixture f;
    f.load(8, 8, 8, 15, 0, 1);
    const QRect strip = f.stripRect(3);
    const QPoint beside(strip.left() - 4, strip.center().y());
    const QPoint besideOther(f.stripRect(5).left() - 4, strip.center().y());
    const QColor before = f.page->grab().toImage().pixelColor(beside);

    f.clickSlot(3);
    const QImage after = f.page->grab().toImage();
    QVERIFY(after.pixelColor(beside) != before);
    QCOMPARE(after.pixelColor(besideOther), before);

    f.clickSlot(3);
    QCOMPARE(f.page->grab().toImage().pixelColor(beside), before);
}

QTEST_MAIN(tst_LightingPage)
#include "tst_LightingPage.moc"
