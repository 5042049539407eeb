// The lighting page as the user drives it: the light-mode rules, Apply and Default with what they
// send, the colour fields and swatch, profiles, LED selection with a dragged band and the row
// buttons, reordering the slots in Edit mode, and a layout that keeps clear of the frame's menu
// in every language.

#include "AppGlobals.h"
#include "Lighting_View.h"
#include "Memory_RGB_View.h"
#include "Palette_draw_rect.h"
#include "Widget_Light_Mode_View.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QTranslator>

#include <algorithm>

namespace {

// A shown page with `slotCount` strips, the first `modules` of them holding a module with `leds`
// LEDs, every module in Cross (15), RGB colours, speed Fast; LED n of slot s is (16 s, 16 n, 100).
struct Page {
    explicit Page(int slotCount = 8, int modules = 8, int leds = 8)
    {
        page.show();
        if (!QTest::qWaitForWindowExposed(&page))
            qWarning("the page was not exposed");
        page.setMemorySlots(slotCount, modules);
        int order[8] = {0, 1, 2, 3, 4, 5, 6, 7};
        page.setMemorySlotNumber(8, order);
        int counts[8];
        for (int slot = 0; slot < 8; ++slot)
            counts[slot] = slot < modules ? leds : -1;
        page.setMemoryLEDNumber(8, counts);
        float brights[12] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
        for (int slot = 0; slot < 8; ++slot) {
            COLORREF colors[12];
            for (int led = 0; led < 12; ++led)
                colors[led] = COLORREF(16 * slot | 16 * led << 8 | 100 << 16);
            page.setRGB(slot, colors, 0x0000FF, brights, 1.0f);
            page.setLighting(slot, 15, 0, 1, false);
        }
        QCoreApplication::processEvents();
    }

    template <typename T = QWidget> T* child(const char* name)
    {
        return page.findChild<T*>(QLatin1String(name));
    }
    void click(const char* button)
    {
        QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
    }

    Memory_RGB_View* strip(int slot)
    {
        const auto strips = page.findChildren<Memory_RGB_View*>();
        return *std::find_if(strips.begin(), strips.end(),
                             [slot](Memory_RGB_View* strip) { return strip->slotNumber == slot; });
    }
    void clickSlot(int slot) { QTest::mouseClick(strip(slot)->btn_MemorySlot, Qt::LeftButton); }
    QPushButton* row(int index)
    {
        for (QPushButton* button : page.findChildren<QPushButton*>("btn_SelectHorizontal")) {
            if (button->text() == QChar('A' + index))
                return button;
        }
        return nullptr;
    }
    QRect stripRect(int slot) { return QRect(strip(slot)->mapTo(&page, {}), strip(slot)->size()); }
    QPoint ledCorner(int slot, int led) { return strip(slot)->btn_Led[led]->mapTo(&page, {}); }

    // "slot:led" of every checked LED, in slot order.
    QStringList checkedLeds()
    {
        QStringList leds;
        for (int slot = 0; slot < 8; ++slot) {
            for (int led = 0; led < 8; ++led) {
                if (strip(slot)->btn_Led[led]->isChecked())
                    leds << QStringLiteral("%1:%2").arg(slot).arg(led);
            }
        }
        return leds;
    }

    // The left button pressed, moved with and released.
    void press(QPoint pos) { send(QEvent::MouseButtonPress, pos, Qt::LeftButton); }
    void move(QPoint pos) { send(QEvent::MouseMove, pos, Qt::LeftButton); }
    void release(QPoint pos) { send(QEvent::MouseButtonRelease, pos, Qt::NoButton); }
    void drag(QPoint from, QPoint to)
    {
        press(from);
        move((from + to) / 2);
        move(to);
        release(to);
    }

    Lighting_View page;

private:
    void send(QEvent::Type type, QPoint pos, Qt::MouseButtons held)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, pos, page.mapToGlobal(pos), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&page, &event);
    }
};

