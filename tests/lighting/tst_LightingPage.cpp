// The lighting page as the user drives it: the light-mode rules, Apply and Default with what they
// send, the colour fields, profiles, LED selection with a dragged band and the row buttons, Edit
// mode, the Tab order, a layout clear of the frame's menu, and a state refresh that repaints
// only what changed.

#include "AppGlobals.h"
#include "FocusOrder.h"
#include "Lighting_View.h"
#include "Memory_RGB_View.h"
#include "Palette_draw_rect.h"
#include "TestEnvironment.h"
#include "Widget_Light_Mode_View.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QTranslator>
#include <QWindow>

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
        int counts[8];
        for (int slot = 0; slot < 8; ++slot)
            counts[slot] = slot < modules ? leds : -1;
        page.setMemoryLEDNumber(8, counts);
        refresh(0);
        QCoreApplication::processEvents();
    }

    // What the controller sends after a light-mode event; `shift` changes slot 0's colours.
    void refresh(int shift)
    {
        int order[8] = {0, 1, 2, 3, 4, 5, 6, 7};
        page.setMemorySlotNumber(8, order);
        float brights[12] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
        for (int slot = 0; slot < 8; ++slot) {
            COLORREF colors[12];
            for (int led = 0; led < 12; ++led)
                colors[led] =
                    COLORREF(16 * slot | (16 * led + (slot ? 0 : shift)) << 8 | 100 << 16);
            page.setRGB(slot, colors, 0x0000FF, brights, 1.0f);
            page.setLighting(slot, 15, 0, 1, false);
        }
        page.slot_setProfile(0);
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

    // The screen after partial repaints equals a full repaint of the page.
    bool screenMatchesFullRepaint()
    {
        QTest::qWait(30);
        QCoreApplication::processEvents();
        const QImage shown = page.windowHandle()
                                 ->screen()
                                 ->grabWindow(page.winId())
                                 .toImage()
                                 .convertToFormat(QImage::Format_RGB32);
        return shown == page.grab().toImage().convertToFormat(QImage::Format_RGB32);
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
        connect(page, &V::changeBright, this, [this](float b) { add("changeBright", b); });
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
        connect(page, &V::changeMemorySlotNumber, this,
                [this](int, int*) { add("changeMemorySlotNumber"); });
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
// there, below the menu at page y 252. The deck's visible controls lie inside it and apart.
QStringList layoutFaults(Lighting_View& page)
{
    QStringList faults;
    for (QWidget* w : page.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const QString name = w->objectName();
        const bool inColumn = name.startsWith("btn_Profile") || name.startsWith("btn_Edit");
        if (inColumn && (w->y() < 252 || w->geometry().right() >= 100))
            faults << name + " leaves the profile column";
        // The band and the drag image follow the pointer.
        if (!inColumn && w->x() < 100 && !qobject_cast<Palette_draw_rect*>(w) &&
            name != "label_DragSlot")
            faults << name + " lies in the menu column";
    }
    QWidget* deck = page.findChild<QWidget*>(QStringLiteral("widget_Lighting_Control"));
    QList<QWidget*> controls;
    for (QWidget* w : deck->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!w->isHidden() && !w->objectName().startsWith("line_"))
            controls << w;
    }
    for (int i = 0; i < controls.size(); ++i) {
        if (!deck->rect().contains(controls[i]->geometry()))
            faults << controls[i]->objectName() + " is clipped by the deck";
        for (int j = i + 1; j < controls.size(); ++j) {
            if (controls[i]->geometry().intersects(controls[j]->geometry()))
                faults << controls[i]->objectName() + " overlaps " + controls[j]->objectName();
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

// Counts paint and style-change events per widget, application-wide.
struct EventCounter : QObject {
    QHash<const QObject*, int> paints, restyles;
    EventCounter() { qApp->installEventFilter(this); }
    ~EventCounter() override { qApp->removeEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        paints[watched] += event->type() == QEvent::Paint;
        restyles[watched] += event->type() == QEvent::StyleChange;
        return false;
    }
};

} // namespace

class tst_LightingPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestEnvironment::prepare()); }
    void init()
    {
        isNewMode = true;
        currentLanguage = 0;
        SelectMemoryIndex = 0;
    }
    void ruleTable();
    void languageRefresh();
    void applyAndDefault();
    void colourFields();
    void rowButtons();
    void band();
    void editCancelAndProfiles();
    void layout_data();
    void layout();
    void refreshRepaintsOnlyChanges();
    void tabOrder();
};

