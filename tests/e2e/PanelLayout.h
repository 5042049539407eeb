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

#include <memory>

// Where things are in the panel's window. The panel lays its widgets out at fixed positions, so
// a frame of the same build, shown off screen in this process with the same module counts,
// answers "where is the Apply button" for the real panel the test drives under X.
class PanelLayout
{
public:
    PanelLayout(int modules, int ledCount)
    {
        frame_->setAttribute(Qt::WA_DontShowOnScreen);
        frame_->show();
        frame_->setQXModuleType({QStringLiteral("KX44")});
        frame_->setSlotNumber(modules, modules);
        QTest::mouseClick(frame_->btn_Lighting, Qt::LeftButton);
        int leds[8];
        std::fill(std::begin(leds), std::end(leds), ledCount);
        emit frame_->setMemoryLEDNumber(8, leds);
        QTest::mouseClick(frame_->btn_Info, Qt::LeftButton);
    }

    // The window position of a widget's centre, and its rectangle.
    QPoint at(const QWidget* widget) const { return rectOf(widget).center(); }
    QRect rectOf(const QWidget* widget) const
    {
        return widget ? QRect(widget->mapTo(frame_.get(), QPoint()), widget->size()) : QRect();
    }

    Main_View* frame() const { return frame_.get(); }
    QWidget* named(QWidget* parent, const char* name) const
    {
        return parent ? parent->findChild<QWidget*>(QLatin1String(name)) : nullptr;
    }
    QWidget* lighting(const char* name) const { return named(frame_->lighting_View, name); }

    Memory_RGB_View* strip(int slot) const
    {
        for (Memory_RGB_View* strip : frame_->lighting_View->findChildren<Memory_RGB_View*>())
            if (strip->slotNumber == slot)
                return strip;
        return nullptr;
    }
    QRect ledRect(int slot, int led) const
    {
        const Memory_RGB_View* s = strip(slot);
        return s ? rectOf(s->btn_Led[led]) : QRect();
    }

    // The entries of the light-mode and language lists; each list is opened here to lay it out.
    QPoint lightModeEntry(int mode) const
    {
        QTest::mouseClick(lighting("btn_LightMode"), Qt::LeftButton);
        auto* list = frame_->lighting_View->findChild<Widget_Light_Mode_View*>();
        return at(named(list, QByteArray::number(mode).constData()));
    }
    QPoint languageEntry(int language) const
    {
        QTest::mouseClick(frame_->btn_Setting, Qt::LeftButton);
        QTest::mouseClick(named(frame_->setting_View, "btn_Language"), Qt::LeftButton);
        auto* list = frame_->setting_View->findChild<Widget_Language*>();
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