// One line per request the page sends, with the values copied while the signal runs.
struct Recorder : QObject {
    explicit Recorder(Lighting_View* page)
    {
        using V = Lighting_View;
        connect(page, &V::changeBright, this,
                [this](float bright) { add("changeBright", bright); });
        connect(page, &V::changeColor, this,
                [this](int slot, COLORREF* leds, COLORREF single, float*, float singleBright) {
                    add("changeColor", slot, hex(leds[7]), hex(single), singleBright);
                });
        connect(page, &V::changeLightMode, this,
                [this](int slot, int mode, int colorMode, int speed, bool off) {
                    add("changeLightMode", slot, mode, colorMode, speed, off ? "off" : "on");
                });
        connect(page, &V::changeColorMode, this,
                [this](int slot, int colorMode) { add("changeColorMode", slot, colorMode); });
        connect(page, &V::sendDefault, this, [this] { add("sendDefault"); });
        connect(page, &V::pressRGB, this, [this](COLORREF color) { add("pressRGB", hex(color)); });
        connect(page, &V::changeMemorySlotNumber, this, [this](int count, int* order) {
            QStringList columns;
            for (int i = 0; i < count; ++i)
                columns << QString::number(order[i]);
            add("changeMemorySlotNumber", columns.join(QLatin1Char(',')));
        });
    }

    QStringList log;

private:
    template <typename... T> void add(const char* request, T... values)
    {
        QStringList line{QLatin1String(request)};
        ((line << QStringLiteral("%1").arg(values)), ...);
        log << line.join(QLatin1Char(' '));
    }
    static QString hex(COLORREF color) { return QString::number(color, 16).rightJustified(6, '0'); }
};

// Left of page x 100 lies the frame's menu column: only the profile and Edit buttons stand
// there (hidden ones too, they show where they are), below the menu at page y 252. The deck's
// visible controls lie inside it and apart.
QStringList layoutFaults(Lighting_View& page)
{
    QStringList faults;
    for (QWidget* w : page.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const QString name = w->objectName();
        const bool inColumn = name.startsWith(QLatin1String("btn_Profile")) ||
                              name.startsWith(QLatin1String("btn_Edit"));
        if (inColumn && (w->y() < 252 || w->geometry().right() >= 100))
            faults << name + QStringLiteral(" leaves the profile column");
        // The band and the drag image follow the pointer.
        if (!inColumn && w->x() < 100 && !qobject_cast<Palette_draw_rect*>(w) &&
            name != QLatin1String("label_DragSlot"))
            faults << name + QStringLiteral(" lies in the menu column");
    }
    QWidget* deck = page.findChild<QWidget*>(QStringLiteral("widget_Lighting_Control"));
    QList<QWidget*> controls;
    for (QWidget* w : deck->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!w->isHidden() && !w->objectName().startsWith(QLatin1String("line_")))
            controls << w;
    }
    for (int i = 0; i < controls.size(); ++i) {
        if (!deck->rect().contains(controls[i]->geometry()))
            faults << controls[i]->objectName() + QStringLiteral(" is clipped by the deck");
        for (int j = i + 1; j < controls.size(); ++j) {
            if (controls[i]->geometry().intersects(controls[j]->geometry()))
                faults << controls[i]->objectName() + QStringLiteral(" overlaps ") +
                              controls[j]->objectName();
        }
    }
    return faults;
}

QStringList offeredModes(Page& p)
{
    QStringList names;
    for (QPushButton* button :
         p.page.findChild<Widget_Light_Mode_View*>()->findChildren<QPushButton*>())
        names << button->text();
    return names;
}

QStringList ledsOf(int firstSlot, int lastSlot, int firstLed, int lastLed)
{
    QStringList leds;
    for (int slot = firstSlot; slot <= lastSlot; ++slot) {
        for (int led = firstLed; led <= lastLed; ++led)
            leds << QStringLiteral("%1:%2").arg(slot).arg(led);
    }
    return leds;
}

} // namespace

class tst_LightingPage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        isNewMode = true;
        currentLanguage = 0;
        SelectMemoryIndex = 0;
    }
    void ruleTable_data();
    void ruleTable();
    void languageRefresh();
    void apply();
    void defaultResetsColoursForTheNextApply();
    void colourFields();
    void profilePick();
    void rowButtons();
    void bandDirections_data();
    void bandDirections();
    void bandOnModulesAndAreaEdge();
    void editSwapApplyAndCancel();
    void layout_data();
    void layout();
};

