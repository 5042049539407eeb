#include "LightingWiring.h"

#include "ColorEntry.h"
#include "LightingDeck.h"
#include "Lighting_View.h"
#include "Memory_RGB_View.h"
#include "RGB_Palette.h"
#include "SwitchButton.h"
#include "Widget_Light_Mode_View.h"
#include "Widget_Preview.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

void LightingWiring::connect(Lighting_View* page, const Parts& parts)
{
    const ColorEntry* entry = parts.deck.colorEntry;
    for (Memory_RGB_View* strip : parts.strips) {
        strip->installEventFilter(page);
        QObject::connect(strip, &Memory_RGB_View::SelectMemSlot, page,
                         &Lighting_View::slot_SelectMemSlot);
        // One connection per strip: a pick runs receivePaletteValue once for every strip, and
        // repeating the same colour changes nothing.
        QObject::connect(entry->palette(), &RGB_Palette::pressRGB, page,
                         &Lighting_View::receivePaletteValue);
        QObject::connect(page, &Lighting_View::changeBright, strip,
                         &Memory_RGB_View::slot_ChangeBright);
        QObject::connect(page, &Lighting_View::changeColorMode, strip,
                         &Memory_RGB_View::slot_ChangeColorMode);
        QObject::connect(page, &Lighting_View::sendDefault, strip, &Memory_RGB_View::slot_Default);
        QObject::connect(page, &Lighting_View::sendSelected, strip,
                         &Memory_RGB_View::slot_Selected);
        QObject::connect(page, &Lighting_View::pressRGB, strip, &Memory_RGB_View::pressRGB);
    }
    QObject::connect(page, &Lighting_View::sendUpdatePreviewList, parts.preview,
                     &Widget_Preview::updatePreviewList, Qt::DirectConnection);

    QObject::connect(parts.modeList, &Widget_Light_Mode_View::selectLightMode, page,
                     &Lighting_View::currentLightModeIndex);
    QObject::connect(parts.deck.comboBox_ColorMode, qOverload<int>(&QComboBox::activated), page,
                     &Lighting_View::currentColorModeIndex);
    QObject::connect(parts.deck.comboBox_LightSpeed, qOverload<int>(&QComboBox::activated), page,
                     &Lighting_View::currentLightSpeedIndex);
    QObject::connect(parts.deck.slider_Light, &QSlider::valueChanged, page,
                     &Lighting_View::changeSliderBright);

    using Slot = void (Lighting_View::*)();
    using ValueSlot = void (Lighting_View::*)(int);
    const ValueSlot valueSlots[] = {&Lighting_View::slot_R_Value, &Lighting_View::slot_G_Value,
                                    &Lighting_View::slot_B_Value};
    const Slot commitSlots[] = {&Lighting_View::slot_LineEdit_RValue,
                                &Lighting_View::slot_LineEdit_GValue,
                                &Lighting_View::slot_LineEdit_BValue};
    for (int c = 0; c < ColorEntry::ChannelCount; ++c) {
        QObject::connect(entry->slider(c), &QSlider::valueChanged, page, valueSlots[c]);
        QObject::connect(entry->slider(c), &QSlider::sliderReleased, page, commitSlots[c]);
    }
    for (int c = 0; c < ColorEntry::ChannelCount; ++c)
        QObject::connect(entry->field(c), &QLineEdit::returnPressed, page, commitSlots[c]);

    QObject::connect(parts.deck.switchButton, &SwitchButton::sigClicked, page,
                     &Lighting_View::slot_TurnOn_Switch);
    for (QPushButton* row : parts.rows)
        QObject::connect(row, &QPushButton::released, page, &Lighting_View::slot_SelectHorizontal);
    for (QPushButton* profile : parts.profiles)
        QObject::connect(profile, &QPushButton::released, page, &Lighting_View::slot_Profile);

    QObject::connect(parts.deck.btn_LightMode, &QPushButton::clicked, page,
                     &Lighting_View::slotLightMode);
    QObject::connect(parts.deck.btn_Apply, &QPushButton::clicked, page, &Lighting_View::slotApply);
    QObject::connect(parts.deck.btn_Default, &QPushButton::clicked, page,
                     &Lighting_View::slotDefault);
    QObject::connect(parts.edit, &QPushButton::clicked, page, &Lighting_View::slotEdit);
    QObject::connect(parts.editApply, &QPushButton::clicked, page, &Lighting_View::slotEdit_Apply);
    // Released, not clicked: leaving the page emits it to cancel an unfinished edit.
    QObject::connect(parts.editCancel, &QPushButton::released, page,
                     &Lighting_View::slotEdit_Cancel);
}
