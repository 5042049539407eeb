// The page's look: every caption fits its widget in all ten languages, the controls of the deck
// do not overlap, only the profile column shares the frame's menu column and stays below the
// menu, and (with NX_LIGHTING_SHOTS set to a directory) screenshots for review.

#include "LightingTestSupport.h"
#include "Palette_draw_rect.h"
#include "Widget_Light_Mode_View.h"

#include <QDir>
#include <QStandardPaths>
#include <QTranslator>

using namespace LightingTest;

namespace {

// The frame's menu column: the page's left 100 pixels lie in it, and its entries reach down to
// window y 288. Only the profile column may stand there, starting at window y 292.
constexpr int MenuColumnRight = 100;
constexpr int MenuClearY = 292;

bool inProfileColumn(const QWidget* widget)
{
    const QString name = widget->objectName();
    return name.startsWith(QLatin1String("btn_Profile")) ||
           name.startsWith(QLatin1String("btn_Edit"));
}

// Everything wrong with the page's layout as it stands, one line per fault.
QStringList layoutFaults(const Fixture& f)
{
    QStringList faults;
    const auto fault = [&faults](const QWidget* widget, const char* what) {
        const QString name = widget->objectName();
        faults << (name.isEmpty() ? QLatin1String(widget->metaObject()->className()) : name) +
                      QLatin1Char(' ') + QLatin1String(what);
    };

    // The deck fills the page's width right of the menu column; its visible controls stand
    // apart and wholly inside it.
    QWidget* deck = f.child(QStringLiteral("widget_Lighting_Control"));
    if (deck->x() != MenuColumnRight || deck->geometry().right() != f.page->width() - 1)
        fault(deck, "does not span the page right of the menu column");
    QList<QWidget*> controls;
    for (QWidget* widget : deck->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!widget->isHidden() && !widget->objectName().startsWith(QLatin1String("line_")))
            controls << widget;
    }
    if (controls.size() < 18)
        fault(deck, "has lost controls");
    for (int i = 0; i < controls.size(); ++i) {
        if (!deck->rect().contains(controls[i]->geometry()))
            fault(controls[i], "is clipped by the deck");
        for (int j = i + 1; j < controls.size(); ++j) {
            if (controls[i]->geometry().intersects(controls[j]->geometry()))
                faults << controls[i]->objectName() + QStringLiteral(" overlaps ") +
                              controls[j]->objectName();
        }
    }

    // Left of the page's own content only the profile column, below the menu and beside the
    // deck. Hidden widgets count too: they show at their place. The band and the drag image
    // follow the pointer.
    QList<QWidget*> column;
    for (QWidget* widget : f.page->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (qobject_cast<Palette_draw_rect*>(widget) ||
            widget->objectName() == QLatin1String("label_DragSlot"))
            continue;
        const QRect rect = widget->geometry();
        if (!widget->isHidden() && !f.page->rect().contains(rect))
            fault(widget, "leaves the page");
        if (!inProfileColumn(widget)) {
            if (rect.left() < MenuColumnRight)
                fault(widget, "lies in the menu column");
            continue;
        }
        if (rect.right() >= MenuColumnRight || rect.intersects(deck->geometry()))
            fault(widget, "reaches out of the profile column");
        if (widget->mapTo(f.frame.get(), QPoint(0, 0)).y() < MenuClearY)
            fault(widget, "lies over the frame's menu");
        if (!widget->isHidden())
            column << widget;
    }

    // The visible column: one width, one left edge, no two buttons on each other, nothing over
    // any of them.
    for (int i = 0; i < column.size(); ++i) {
        const QRect rect = column[i]->geometry();
        if (rect.left() != column[0]->x() || rect.width() != column[0]->width())
            fault(column[i], "is out of line with the column");
        for (int j = i + 1; j < column.size(); ++j) {
            if (rect.intersects(column[j]->geometry()))
                faults << column[i]->objectName() + QStringLiteral(" overlaps ") +
                              column[j]->objectName();
        }
        if (f.frame->childAt(column[i]->mapTo(f.frame.get(), rect.center() - rect.topLeft())) !=
            column[i])
            fault(column[i], "is covered");
    }
    return faults;
}

} // namespace

class tst_LightingLook : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void captionsFitInEveryLanguage_data();
    void captionsFitInEveryLanguage();
    void layoutStandsClear_data();
    void layoutStandsClear();
    void screenshots();

private:
    void save(QWidget* widget, const QString& name);
};

void tst_LightingLook::save(QWidget* widget, const QString& name)
{
    const QString dir = qEnvironmentVariable("NX_LIGHTING_SHOTS");
    if (dir.isEmpty())
        return;
    QVERIFY(widget->grab().save(QDir(dir).filePath(name + QStringLiteral(".png"))));
}

void tst_LightingLook::captionsFitInEveryLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("code");
    const char* const codes[] = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"};
    for (int i = 0; i < 10; ++i)
        QTest::newRow(codes[i]) << i << QString::fromLatin1(codes[i]);
}