void tst_LightingPage::ruleTable_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("items");
    QTest::addColumn<bool>("colorCombo");
    QTest::addColumn<bool>("colours");
    QTest::addColumn<bool>("speedFixed");
    const auto row = [](int mode, const char* name, const char* items, bool colorCombo,
                        bool colours, bool speedFixed) {
        QTest::addRow("%d %s", mode, name)
            << mode << QString::fromLatin1(name) << QString::fromLatin1(items) << colorCombo
            << colours << speedFixed;
    };
    // Colour combo enabled; colour entry and brightness enabled; speed fixed at "Normal".
    row(0, "Flow", "OFF", 0, 0, 0);
    row(1, "RGB Spectrum", "OFF", 0, 0, 0);
    row(2, "Ripple", "Single,Random", 1, 1, 0);
    row(3, "Blink", "RGB,Single,Random", 1, 1, 0);
    row(4, "Pulse", "RGB,Single,Random", 1, 1, 0);
    row(5, "Wave", "RGB", 0, 1, 0);
    row(6, "Static", "RGB,Single", 1, 1, 1);
    row(7, "Copy", "OFF", 0, 0, 1);
    row(8, "Movie", "RGB,Single", 1, 1, 1);
    row(9, "Gaming", "RGB,Single", 1, 1, 1);
    row(10, "Party", "RGB,Single", 1, 1, 1);
    row(11, "Mobile_Movie", "RGB,Single", 1, 1, 1);
    row(12, "Mobile_Gaming", "RGB,Single", 1, 1, 1);
    row(13, "Mobile_Party", "RGB,Single", 1, 1, 1);
    row(14, "Temp.", "OFF", 0, 0, 1);
    row(15, "Cross", "RGB,Single", 1, 1, 0);
    row(16, "Hello", "OFF", 0, 0, 1);
    row(17, "Shooting Star", "RGB,Single", 1, 1, 1);
    row(18, "Black Hole", "RGB,Single", 1, 1, 1);
    row(19, "Aurora", "OFF", 0, 0, 1);
    row(20, "RGB Sync", "OFF", 0, 0, 1);
    row(21, "Twinkle", "RGB,Single", 1, 1, 0);
    row(22, "Script", "OFF", 0, 0, 1);
    row(23, "Weather", "OFF", 0, 0, 1);
    row(24, "Raindrop", "RGB,Single", 1, 1, 0);
    row(25, "Heartbeat", "RGB,Single,Random", 1, 1, 0);
    row(26, "Stack", "RGB,Single", 1, 1, 0);
    row(27, "Scan", "RGB,Single", 1, 1, 0);
    row(28, "Swirl", "RGB,Single", 1, 1, 0);
    row(29, "Screen Gaming", "OFF", 0, 0, 1);
    row(30, "Screen Movie", "OFF", 0, 0, 1);
    row(31, "Clock", "OFF", 0, 0, 1);
    row(32, "Rain", "Single", 0, 1, 0);
    row(33, "Fireworks", "RGB,Single", 1, 1, 0);
    row(34, "Explosion", "RGB,Single", 1, 1, 0);
    row(35, "MB Sync", "RGB,Single", 1, 1, 0);
    row(36, "Radiation", "Single,Random", 1, 1, 0);
    row(37, "Aim", "RGB,Single,Random", 1, 1, 0);
}

// Modules 2 (speed Fast) and 5 (speed Slow) are selected; a speed that is not fixed shows the
// first selected module's.
void tst_LightingPage::ruleTable()
{
    QFETCH(int, mode);
    QFETCH(QString, name);
    QFETCH(QString, items);
    QFETCH(bool, colorCombo);
    QFETCH(bool, colours);
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
    for (const char* entry :
         {"slider_R_Value", "slider_G_Value", "slider_B_Value", "lineEdit_R_Value",
          "lineEdit_G_Value", "lineEdit_B_Value", "slider_Light"})
        QVERIFY2(p.child(entry)->isEnabled() == colours, entry);
    auto* speedBox = p.child<QComboBox>("comboBox_LightSpeed");
    QCOMPARE(speedBox->currentText(), QLatin1String(speedFixed ? "Normal" : "Fast"));
    QCOMPARE(speedBox->isEnabled(), !speedFixed);
}