// One mode of each kind of rule, applied in turn with modules 2 (speed Fast) and 5 (speed Slow)
// selected: the colour items (then the hidden empty one shown while selected modules disagree),
// whether the colour combo and the colour entry are enabled, and a speed fixed at "Normal" or
// the first selected module's.
void tst_LightingPage::ruleTable()
{
    Page p;
    p.page.setLighting(5, 15, 0, 3, false);
    p.clickSlot(5);
    p.clickSlot(2);
    auto* colorBox = p.child<QComboBox>("comboBox_ColorMode");
    auto* speedBox = p.child<QComboBox>("comboBox_LightSpeed");
    const struct {
        int mode;
        const char* items;
        bool colorCombo, colours, speedFixed;
    } rules[] = {{0, "OFF", false, false, false}, {2, "Single,Random", true, true, false},
                 {5, "RGB", false, true, false},  {6, "RGB,Single", true, true, true},
                 {7, "OFF", false, false, true},  {32, "Single", false, true, false}};
    for (const auto& rule : rules) {
        emit p.page.findChild<Widget_Light_Mode_View*>()->selectLightMode(rule.mode);
        QStringList shown;
        for (int i = 0; i < colorBox->count(); ++i)
            shown << colorBox->itemText(i);
        QCOMPARE(shown, QString(rule.items).split(',') << QString());
        QCOMPARE(colorBox->isEnabled(), rule.colorCombo);
        QCOMPARE(p.child("lineEdit_B_Value")->isEnabled(), rule.colours);
        QCOMPARE(p.child("slider_Light")->isEnabled(), rule.colours);
        QCOMPARE(speedBox->currentText(), QLatin1String(rule.speedFixed ? "Normal" : "Fast"));
        QCOMPARE(speedBox->isEnabled(), !rule.speedFixed);
    }
}

// Until the first language refresh "Random" is sent as colour mode 0, as 3 after it. Modes 36
// and 37 have names, and a place in the mode list, only for the newer modules.
void tst_LightingPage::languageRefresh()
{
    isNewMode = false;
    Page p;
    QVERIFY(offeredModes(p).contains("Swirl") && !offeredModes(p).contains("Aim"));
    p.page.setLighting(0, 3, 0, 1, false);
    p.clickSlot(0);
    auto* colorBox = p.child<QComboBox>("comboBox_ColorMode");
    QSignalSpy colorModes(&p.page, &Lighting_View::changeColorMode);
    colorBox->setFocus();
    QTest::keyClick(colorBox, Qt::Key_Down);
    QTest::keyClick(colorBox, Qt::Key_Down);
    QCOMPARE(colorModes.last(), (QVariantList{0, 0}));

    isNewMode = true;
    p.page.updateLanguage_Lighting();
    QTest::keyClick(colorBox, Qt::Key_Up);
    QTest::keyClick(colorBox, Qt::Key_Down);
    QCOMPARE(colorModes.last(), (QVariantList{0, 3}));
    QVERIFY(offeredModes(p).contains("Radiation") && offeredModes(p).contains("Aim"));
}

// Apply sends nothing without a selection. What selected modules disagree on shows empty and
// Apply keeps each module's own value. Default resets every module's colours and the selected
// ones' speed; the lighting waits for the next Apply.
void tst_LightingPage::applyAndDefault()
{
    Page p;
    p.page.setLighting(4, 24, 1, 2, false);
    p.page.setLighting(6, 15, 1, 1, false);
    auto* colorBox = p.child<QComboBox>("comboBox_ColorMode");
    auto* speedBox = p.child<QComboBox>("comboBox_LightSpeed");
    Recorder controller(&p.page);
    p.click("btn_Apply");
    QVERIFY(controller.log.isEmpty());

    p.clickSlot(2);
    p.clickSlot(4);
    QVERIFY(speedBox->currentText().isEmpty() && !speedBox->isEnabled());
    p.click("btn_Apply");
    QCOMPARE(controller.log.filter("changeLightMode"),
             (QStringList{"changeLightMode 2 15 0 1 on", "changeLightMode 4 24 1 2 on"}));
    QCOMPARE(controller.log.filter("changeColor "),
             (QStringList{"changeColor 2 647020 0000ff 1", "changeColor 4 647040 0000ff 1"}));

    // One light mode, different colour modes: the chosen speed is applied, not a colour mode.
    p.clickSlot(2);
    p.clickSlot(4);
    p.clickSlot(0);
    p.clickSlot(6);
    QVERIFY(colorBox->currentText().isEmpty() && colorBox->isEnabled());
    QTest::keyClick(speedBox, Qt::Key_Up);
    controller.log.clear();
    p.click("btn_Apply");
    QCOMPARE(controller.log.filter("changeLightMode"),
             (QStringList{"changeLightMode 0 15 0 0 on", "changeLightMode 6 15 1 0 on"}));

    QTest::keyClick(p.child<QSlider>("slider_Light"), Qt::Key_Left);
    controller.log.clear();
    p.click("btn_Default");
    QCOMPARE(controller.log, (QStringList{"changeBright 1", "changeColorMode 0 0",
                                          "changeColorMode 6 1", "sendDefault"}));
    QCOMPARE(p.strip(5)->ledColor[7], COLORREF(0xFF007F));
    controller.log.clear();
    p.click("btn_Apply");
    QCOMPARE(controller.log, (QStringList{"changeBright 0.9", "changeColor 0 ff007f 0000ff 1",
                                          "changeBright 0.9", "changeColor 6 ff007f 0000ff 0.9",
                                          "changeLightMode 0 15 0 2 on", "changeColorMode 0 0",
                                          "changeLightMode 6 15 1 2 on", "changeColorMode 6 1"}));
}