// The text of every caption, button and combo item, in every language, is narrower than the
// room its widget gives it.
void tst_LightingLook::captionsFitInEveryLanguage()
{
    QFETCH(int, language);
    QFETCH(QString, code);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/QXRGBMemory/NORVALEX_%1.qm").arg(code)));
    QCoreApplication::installTranslator(&translator);
    isNewMode = true;
    currentLanguage = language;

    Fixture f;
    f.load(8, 8, 8);
    f.page->updateLanguage_Lighting();
    QCOMPARE(f.child<QPushButton>(QStringLiteral("btn_Apply"))->text(),
             QCoreApplication::translate("Lighting_View", "Apply"));

    QStringList clipped;
    const auto check = [&clipped](QWidget* widget, const QString& text, int room) {
        widget->ensurePolished();
        const int needed = widget->fontMetrics().horizontalAdvance(text);
        if (needed > room)
            clipped << QStringLiteral("%1 \"%2\" needs %3 of %4")
                           .arg(widget->objectName(), text)
                           .arg(needed)
                           .arg(room);
    };
    for (QLabel* label : f.page->findChildren<QLabel*>()) {
        if (!label->isHidden() && !label->wordWrap() && !label->text().isEmpty())
            check(label, label->text(), label->width());
    }
    constexpr int buttonPadding = 8;
    constexpr int lightModePadding = 28;
    for (QPushButton* button : f.page->findChildren<QPushButton*>()) {
        if (button->text().isEmpty() || button->objectName() == QLatin1String("btn_MemorySlot"))
            continue;
        const int padding = button->objectName() == QLatin1String("btn_LightMode")
                                ? lightModePadding
                                : buttonPadding;
        check(button, button->text(), button->width() - padding);
    }
    constexpr int comboPadding = 6 + 16;
    for (QComboBox* combo : f.page->findChildren<QComboBox*>()) {
        for (const QString& item : visibleItems(combo))
            check(combo, item, combo->width() - comboPadding);
    }
    // The switch's state label shows "ON" now; it has to hold "OFF" as well.
    auto* switchLabel = f.child<QLabel>(QStringLiteral("label_Switch"));
    check(switchLabel, QCoreApplication::translate("Lighting_View", "OFF"), switchLabel->width());
    clipped << layoutFaults(f);
    QTest::mouseClick(f.page->btn_Edit, Qt::LeftButton);
    clipped << layoutFaults(f);
    QCoreApplication::removeTranslator(&translator);
    currentLanguage = 0;
    QVERIFY2(clipped.isEmpty(), qPrintable(clipped.join(QStringLiteral("; "))));
    save(f.frame.get(), QStringLiteral("language_%1").arg(code));
}

void tst_LightingLook::layoutStandsClear_data()
{
    QTest::addColumn<int>("slotTotal");
    QTest::addColumn<int>("leds");
    QTest::addColumn<bool>("edit");
    QTest::newRow("4 slots") << 4 << 5 << false;
    QTest::newRow("4 slots, editing") << 4 << 5 << true;
    QTest::newRow("8 slots") << 8 << 8 << false;
    QTest::newRow("8 slots, editing") << 8 << 8 << true;
}

// The deck's controls stand apart inside the deck, and only the profile column lies in the
// frame's menu column, below the menu, with or without Edit mode's buttons.
void tst_LightingLook::layoutStandsClear()
{
    QFETCH(int, slotTotal);
    QFETCH(int, leds);
    QFETCH(bool, edit);
    Fixture f;
    f.load(slotTotal, slotTotal, leds);
    f.clickSlot(0);
    if (edit) {
        QTest::mouseClick(f.page->btn_Edit, Qt::LeftButton);
        QVERIFY(f.page->btn_Edit_Apply->isVisible() && f.page->btn_Edit_Cancel->isVisible());
    }
    const QStringList faults = layoutFaults(f);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QStringLiteral("; "))));

    // The light-mode list opens over the deck, not over the menu column.
    QTest::mouseClick(f.child<QPushButton>(QStringLiteral("btn_LightMode")), Qt::LeftButton);
    QWidget* list = f.page->findChild<Widget_Light_Mode_View*>();
    QVERIFY(list->isVisible());
    QVERIFY(
        f.child(QStringLiteral("widget_Lighting_Control"))->geometry().contains(list->geometry()));
}

void tst_LightingLook::screenshots()
{
    for (int slotTotal : {4, 8}) {
        Fixture f;
        f.load(slotTotal, slotTotal, slotTotal == 4 ? 5 : 8, 15, 0, 1);
        f.clickSlot(1);
        QTest::mouseClick(f.strip(0)->btn_Led[2], Qt::LeftButton);
        save(f.frame.get(), QStringLiteral("page_%1").arg(slotTotal));
        QTest::mouseClick(f.child<QPushButton>(QStringLiteral("btn_LightMode")), Qt::LeftButton);
        save(f.frame.get(), QStringLiteral("modes_%1").arg(slotTotal));
        QTest::mouseClick(f.child<QPushButton>(QStringLiteral("btn_LightMode")), Qt::LeftButton);
        QTest::mouseClick(f.page->btn_Edit, Qt::LeftButton);
        f.press(f.stripRect(1).center());
        f.move(f.stripRect(2).center());
        save(f.frame.get(), QStringLiteral("edit_%1").arg(slotTotal));
        f.release(f.stripRect(2).center());
        QTest::qWait(400);
        save(f.frame.get(), QStringLiteral("edit_done_%1").arg(slotTotal));
    }
}

QTEST_MAIN(tst_LightingLook)
#include "tst_LightingLook.moc"