// Until the first language refresh "Random" is sent as colour mode 0, as 3 after it. Modes 36
// and 37 have names, and a place in the mode list, only for the newer modules.
void tst_LightingPage::languageRefresh()
{
    isNewMode = false;
    Page p;
    auto* modeButton = p.child<QPushButton>("btn_LightMode");
    const QRegularExpression someModes(QStringLiteral("^(Swirl|Radiation|Aim)$"));
    QCOMPARE(offeredModes(p).filter(someModes), QStringList{"Swirl"});
    p.page.setLighting(0, 36, 1, 1, false);
    QVERIFY(modeButton->text().isEmpty());

    p.page.setLighting(0, 3, 0, 1, false);
    p.clickSlot(0);
    auto* colorBox = p.child<QComboBox>("comboBox_ColorMode");
    QSignalSpy colorModes(&p.page, &Lighting_View::changeColorMode);
    colorBox->setFocus();
    QTest::keyClick(colorBox, Qt::Key_Down);
    QTest::keyClick(colorBox, Qt::Key_Down);
    QCOMPARE(colorBox->currentText(), QStringLiteral("Random"));
    QCOMPARE(colorModes.last(), (QVariantList{0, 0}));

    isNewMode = true;
    p.page.updateLanguage_Lighting();
    QTest::keyClick(colorBox, Qt::Key_Up);
    QCOMPARE(colorModes.last(), (QVariantList{0, 1}));
    QTest::keyClick(colorBox, Qt::Key_Down);
    QCOMPARE(colorModes.last(), (QVariantList{0, 3}));
    QCOMPARE(offeredModes(p).filter(someModes), (QStringList{"Swirl", "Radiation", "Aim"}));
    p.page.setLighting(0, 37, 0, 1, false);
    QCOMPARE(modeButton->text(), QStringLiteral("Aim"));
}

// Apply sends nothing without a selection; with one, the brightness and colours of each selected
// module, then its light mode and colour mode.
void tst_LightingPage::apply()
{
    Page p;
    p.page.setLighting(4, 24, 1, 2, false);
    p.page.setLighting(6, 15, 1, 1, false);
    auto* modeButton = p.child<QPushButton>("btn_LightMode");
    auto* colorBox = p.child<QComboBox>("comboBox_ColorMode");
    auto* speedBox = p.child<QComboBox>("comboBox_LightSpeed");
    Recorder controller(&p.page);
    p.click("btn_Apply");
    QVERIFY(controller.log.isEmpty());

    // What the selected modules disagree on shows empty, and Apply keeps each module's own
    // value. Different light modes: everything is kept, the colours are still sent.
    p.clickSlot(2);
    p.clickSlot(4);
    QVERIFY(modeButton->text().isEmpty());
    QVERIFY(colorBox->currentText().isEmpty() && !colorBox->isEnabled());
    QVERIFY(speedBox->currentText().isEmpty() && !speedBox->isEnabled());
    p.click("btn_Apply");
    QCOMPARE(controller.log.filter(QStringLiteral("changeLightMode")),
             (QStringList{"changeLightMode 2 15 0 1 on", "changeLightMode 4 24 1 2 on"}));
    QCOMPARE(controller.log.filter(QStringLiteral("changeColor ")),
             (QStringList{"changeColor 2 647020 0000ff 1", "changeColor 4 647040 0000ff 1"}));

    // One light mode, different colour modes: the chosen speed is applied, not a colour mode.
    p.clickSlot(2);
    p.clickSlot(4);
    p.clickSlot(0);
    p.clickSlot(6);
    QCOMPARE(modeButton->text(), QStringLiteral("Cross"));
    QVERIFY(colorBox->currentText().isEmpty() && colorBox->isEnabled());
    QTest::keyClick(speedBox, Qt::Key_Up);
    controller.log.clear();
    p.click("btn_Apply");
    QCOMPARE(controller.log.filter(QStringLiteral("changeLightMode")),
             (QStringList{"changeLightMode 0 15 0 0 on", "changeLightMode 6 15 1 0 on"}));

    // Agreeing modules all take what is chosen.
    p.clickSlot(0);
    p.clickSlot(6);
    p.clickSlot(1);
    p.clickSlot(3);
    auto* bright = p.child<QSlider>("slider_Light");
    QTest::keyClick(colorBox, Qt::Key_Down);
    QTest::keyClick(speedBox, Qt::Key_Down);
    QTest::keyClick(speedBox, Qt::Key_Down);
    QTest::keyClick(bright, Qt::Key_Home);
    for (int i = 0; i < 6; ++i)
        QTest::keyClick(bright, Qt::Key_Right);
    controller.log.clear();
    p.click("btn_Apply");
    QCOMPARE(controller.log, (QStringList{"changeBright 0.6", "changeColor 1 647010 0000ff 0.6",
                                          "changeBright 0.6", "changeColor 3 647030 0000ff 0.6",
                                          "changeLightMode 1 15 1 3 on", "changeColorMode 1 1",
                                          "changeLightMode 3 15 1 3 on", "changeColorMode 3 1"}));
}