// A keystroke past 255 is refused; Return commits and sends the colour; leaving a field without
// Return puts the slider's value back and sends nothing.
void tst_LightingPage::colourFields()
{
    Page p;
    p.clickSlot(4);
    auto* red = p.child<QLineEdit>("lineEdit_R_Value");
    auto* green = p.child<QLineEdit>("lineEdit_G_Value");
    Recorder controller(&p.page);
    QTest::mouseClick(red, Qt::LeftButton);
    red->selectAll();
    QTest::keyClicks(red, QStringLiteral("300"));
    QCOMPARE(red->text(), QStringLiteral("30"));
    QTest::keyClick(red, Qt::Key_Return);
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
    QTest::mouseClick(red, Qt::LeftButton);
    QTRY_VERIFY(red->hasFocus());
    QCOMPARE(green->text(), greenBefore);
    QCOMPARE(controller.log.size(), 1);
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

// A band dragged up and left one pixel around the corners of LEDs 2..4 of modules 1..3 selects
// exactly those and their modules; one through the outer corners leaves those on its edge out.
// Nothing is selected on empty slots, a module in Single colour whole; a press clears the
// selection and starts a band only right of x 300.
void tst_LightingPage::band()
{
    Page p(8, 5, 8);
    p.drag(p.ledCorner(3, 4) + QPoint(1, 1), p.ledCorner(1, 2) - QPoint(1, 1));
    QCOMPARE(p.checkedLeds(), ledsOf(1, 3, 2, 4));
    QVERIFY(p.strip(3)->btn_MemorySlot->isChecked() && !p.strip(4)->btn_MemorySlot->isChecked());
    QCOMPARE(SelectMemoryIndex, 1);
    p.drag(p.ledCorner(3, 4), p.ledCorner(1, 2));
    QCOMPARE(p.checkedLeds(), ledsOf(2, 2, 3, 3));

    p.drag(QPoint(895, 318), QPoint(301, 21));
    QCOMPARE(p.checkedLeds(), ledsOf(0, 4, 0, 7));
    QVERIFY(!p.strip(5)->btn_MemorySlot->isChecked());
    p.page.setLighting(2, 4, 1, 1, false);
    p.drag(p.ledCorner(2, 5) - QPoint(3, 3), p.ledCorner(2, 5) + QPoint(3, 3));
    QCOMPARE(p.checkedLeds(), ledsOf(2, 2, 0, 7));
    for (int x : {300, 301}) {
        p.press(QPoint(x, 100));
        QVERIFY(p.checkedLeds().isEmpty());
        p.move(QPoint(700, 200));
        QCOMPARE(p.page.findChild<Palette_draw_rect*>()->isVisible(), x == 301);
        p.release(QPoint(700, 200));
        QCOMPARE(p.checkedLeds().isEmpty(), x == 300);
    }
}

// Edit mode locks the rows and profiles; a strip dragged onto another swaps places, Cancel (the
// frame emits its released() when the user leaves the page) puts them back and sends nothing.
// The controller's report of a profile shows it without sending it back.
void tst_LightingPage::editCancelAndProfiles()
{
    Page p(4, 4, 5);
    Recorder controller(&p.page);
    const QRect one = p.stripRect(1);
    const QRect three = p.stripRect(3);
    p.clickSlot(1);
    QTest::mouseClick(p.page.btn_Edit, Qt::LeftButton);
    QVERIFY(!p.strip(1)->btn_MemorySlot->isChecked() && !p.strip(1)->isEnabled());
    QVERIFY(!p.row(0)->isEnabled() && !p.child("btn_Profile0")->isEnabled());
    p.drag(one.center(), three.center());
    QTRY_COMPARE(p.stripRect(1).topLeft(), three.topLeft());
    emit p.page.btn_Edit_Cancel->released();
    QTRY_COMPARE(p.stripRect(1), one);
    QVERIFY(p.page.btn_Edit->isVisible() && p.row(0)->isEnabled());
    QVERIFY(controller.log.isEmpty());

    QSignalSpy picked(&p.page, &Lighting_View::select_Profile);
    p.page.slot_setProfile(4);
    QVERIFY(p.child<QPushButton>("btn_Profile4")->isChecked());
    QVERIFY(!p.child<QPushButton>("btn_Profile0")->isChecked() && picked.isEmpty());
}

void tst_LightingPage::layout_data()
{
    QTest::addColumn<int>("slotCount");
    QTest::addColumn<int>("language");
    QTest::newRow("4 slots, en") << 4 << 0;
    QTest::newRow("8 slots, ru") << 8 << 7;
}

void tst_LightingPage::layout()
{
    QFETCH(int, slotCount);
    QFETCH(int, language);
    const char* const codes[] = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru"};
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/QXRGBMemory/NORVALEX_%1.qm").arg(codes[language])));
    QCoreApplication::installTranslator(&translator);
    currentLanguage = language;
    Page p(slotCount, slotCount, slotCount == 4 ? 5 : 8);
    p.page.updateLanguage_Lighting();
    const QStringList faults = layoutFaults(p.page);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QStringLiteral("; "))));
}

