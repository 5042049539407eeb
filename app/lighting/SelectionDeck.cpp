#include "SelectionDeck.h"

#include "AppGlobals.h"
#include "ColorEntry.h"
#include "LightModeTable.h"
#include "LightingDeck.h"
#include "LightingLook.h"
#include "Log.h"
#include "Memory_RGB_View.h"
#include "ModeControls.h"

#include <QComboBox>
#include <QPushButton>

SelectionDeck::SelectionDeck(LightingDeck& deck, ModeControls& modes,
                             Memory_RGB_View* const (&strips)[SlotCount],
                             const MemoryModuleData (&modules)[SlotCount])
    : deck(deck), modes(modes), strips(strips), modules(modules)
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