// Default resets every module's colours at once and the selected ones' speed; the controller
// gets full brightness and the stored colour modes, the lighting waits for Apply.
void tst_LightingPage::defaultResetsColoursForTheNextApply()
{
    Page p;
    p.page.setLighting(2, 15, 1, 1, false);
    p.clickSlot(0);
    p.clickSlot(2);
    auto* bright = p.child<QSlider>("slider_Light");
    QTest::keyClick(bright, Qt::Key_Left);
    Recorder controller(&p.page);
    p.click("btn_Default");
    QCOMPARE(controller.log, (QStringList{"changeBright 1", "changeColorMode 0 0",
                                          "changeColorMode 2 1", "sendDefault"}));
    QCOMPARE(p.strip(5)->ledColor[7], COLORREF(0xFF007F));

    controller.log.clear();
    p.click("btn_Apply");
    QCOMPARE(controller.log, (QStringList{"changeBright 0.9", "changeColor 0 ff007f 0000ff 1",
                                          "changeBright 0.9", "changeColor 2 ff007f 0000ff 0.9",
                                          "changeLightMode 0 15 0 2 on", "changeColorMode 0 0",
                                          "changeLightMode 2 15 1 2 on", "changeColorMode 2 1"}));
}

// A keystroke past 255 is refused; Return commits and sends the colour; leaving a field without
// Return puts the slider's value back and sends nothing.
void tst_LightingPage::colourFields()
{
    Page p;
    p.clickSlot(4);
    auto* red = p.child<QLineEdit>("lineEdit_R_Value");
    auto* green = p.child<QLineEdit>("lineEdit_G_Value");
    auto* blue = p.child<QLineEdit>("lineEdit_B_Value");
    Recorder controller(&p.page);

    QTest::mouseClick(red, Qt::LeftButton);
    red->selectAll();
    QTest::keyClicks(red, QStringLiteral("300"));
    QCOMPARE(red->text(), QStringLiteral("30"));
    QTest::keyClick(red, Qt::Key_Return);
    QCOMPARE(p.child<QSlider>("slider_R_Value")->value(), 30);
    // The other channels hold the selected module's first LED, (64, 0, 100); red is the low byte.
    QCOMPARE(controller.log, QStringList{"pressRGB 64001e"});
    // The swatch names the colour red first, in a text that stays readable on it.
    auto* swatch = p.child<QLabel>("label_ColorSwatch");
    QCOMPARE(swatch->text(), QStringLiteral("#1E0064"));
    QVERIFY(swatch->styleSheet().contains(QStringLiteral("color:white")));

    const QString greenBefore = green->text();
    QTest::mouseClick(green, Qt::LeftButton);
    green->selectAll();
    QTest::keyClicks(green, QStringLiteral("77"));
    QTest::mouseClick(blue, Qt::LeftButton);
    QTRY_VERIFY(blue->hasFocus());
    QCOMPARE(green->text(), greenBefore);
    QCOMPARE(p.child<QSlider>("slider_G_Value")->value(), greenBefore.toInt());
    QCOMPARE(controller.log.size(), 1);

    blue->selectAll();
    QTest::keyClicks(blue, QStringLiteral("255"));
    QTest::keyClick(blue, Qt::Key_Return);
    green->setFocus();
    green->selectAll();
    QTest::keyClicks(green, QStringLiteral("255"));
    QTest::keyClick(green, Qt::Key_Return);
    QCOMPARE(controller.log.last(), QStringLiteral("pressRGB ffff1e"));
    QCOMPARE(swatch->text(), QStringLiteral("#1EFFFF"));
    QVERIFY(swatch->styleSheet().contains(QStringLiteral("color:black")));
}