// An unchanged refresh neither re-styles the LEDs nor repaints the page's controls; a changed
// colour re-styles exactly the LEDs that show it. The outline of the selected strips, which the
// page draws itself over partial repaints, leaves nothing stale on screen.
void tst_LightingPage::refreshRepaintsOnlyChanges()
{
    Page p(8, 4, 8);
    QTest::qWait(30);
    EventCounter counter;
    p.refresh(0);
    QTest::qWait(30);
    QCoreApplication::processEvents();
    for (const char* name : {"btn_Apply", "btn_Edit", "label_Preview", "btn_LightMode"})
        QVERIFY2(counter.paints.value(p.child(name)) == 0, name);
    for (const QPushButton* led : p.strip(2)->btn_Led)
        QVERIFY(counter.restyles.value(led) == 0 && counter.paints.value(led) == 0);

    p.refresh(8);
    QCoreApplication::processEvents();
    for (int led = 0; led < 8; ++led) {
        QVERIFY(counter.restyles.value(p.strip(0)->btn_Led[led]) > 0);
        QCOMPARE(p.strip(0)->btn_Led[led]->styleSheet(),
                 Memory_RGB_View::ledStyleSheet(COLORREF((16 * led + 8) << 8 | 100 << 16)));
    }
    QCOMPARE(counter.restyles.value(p.strip(1)->btn_Led[0]), 0);

    for (int slot : {1, 2, 1, 3}) {
        p.clickSlot(slot);
        QVERIFY(p.screenMatchesFullRepaint());
    }
    p.refresh(0);
    QVERIFY(p.screenMatchesFullRepaint());
}

// Widgets named first come first in a page's Tab order, a container standing for its children;
// the rest follow in their old order and the widgets around the page stay where they were, also
// once the page's children stand before the page in the focus ring. The lighting page reads
// profiles and slot editor, the modules and their rows, then the deck (built first).
void tst_LightingPage::tabOrder()
{
    const auto names = [](const QList<QWidget*>& widgets) {
        QStringList out;
        for (const QWidget* w : widgets)
            out << w->objectName();
        return out;
    };
    const auto nextStop = [](QWidget* w) {
        QWidget* next = w->nextInFocusChain();
        while (!(next->focusPolicy() & Qt::TabFocus))
            next = next->nextInFocusChain();
        return next;
    };
    const auto button = [](QWidget* parent, const char* name) {
        auto* b = new QPushButton(parent);
        b->setObjectName(QLatin1String(name));
        return b;
    };
    QWidget window;
    QPushButton* before = button(&window, "before");
    auto* page = new QWidget(&window);
    new QLabel(QStringLiteral("title"), page);
    button(page, "a");
    QPushButton* b = button(page, "b");
    auto* strip = new QWidget(page);
    button(strip, "c1");
    button(strip, "c2");
    QPushButton* d = button(page, "d");
    QPushButton* after = button(&window, "after");
    FocusOrder::placeFirst(page, {strip, d, after});
    FocusOrder::placeFirst(page, {strip});
    QCOMPARE(names(FocusOrder::tabChain(page)), QStringList({"c1", "c2", "d", "a", "b"}));
    QCOMPARE(nextStop(before)->objectName(), QStringLiteral("c1"));
    QCOMPARE(nextStop(b), after);

    Lighting_View lighting;
    const QStringList chain = names(FocusOrder::tabChain(&lighting));
    const int edit = chain.indexOf(QStringLiteral("btn_Edit"));
    const int slot = chain.indexOf(QStringLiteral("btn_MemorySlot"));
    const int row = chain.indexOf(QStringLiteral("btn_SelectHorizontal"));
    QVERIFY(chain.first() == "btn_Profile0" && chain.last() == "btn_Default");
    QVERIFY(edit > 0 && edit < slot && slot < row && row < chain.indexOf("btn_LightMode"));
}

QTEST_MAIN(tst_LightingPage)
#include "tst_LightingPage.moc"
