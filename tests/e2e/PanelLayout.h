#pragma once

#include "Information_View.h"
#include "Lighting_View.h"
#include "Main_View.h"
#include "Memory_RGB_View.h"
#include "Noti_View.h"
#include "Setting_View.h"
#include "Widget_Language.h"
#include "Widget_Light_Mode_View.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <algorithm>
#include <memory>

// Where things are in the panel's window. The panel lays its widgets out at fixed positions, so
// a frame of the same build, shown off screen in this process with the same module counts,
// answers "where is the Apply button" for the real panel the test drives under X.
class PanelLayout
{
public:
    PanelLayout(int slotCount, int memoryCount, int ledCount)
    {
        frame_->setAttribute(Qt::WA_DontShowOnScreen);
        frame_->show();
        frame_->setQXModuleType({QStringLiteral("KX44")});
        frame_->setSlotNumber(slotCount, memoryCount);
        QTest::mouseClick(frame_->btn_Lighting, Qt::LeftButton);
        int leds[8];
        std::fill(std::begin(leds), std::end(leds), ledCount);
        emit frame_->setMemoryLEDNumber(8, leds);
        QTest::mouseClick(frame_->btn_Info, Qt::LeftButton);
    }

    // The window position of a point of a widget (its centre by default).
    QPoint at(const QWidget* widget, QPoint offset = {-1, -1}) const
    {
        if (!widget)
            return {};
        const QPoint local = offset.x() < 0 ? widget->rect().center() : offset;
        return widget->mapTo(frame_.get(), local);
    }
    QRect rectOf(const QWidget* widget) const
    {
        return widget ? QRect(at(widget, {0, 0}), widget->size()) : QRect();
    }

    Main_View* frame() const { return frame_.get(); }
    QWidget* lightingPage() const { return frame_->lighting_View; }

    template <typename T = QWidget> T* named(QWidget* parent, const char* name) const
    {
        return parent ? parent->findChild<T*>(QLatin1String(name)) : nullptr;
    }
    QWidget* lighting(const char* name) const { return named(frame_->lighting_View, name); }

    Memory_RGB_View* strip(int slot) const
    {
        const auto strips = frame_->lighting_View->findChildren<Memory_RGB_View*>();
        const auto found = std::find_if(strips.begin(), strips.end(),
                                        [slot](auto* strip) { return strip->slotNumber == slot; });
        return found == strips.end() ? nullptr : *found;
    }
    QRect ledRect(int slot, int led) const
    {
        const Memory_RGB_View* s = strip(slot);
        return s ? rectOf(s->btn_Led[led]) : QRect();
    }

    // The entry of the light-mode list for a mode; the list is opened here to lay it out.
    QPoint lightModeEntry(int mode) const
    {
        auto* list = frame_->lighting_View->findChild<Widget_Light_Mode_View*>();
        QTest::mouseClick(named<QPushButton>(frame_->lighting_View, "btn_LightMode"),
                          Qt::LeftButton);
        return at(named(list, QByteArray::number(mode).constData()));
    }
    // The entry of the language list for a language index, laid out the same way.
    QPoint languageEntry(int language) const
    {
        QTest::mouseClick(frame_->btn_Setting, Qt::LeftButton);
        QWidget* page = frame_->setting_View;
        QTest::mouseClick(named<QPushButton>(page, "btn_Language"), Qt::LeftButton);
        auto* list = page->findChild<Widget_Language*>();
        return at(named(list, QByteArray::number(language).constData()));
    }
    QPoint notiField(const char* name) const
    {
        QTest::mouseClick(frame_->btn_Noti, Qt::LeftButton);
        return at(named(frame_->noti_View, name));
    }

private:
    std::unique_ptr<Main_View> frame_ = std::make_unique<Main_View>();
};
