#pragma once

// The lighting page loaded the way the controller loads it, mouse events straight to the page,
// and a recorder that stands in for the controller.

#include "AppGlobals.h"
#include "Lighting_View.h"
#include "Memory_RGB_View.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QTest>

#include <algorithm>

namespace LightingTest {

constexpr COLORREF rgb(int r, int g, int b)
{
    return COLORREF(r) | COLORREF(g) << 8 | COLORREF(b) << 16;
}

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
        float brights[12];
        std::fill_n(brights, 12, 1.0f);
        for (int slot = 0; slot < 8; ++slot) {
            COLORREF colors[12];
            for (int led = 0; led < 12; ++led)
                colors[led] = rgb(16 * slot, 16 * led, 100);
            page.setRGB(slot, colors, rgb(255, 0, 0), brights, 1.0f);
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
        QApplication::sendEvent(&page, &event);
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
                    add("changeColor", slot, leds[7], single, singleBright);
                });
        connect(page, &V::changeLightMode, this,
                [this](int slot, int mode, int colorMode, int speed, bool off) {
                    add("changeLightMode", slot, mode, colorMode, speed, off ? "off" : "on");
                });
        connect(page, &V::changeColorMode, this,
                [this](int slot, int colorMode) { add("changeColorMode", slot, colorMode); });
        connect(page, &V::sendDefault, this, [this] { add("sendDefault"); });
        connect(page, &V::pressRGB, this, [this](COLORREF color) { add("pressRGB", color); });
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
        ((line << text(values)), ...);
        log << line.join(QLatin1Char(' '));
    }
    static QString text(int value) { return QString::number(value); }
    static QString text(float value) { return QString::number(value); }
    static QString text(COLORREF color)
    {
        return QString::number(color, 16).rightJustified(6, '0');
    }
    static QString text(const char* word) { return QLatin1String(word); }
    static QString text(const QString& word) { return word; }
};

} // namespace LightingTest
