#include "SelectionDeck.h"

#include "AppGlobals.h"
#include "ColorEntry.h"
#include "LightModeTable.h"
#include "LightingDeck.h"
#include "LightingLook.h"
#include "Lighting_View.h"
#include "Log.h"
#include "Memory_RGB_View.h"
#include "ModeControls.h"

#include <QComboBox>
#include <QPushButton>
#include <QSlider>

SelectionDeck::SelectionDeck(Lighting_View* page, LightingDeck& deck, ModeControls& modes,
                             Memory_RGB_View* const (&strips)[SlotCount],
                             MemoryModuleData (&modules)[SlotCount])
    : page(page), deck(deck), modes(modes), strips(strips), modules(modules)
{
}

bool SelectionDeck::isSlotChecked(int slot) const
{
    return strips[slot]->btn_MemorySlot->isChecked();
}

void SelectionDeck::applyRule(int lightMode)
{
    qCDebug(lcPanel) << "Lighting_View::checkLightingRule" << lightMode;
    int speed = -1;
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i)) {
            speed = modules[i].lightSpeed;
            break;
        }
    }
    modes.applyRule(lightMode, speed);
}

void SelectionDeck::showSelection(int currentLightMode)
{
    bool sameMode = true;
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i) && strips[i]->available && modules[i].lightMode != currentLightMode)
            sameMode = false;
    }

    QComboBox* colorCombo = deck.comboBox_ColorMode;
    QComboBox* speedCombo = deck.comboBox_LightSpeed;
    if (!sameMode) {
        deck.btn_LightMode->setText(QString());
        colorCombo->clear();
        colorCombo->setEnabled(false);
        speedCombo->clear();
        speedCombo->setEnabled(false);
        return;
    }

    const MemoryModuleData& focused = modules[SelectMemoryIndex];
    applyRule(focused.lightMode);
    deck.btn_LightMode->setText(modes.lightModeName(focused.lightMode));
    colorCombo->setCurrentIndex(modes.comboIndexFor(focused.colorMode));
    speedCombo->setCurrentIndex(focused.lightSpeed);

    bool colorModesDiffer = false;
    bool speedsDiffer = false;
    for (int i = 0; i < SlotCount; ++i) {
        if (!isSlotChecked(i) || !strips[i]->available)
            continue;
        colorModesDiffer = colorModesDiffer || modules[i].colorMode != focused.colorMode;
        speedsDiffer = speedsDiffer || modules[i].lightSpeed != focused.lightSpeed;
    }
    if (colorModesDiffer)
        colorCombo->setCurrentText(QString());
    if (speedsDiffer)
        speedCombo->setCurrentText(QString());
    applyMbSyncRule(focused.lightMode);
}

void SelectionDeck::showModule(int slot)
{
    const MemoryModuleData& module = modules[slot];
    deck.btn_LightMode->setText(modes.lightModeName(module.lightMode));
    applyRule(module.lightMode);
    deck.comboBox_LightSpeed->setCurrentIndex(module.lightSpeed);
    deck.comboBox_ColorMode->setCurrentIndex(modes.comboIndexFor(module.colorMode));
    deck.showSwitchState(module.lightingOff == 0);
    const Memory_RGB_View* strip = strips[slot];
    float bright = 1.0f;
    if (module.colorMode == LightModeTable::ColorRgb)
        bright = strip->ledBright[0];
    else if (module.colorMode == LightModeTable::ColorSingle)
        bright = strip->singleBright;
    deck.setBrightness(bright);
    applyMbSyncRule(module.lightMode);
}

void SelectionDeck::showModuleColor(int slot)
{
    const Memory_RGB_View* strip = strips[slot];
    COLORREF color = 0;
    if (strip->colorMode == LightModeTable::ColorRgb) {
        int led = 0;
        while (led < Memory_RGB_View::LedCount && !strip->btn_Led[led]->isChecked())
            ++led;
        if (led == Memory_RGB_View::LedCount)
            return;
        color = strip->ledColor[led];
    } else if (strip->colorMode == LightModeTable::ColorSingle) {
        color = strip->singleColor;
    } else {
        return;
    }
    deck.colorEntry->setColor(color);
}

float SelectionDeck::moduleBrightness(int slot) const
{
    const Memory_RGB_View* strip = strips[slot];
    if (strip->colorMode == LightModeTable::ColorRgb)
        return strip->ledBright[0];
    if (strip->colorMode == LightModeTable::ColorSingle)
        return strip->singleBright;
    return 1.0f;
}

void SelectionDeck::applyMbSyncRule(int lightMode)
{
    deck.showMbSyncWarning(mbSyncWarning && lightMode == LightingLook::kMbSyncMode);
}

void SelectionDeck::showSwitch()
{
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i) && strips[i]->available) {
            deck.showSwitchState(modules[i].lightingOff == 0);
            return;
        }
    }
}

void SelectionDeck::apply(int currentLightMode)
{
    for (int i = 0; i < SlotCount; ++i) {
        if (!isSlotChecked(i))
            continue;
        MemoryModuleData& module = modules[i];
        // An empty text means the selected modules disagree: their own values are kept.
        if (!deck.btn_LightMode->text().isEmpty()) {
            module.lightMode = currentLightMode;
            if (!deck.comboBox_ColorMode->currentText().isEmpty())
                module.colorMode = modes.colorModeOfComboText();
            if (!deck.comboBox_LightSpeed->currentText().isEmpty())
                module.lightSpeed = deck.comboBox_LightSpeed->currentIndex();
        }
        qCDebug(lcPanel) << "UI-->changeBright ==" << deck.slider_Light->value();
        emit page->changeBright(static_cast<float>(deck.slider_Light->value() / 10.0));
        Memory_RGB_View* strip = strips[i];
        emit page->changeColor(i, strip->ledColor, strip->singleColor, strip->ledBright,
                               strip->singleBright);
    }
    for (int i = 0; i < SlotCount; ++i) {
        if (!isSlotChecked(i))
            continue;
        const MemoryModuleData& module = modules[i];
        emit page->changeLightMode(i, module.lightMode, module.colorMode, module.lightSpeed,
                                   module.lightingOff != 0);
        emit page->changeColorMode(i, module.colorMode);
    }
}

void SelectionDeck::restoreDefaults()
{
    emit page->changeBright(1.0f);
    for (int i = 0; i < SlotCount; ++i) {
        if (!isSlotChecked(i))
            continue;
        deck.comboBox_LightSpeed->setCurrentIndex(LightModeTable::FixedSpeed);
        emit page->changeColorMode(i, modules[i].colorMode);
    }
    emit page->sendDefault();
}

void SelectionDeck::setSwitch(bool on)
{
    deck.showSwitchLabel(on);
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i))
            modules[i].lightingOff = on ? 0 : 1;
    }
}
