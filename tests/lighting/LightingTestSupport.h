#pragma once

// Shared set-up for the lighting page tests: a page on a dark frame-sized window, fed with
// module data the way the controller feeds it, and helpers that reach its widgets by object name
// and drive it with the mouse.

#include "AppGlobals.h"
#include "Lighting_View.h"
#include "Memory_RGB_View.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <memory>

namespace LightingTest {

constexpr QPoint PagePos(86, 40);
constexpr QSize FrameSize(1000, 600);

// COLORREF of an (r, g, b) triple.
constexpr COLORREF rgb(int r, int g, int b)
{
    return static_cast<COLORREF>(r) | static_cast<COLORREF>(g) << 8 |
           static_cast<COLORREF>(b) << 16;
}

// The page on a dark 1000 x 600 window, placed as the frame places it.
class Fixture
{
public:
    explicit Fixture(bool show = true)
    {
        frame = std::make_unique<QWidget>();
        frame->resize(FrameSize);
        frame->setObjectName(QStringLiteral("frame"));
        frame->setStyleSheet(QStringLiteral("QWidget#frame{background-color:rgb(30,30,30);}"));
        frame->setAttribute(Qt::WA_StyledBackground);
        page = new Lighting_View(frame.get());
        page->move(PagePos);
        if (show) {
            frame->show();
            if (!QTest::qWaitForWindowExposed(frame.get()))
                qWarning("the test window was not exposed");
        }
    }

    // Lays the page out like the controller does after the first valid poll: slot count,
    // module count, slot order, LED counts, colours, then the lighting state of every module.
    void load(int slotTotal, int modules, int leds, int lightMode = 15, int colorMode = 0,
              int speed = 1)
    {
        page->setMemorySlots(slotTotal, modules);
        int order[8] = {0, 1, 2, 3, 4, 5, 6, 7};
        page->setMemorySlotNumber(8, order);
        int ledCounts[8];
        for (int i = 0; i < 8; ++i)
            ledCounts[i] = i < modules ? leds : -1;
        page->setMemoryLEDNumber(8, ledCounts);
        for (int slot = 0; slot < 8; ++slot) {
            COLORREF colors[12];
            float brights[12];
            for (int led = 0; led < 12; ++led) {
                colors[led] = rgb((slot * 40 + led * 20) % 256, (led * 30) % 256, 200 - led * 10);
                brights[led] = 1.0f;
            }
            page->setRGB(slot, colors, rgb(255, 0, 0), brights, 1.0f);
        }
        for (int slot = 0; slot < 8; ++slot)
            page->setLighting(slot, lightMode, colorMode, speed, false);
        QCoreApplication::processEvents();
    }

    template <typename T = QWidget> T* child(const QString& name) const
    {
        T* widget = page->findChild<T*>(name);
        if (!widget)
            qWarning("no child named %s", qPrintable(name));
        return widget;
    }

    QList<QPushButton*> buttons(const QString& name) const
    {
        return page->findChildren<QPushButton*>(name);
    }

    // The row button with the given letter, or the column marker with the given number.
    QPushButton* buttonWithText(const QString& name, const QString& text) const
    {
        for (QPushButton* button : buttons(name)) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }

    Memory_RGB_View* strip(int slot) const
    {
        for (Memory_RGB_View* strip : page->findChildren<Memory_RGB_View*>()) {
            if (strip->slotNumber == slot)
                return strip;
        }
        return nullptr;
    }

    // Top-left corner of an LED button in page coordinates.
    QPoint ledCorner(int slot, int led) const
    {
        return strip(slot)->btn_Led[led]->mapTo(page, QPoint(0, 0));
    }

    QRect stripRect(int slot) const
    {
        return QRect(strip(slot)->mapTo(page, QPoint(0, 0)), strip(slot)->size());
    }

    // The user selects a module by clicking its slot button.
    void clickSlot(int slot) const
    {
        QTest::mouseClick(strip(slot)->btn_MemorySlot, Qt::LeftButton);
    }

