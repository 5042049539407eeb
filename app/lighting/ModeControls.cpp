#include "ModeControls.h"

#include "AppGlobals.h"
#include "ColorEntry.h"
#include "LightModeTable.h"
#include "LightingDeck.h"
#include "Lighting_View.h"
#include "Log.h"

#include <QComboBox>
#include <QSlider>

ModeControls::ModeControls(LightingDeck& deck) : deck(deck)
{
    buildLightModeMap();
    const QStringList colorKeys = LightModeTable::colorModeKeys();
    for (int mode = LightModeTable::ColorRgb; mode <= LightModeTable::ColorOff; ++mode) {
        colorModeStandMap.insert(Lighting_View::tr(qPrintable(colorKeys.at(mode))), mode);
        colorModeMap.insert(Lighting_View::tr(qPrintable(colorKeys.at(mode))), mode);
    }
}

void ModeControls::buildLightModeMap()
{
    lightModeMap.clear();
    for (int mode : LightModeTable::modeValues(isNewMode))
        lightModeMap.insert(mode, Lighting_View::tr(LightModeTable::modeKey(mode)));
}

QString ModeControls::lightModeName(int lightMode)
{
    // Subscript on purpose: a mode without a name shows an empty button text.
    return lightModeMap[lightMode];
}

void ModeControls::applyRule(int lightMode, int speed)
{
    const LightModeTable::Rule rule = LightModeTable::rule(lightMode);
    QComboBox* colorCombo = deck.comboBox_ColorMode;
    QComboBox* speedCombo = deck.comboBox_LightSpeed;

    colorCombo->clear();
    colorModeMap.clear();
    deck.colorEntry->setChannelsEnabled(rule.colorEntryEnabled);

    const int groupItems = rule.colorItems.size() - (rule.randomAdded ? 1 : 0);
    for (int i = 0; i < groupItems; ++i) {
        colorModeMap.insert(Lighting_View::tr(qPrintable(rule.colorItems.at(i))),
                            colorModeMap.size());
        LightingDeck::addKeyedItem(colorCombo, rule.colorItems.at(i));
    }
    qCDebug(lcPanel) << rule.groupDiagnostic;
    deck.slider_Light->setDisabled(!rule.brightnessEnabled);

    if (rule.randomAdded) {
        colorModeMap.insert(Lighting_View::tr(qPrintable(rule.colorItems.last())),
                            colorModeMap.size());
        LightingDeck::addKeyedItem(colorCombo, rule.colorItems.last());
        qCDebug(lcPanel) << "Add Random";
    }
    colorCombo->setEnabled(rule.colorComboEnabled);
    LightingDeck::appendHiddenEmptyItem(colorCombo);

    speedCombo->clear();
    for (const QString& key : LightModeTable::speedKeys())
        LightingDeck::addKeyedItem(speedCombo, key);
    LightingDeck::appendHiddenEmptyItem(speedCombo);

    if (rule.speedFixed) {
        speedCombo->setCurrentIndex(LightModeTable::FixedSpeed);
        speedCombo->setEnabled(false);
        return;
    }
    if (speed >= 0)
        speedCombo->setCurrentIndex(speed);
    speedCombo->setEnabled(true);
}

int ModeControls::comboIndexFor(int colorMode)
{
    return colorModeMap[Lighting_View::tr(LightModeTable::colorModeKey(colorMode))];
}

int ModeControls::colorModeOfComboText()
{
    return colorModeStandMap[deck.comboBox_ColorMode->currentText()];
}

void ModeControls::retranslate()
{
    buildLightModeMap();
    colorModeStandMap.clear();
    const QStringList colorKeys = LightModeTable::colorModeKeys();
    for (int mode = 0; mode < colorKeys.size(); ++mode)
        colorModeStandMap.insert(Lighting_View::tr(qPrintable(colorKeys.at(mode))), mode);

    QComboBox* colorCombo = deck.comboBox_ColorMode;
    colorModeMap.clear();
    for (int i = 0; i < colorCombo->count(); ++i) {
        if (!colorCombo->itemData(i).toString().isEmpty())
            colorModeMap.insert(colorCombo->itemText(i), i);
    }
}