// Five-LED modules hide rows F-H until an eight-LED one is seen, also after the slots are laid
// out again. A row reaches every available strip, a strip in Single colour whole; its button is
// checked only while every shown, available strip has that row.
void tst_LightingPage::rowButtons()
{
    Page p(4, 3, 5);
    QVERIFY(p.row(4)->isVisible() && p.row(5)->isHidden());
    p.page.setMemorySlots(4, 3);
    QVERIFY(p.strip(0)->btn_Led[5]->isHidden() && !p.strip(0)->btn_Led[4]->isHidden());

    p.page.setLighting(1, 15, 1, 1, false);
    QTest::mouseClick(p.row(2), Qt::LeftButton);
    QCOMPARE(p.checkedLeds(), QStringList{"0:2"} + ledsOf(1, 1, 0, 7) + QStringList{"2:2"});
    QVERIFY(p.row(2)->isChecked());
    QTest::mouseClick(p.strip(2)->btn_Led[2], Qt::LeftButton);
    QVERIFY(!p.row(2)->isChecked());

    int eight[8] = {8, 5, 5, -1, -1, -1, -1, -1};
    p.page.setMemoryLEDNumber(8, eight);
    int five[8] = {5, 5, 5, -1, -1, -1, -1, -1};
    p.page.setMemoryLEDNumber(8, five);
    QVERIFY(p.row(7)->isVisible());
}

// A click picks a profile; the controller's report shows one without sending it back.
void tst_LightingPage::profilePick()
{
    Page p;
    QSignalSpy picked(&p.page, &Lighting_View::select_Profile);
    QTest::mouseClick(p.child<QPushButton>("btn_Profile2"), Qt::LeftButton);
    QCOMPARE(picked, QList<QVariantList>{{2}});
    p.page.slot_setProfile(4);
    QVERIFY(p.child<QPushButton>("btn_Profile4")->isChecked());
    QVERIFY(!p.child<QPushButton>("btn_Profile2")->isChecked());
    QCOMPARE(picked.count(), 1);
}

void tst_LightingPage::layout_data()
{
    QTest::addColumn<int>("slotCount");
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("code");
    const char* const codes[] = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"};
    QTest::newRow("4 slots, en") << 4 << 0 << QStringLiteral("en");
    for (int i = 0; i < 10; ++i)
        QTest::addRow("8 slots, %s", codes[i]) << 8 << i << QString::fromLatin1(codes[i]);
}

void tst_LightingPage::layout()
{
    QFETCH(int, slotCount);
    QFETCH(int, language);
    QFETCH(QString, code);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/QXRGBMemory/NORVALEX_%1.qm").arg(code)));
    QCoreApplication::installTranslator(&translator);
    currentLanguage = language;
    Page p(slotCount, slotCount, slotCount == 4 ? 5 : 8);
    p.page.updateLanguage_Lighting();
    const QStringList faults = layoutFaults(p.page);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QStringLiteral("; "))));
}

void tst_LightingPage::bandDirections_data()
{
    QTest::addColumn<bool>("leftward");
    QTest::addColumn<bool>("upward");
    for (bool leftward : {true, false}) {
        for (bool upward : {true, false})
            QTest::addRow("%s %s", upward ? "up" : "down", leftward ? "left" : "right")
                << leftward << upward;
    }
}

// A band one pixel around the corners of LEDs 2..4 of modules 1..3 selects exactly those and
// their modules; a band through the outer corners leaves those on its edge out.
void tst_LightingPage::bandDirections()
{
    QFETCH(bool, leftward);
    QFETCH(bool, upward);
    Page p;
    const auto dragBand = [&](int margin) {
        const QPoint topLeft = p.ledCorner(1, 2) - QPoint(margin, margin);
        const QPoint bottomRight = p.ledCorner(3, 4) + QPoint(margin, margin);
        const QPoint start(leftward ? bottomRight.x() : topLeft.x(),
                           upward ? bottomRight.y() : topLeft.y());
        const QPoint end(leftward ? topLeft.x() : bottomRight.x(),
                         upward ? topLeft.y() : bottomRight.y());
        p.press(start);
        p.move(end);
        QVERIFY(p.page.findChild<Palette_draw_rect*>()->isVisible());
        p.release(end);
    };
    dragBand(1);
    QCOMPARE(p.checkedLeds(), ledsOf(1, 3, 2, 4));
    for (int slot = 0; slot < 8; ++slot)
        QCOMPARE(p.strip(slot)->btn_MemorySlot->isChecked(), slot >= 1 && slot <= 3);
    QCOMPARE(SelectMemoryIndex, 1);
    dragBand(0);
    QCOMPARE(p.checkedLeds(), ledsOf(2, 2, 3, 3));
}