    // Mouse events straight to the page, with the left button held between press and release.
    void press(const QPoint& pos) const { send(QEvent::MouseButtonPress, pos); }
    void move(const QPoint& pos) const { send(QEvent::MouseMove, pos); }
    void release(const QPoint& pos) const { send(QEvent::MouseButtonRelease, pos); }
    void drag(const QPoint& from, const QPoint& to) const
    {
        press(from);
        move((from + to) / 2);
        move(to);
        release(to);
    }

    QStringList checkedLeds() const
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

    std::unique_ptr<QWidget> frame;
    Lighting_View* page = nullptr;

private:
    void send(QEvent::Type type, const QPoint& pos) const
    {
        const Qt::MouseButtons held =
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(Qt::LeftButton);
        QMouseEvent event(type, pos, page->mapToGlobal(pos),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held,
                          Qt::NoModifier);
        QApplication::sendEvent(page, &event);
    }
};

// Stands in for the controller: connected directly to the page's request signals, it copies
// what the pointers point at while the signal runs and keeps one line per request, in order.
class Recorder
{
public:
    explicit Recorder(Lighting_View* page)
    {
        const auto direct = Qt::DirectConnection;
        QObject::connect(
            page, &Lighting_View::changeColor, &context,
            [this](int slot, COLORREF* leds, COLORREF single, float* brights, float singleBright) {
                Colors c{slot, {}, single, {}, singleBright};
                std::copy(leds, leds + 8, c.leds);
                std::copy(brights, brights + 8, c.brights);
                colors << c;
                log << QStringLiteral("changeColor %1").arg(slot);
            },
            direct);
        QObject::connect(
            page, &Lighting_View::changeLightMode, &context,
            [this](int slot, int mode, int colorMode, int speed, bool off) {
                log << QStringLiteral("changeLightMode %1 %2 %3 %4 %5")
                           .arg(slot)
                           .arg(mode)
                           .arg(colorMode)
                           .arg(speed)
                           .arg(off ? QStringLiteral("off") : QStringLiteral("on"));
            },
            direct);
        QObject::connect(
            page, &Lighting_View::changeBright, &context,
            [this](float bright) { log << QStringLiteral("changeBright %1").arg(bright); }, direct);
        QObject::connect(
            page, &Lighting_View::changeColorMode, &context,
            [this](int slot, int mode) {
                log << QStringLiteral("changeColorMode %1 %2").arg(slot).arg(mode);
            },
            direct);
        QObject::connect(
            page, &Lighting_View::sendDefault, &context,
            [this]() { log << QStringLiteral("sendDefault"); }, direct);
        QObject::connect(
            page, &Lighting_View::changeMemorySlotNumber, &context,
            [this](int count, int* order) {
                QStringList columns;
                for (int i = 0; i < count; ++i)
                    columns << QString::number(order[i]);
                log << QStringLiteral("changeMemorySlotNumber %1 %2")
                           .arg(count)
                           .arg(columns.join(QLatin1Char(',')));
            },
            direct);
        QObject::connect(
            page, &Lighting_View::select_Profile, &context,
            [this](int profile) { log << QStringLiteral("select_Profile %1").arg(profile); },
            direct);
        QObject::connect(
            page, &Lighting_View::pressRGB, &context,
            [this](COLORREF color) {
                log << QStringLiteral("pressRGB %1").arg(color, 6, 16, QLatin1Char('0'));
            },
            direct);
    }

    // Lines of one request, in order.
    QStringList only(const QString& request) const
    {
        QStringList lines;
        for (const QString& line : log) {
            if (line.section(QLatin1Char(' '), 0, 0) == request)
                lines << line;
        }
        return lines;
    }

    struct Colors {
        int slot;
        COLORREF leds[8];
        COLORREF single;
        float brights[8];
        float singleBright;
    };

    QStringList log;
    QList<Colors> colors;

private:
    // Receiver of the connections: they end with the recorder.
    QObject context;
};

// Visible item texts of a combo, without the hidden empty item.
inline QStringList visibleItems(QComboBox* combo)
{
    QStringList items;
    auto* view = qobject_cast<QListView*>(combo->view());
    for (int i = 0; i < combo->count(); ++i) {
        if (!view || !view->isRowHidden(i))
            items << combo->itemText(i);
    }
    return items;
}

} // namespace LightingTest
