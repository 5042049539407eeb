// The lighting page as the user drives it: Apply and Default with what they send, the colour
// fields, profiles, and a layout that keeps clear of the frame's menu in every language.

#include "LightingTestSupport.h"

#include "Palette_draw_rect.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTranslator>

using namespace LightingTest;

namespace {

void typeInto(QLineEdit* edit, const QString& text)
{
    QTest::mouseClick(edit, Qt::LeftButton);
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

// Left of page x 100 lies the frame's menu column: only the profile and Edit buttons stand
// there (hidden ones too, they show where they are), below the menu at page y 252. The deck's
// visible controls lie inside it and apart, and no caption is wider than its widget's room.
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

    const auto fits = [&faults](QWidget* widget, const QString& text, int room) {
        widget->ensurePolished();
        if (widget->fontMetrics().horizontalAdvance(text) > room)
            faults << QStringLiteral("%1 \"%2\" is clipped").arg(widget->objectName(), text);
    };
    for (QLabel* label : page.findChildren<QLabel*>()) {
        if (!label->isHidden() && !label->wordWrap())
            fits(label, label->text(), label->width());
    }
    auto* state = page.findChild<QLabel*>(QStringLiteral("label_Switch"));
    fits(state, QCoreApplication::translate("Lighting_View", "OFF"), state->width());
    // Padding, and the drop-down arrow of the mode button and the combos.
    for (QPushButton* button : page.findChildren<QPushButton*>()) {
        const bool arrow = button->objectName() == QLatin1String("btn_LightMode");
        if (button->objectName() != QLatin1String("btn_MemorySlot"))
            fits(button, button->text(), button->width() - (arrow ? 28 : 8));
    }
    for (QComboBox* combo : page.findChildren<QComboBox*>()) {
        for (int i = 0; i < combo->count(); ++i)
            fits(combo, combo->itemText(i), combo->width() - 22);
    }
    return faults;
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
    void applyWithAgreeingModules();
    void applyWithDisagreeingModules();
    void defaultResetsColoursForTheNextApply();
    void colourFields();
    void profilePick();
    void layout_data();
    void layout();
};

void tst_LightingPage::applyWithAgreeingModules()
{
    Page p;
    Recorder controller(&p.page);
    p.click("btn_Apply");
    QVERIFY(controller.log.isEmpty());

    p.clickSlot(1);
    p.clickSlot(3);
    auto* colorBox = p.child<QComboBox>("comboBox_ColorMode");
    auto* speedBox = p.child<QComboBox>("comboBox_LightSpeed");
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

// What the selected modules disagree on shows empty, and Apply keeps each module's own value.
void tst_LightingPage::applyWithDisagreeingModules()
{
    Page p;
    p.page.setLighting(4, 24, 1, 2, false);
    p.page.setLighting(6, 15, 1, 1, false);
    auto* modeButton = p.child<QPushButton>("btn_LightMode");
    auto* colorBox = p.child<QComboBox>("comboBox_ColorMode");
    auto* speedBox = p.child<QComboBox>("comboBox_LightSpeed");
    Recorder controller(&p.page);

    // Different light modes: everything is kept, the colours are still sent.
    p.clickSlot(2);
    p.clickSlot(4);
    QVERIFY(modeButton->text().isEmpty());
    QVERIFY(colorBox->currentText().isEmpty() && !colorBox->isEnabled());
    QVERIFY(speedBox->currentText().isEmpty() && !speedBox->isEnabled());
    controller.log.clear();
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

    typeInto(red, QStringLiteral("300"));
    QCOMPARE(red->text(), QStringLiteral("30"));
    QTest::keyClick(red, Qt::Key_Return);
    QCOMPARE(p.child<QSlider>("slider_R_Value")->value(), 30);
    // The other channels hold the selected module's first LED, (64, 0, 100).
    QCOMPARE(controller.log, QStringList{"pressRGB 64001e"});

    const QString greenBefore = green->text();
    typeInto(green, QStringLiteral("77"));
    QTest::mouseClick(blue, Qt::LeftButton);
    QTRY_VERIFY(blue->hasFocus());
    QCOMPARE(green->text(), greenBefore);
    QCOMPARE(p.child<QSlider>("slider_G_Value")->value(), greenBefore.toInt());
    QCOMPARE(controller.log.size(), 1);
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

QTEST_MAIN(tst_LightingPage)
#include "tst_LightingPage.moc"