// Nothing is selected on empty slots; a module in single colour or built-in colours is selected
// whole; a press clears the selection, and starts a band only right of x 300.
void tst_LightingPage::bandOnModulesAndAreaEdge()
{
    Page p(8, 5, 8);
    p.drag(QPoint(895, 318), QPoint(301, 21));
    QCOMPARE(p.checkedLeds(), ledsOf(0, 4, 0, 7));
    QVERIFY(!p.strip(5)->btn_MemorySlot->isChecked());

    for (int colorMode : {0, 1, 2, 3}) {
        p.page.setLighting(2, 4, colorMode, 1, false);
        const QPoint corner = p.ledCorner(2, 5);
        p.drag(corner - QPoint(3, 3), corner + QPoint(3, 3));
        const bool whole = colorMode == 1 || colorMode == 2;
        QCOMPARE(p.checkedLeds(), whole ? ledsOf(2, 2, 0, 7) : QStringList{"2:5"});
    }

    for (int x : {300, 301}) {
        p.press(QPoint(x, 100));
        QVERIFY(p.checkedLeds().isEmpty());
        p.move(QPoint(700, 200));
        QCOMPARE(p.page.findChild<Palette_draw_rect*>()->isVisible(), x == 301);
        p.release(QPoint(700, 200));
        QCOMPARE(p.checkedLeds().isEmpty(), x == 300);
    }
}

// Four slots: dragging strip 1 onto strip 3 swaps them and Apply sends all eight columns;
// Cancel (the frame emits its released() when the user leaves the page) puts the strips back
// and sends nothing.
void tst_LightingPage::editSwapApplyAndCancel()
{
    Page p(4, 4, 5);
    Recorder controller(&p.page);
    const QRect one = p.stripRect(1);
    const QRect three = p.stripRect(3);
    p.clickSlot(1);
    QTest::mouseClick(p.page.btn_Edit, Qt::LeftButton);
    // Edit mode clears the selection and locks the rows and profiles.
    QVERIFY(!p.strip(1)->btn_MemorySlot->isChecked() && !p.strip(1)->isEnabled());
    QVERIFY(!p.row(0)->isEnabled() && !p.child("btn_Profile0")->isEnabled());
    p.drag(one.center(), three.center());
    QTRY_COMPARE(p.stripRect(1).topLeft(), three.topLeft());
    QTRY_COMPARE(p.stripRect(3).topLeft(), one.topLeft());
    QVERIFY(controller.log.isEmpty());
    QTest::mouseClick(p.page.btn_Edit_Apply, Qt::LeftButton);
    QCOMPARE(controller.log, QStringList{"changeMemorySlotNumber 0,3,2,1,4,5,6,7"});

    controller.log.clear();
    const QRect zero = p.stripRect(0);
    const QRect two = p.stripRect(2);
    QTest::mouseClick(p.page.btn_Edit, Qt::LeftButton);
    p.drag(zero.center(), two.center());
    QTRY_COMPARE(p.stripRect(0).topLeft(), two.topLeft());
    emit p.page.btn_Edit_Cancel->released();
    for (int slot = 0; slot < 4; ++slot)
        QCOMPARE(p.strip(slot)->slotPosition, (QList<int>{0, 3, 2, 1}).at(slot));
    QTRY_COMPARE(p.stripRect(0), zero);
    QVERIFY(p.page.btn_Edit->isVisible());
    QVERIFY(p.row(0)->isEnabled() && p.child("btn_Profile0")->isEnabled());
    QVERIFY(controller.log.isEmpty());
}

QTEST_MAIN(tst_LightingPage)
#include "tst_LightingPage.moc"
