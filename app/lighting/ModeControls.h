#pragma once

#include <QMap>
#include <QString>

class LightingDeck;

// The light-mode names of the lighting page and its colour-mode and speed combos: which items a
// light mode offers and which controls it enables, and the conversions between colour modes,
// combo items and their translated texts.
class ModeControls
{
public:
    explicit ModeControls(LightingDeck& deck);
    ModeControls(const ModeControls&) = delete;
    ModeControls& operator=(const ModeControls&) = delete;

    // Light-mode names of the current module generation, in the current language.
    const QMap<int, QString>& lightModeNames() const { return lightModeMap; }
    // A mode without a name gives an empty text.
    QString lightModeName(int lightMode);

    // Refills both combos for `lightMode` and enables the controls it uses. A speed that is not
    // fixed shows `speed`, or what the refilled combo shows when it is negative.
    void applyRule(int lightMode, int speed);

    // The colour combo's item for a colour mode, and the colour mode its current text names.
    int comboIndexFor(int colorMode);
    int colorModeOfComboText();

    // Renews the names and the text conversions in the current language; the combos' items must
    // already be translated.
    void retranslate();

private:
    void buildLightModeMap();

    LightingDeck& deck;
    QMap<int, QString> lightModeMap;
    // Every colour mode by its translated name.
    QMap<QString, int> colorModeStandMap;
    // The colour combo's items by their text.
    QMap<QString, int> colorModeMap;
};
