#include "LightModeTable.h"

#include <QtGlobal>

#include <algorithm>
#include <initializer_list>

namespace {

// Index = light-mode value; the names are the translation keys of the Lighting_View context.
const char* const kModeKeys[] = {
    QT_TRANSLATE_NOOP("Lighting_View", "Flow"),
    QT_TRANSLATE_NOOP("Lighting_View", "RGB Spectrum"),
    QT_TRANSLATE_NOOP("Lighting_View", "Ripple"),
    QT_TRANSLATE_NOOP("Lighting_View", "Blink"),
    QT_TRANSLATE_NOOP("Lighting_View", "Pulse"),
    QT_TRANSLATE_NOOP("Lighting_View", "Wave"),
    QT_TRANSLATE_NOOP("Lighting_View", "Static"),
    QT_TRANSLATE_NOOP("Lighting_View", "Copy"),
    QT_TRANSLATE_NOOP("Lighting_View", "Movie"),
    QT_TRANSLATE_NOOP("Lighting_View", "Gaming"),
    QT_TRANSLATE_NOOP("Lighting_View", "Party"),
    QT_TRANSLATE_NOOP("Lighting_View", "Mobile_Movie"),
    QT_TRANSLATE_NOOP("Lighting_View", "Mobile_Gaming"),
    QT_TRANSLATE_NOOP("Lighting_View", "Mobile_Party"),
    QT_TRANSLATE_NOOP("Lighting_View", "Temp."),
    QT_TRANSLATE_NOOP("Lighting_View", "Cross"),
    QT_TRANSLATE_NOOP("Lighting_View", "Hello"),
    QT_TRANSLATE_NOOP("Lighting_View", "Shooting Star"),
    QT_TRANSLATE_NOOP("Lighting_View", "Black Hole"),
    QT_TRANSLATE_NOOP("Lighting_View", "Aurora"),
    QT_TRANSLATE_NOOP("Lighting_View", "RGB Sync"),
    QT_TRANSLATE_NOOP("Lighting_View", "Twinkle"),
    QT_TRANSLATE_NOOP("Lighting_View", "Script"),
    QT_TRANSLATE_NOOP("Lighting_View", "Weather"),
    QT_TRANSLATE_NOOP("Lighting_View", "Raindrop"),
    QT_TRANSLATE_NOOP("Lighting_View", "Heartbeat"),
    QT_TRANSLATE_NOOP("Lighting_View", "Stack"),
    QT_TRANSLATE_NOOP("Lighting_View", "Scan"),
    QT_TRANSLATE_NOOP("Lighting_View", "Swirl"),
    QT_TRANSLATE_NOOP("Lighting_View", "Screen Gaming"),
    QT_TRANSLATE_NOOP("Lighting_View", "Screen Movie"),
    QT_TRANSLATE_NOOP("Lighting_View", "Clock"),
    QT_TRANSLATE_NOOP("Lighting_View", "Rain"),
    QT_TRANSLATE_NOOP("Lighting_View", "Fireworks"),
    QT_TRANSLATE_NOOP("Lighting_View", "Explosion"),
    QT_TRANSLATE_NOOP("Lighting_View", "MB Sync"),
    QT_TRANSLATE_NOOP("Lighting_View", "Radiation"),
    QT_TRANSLATE_NOOP("Lighting_View", "Aim"),
};
static_assert(sizeof(kModeKeys) / sizeof(kModeKeys[0]) == LightModeTable::LastMode + 1,
              "one name per light mode");

const char* const kColorModeKeys[] = {
    QT_TRANSLATE_NOOP("Lighting_View", "RGB"),
    QT_TRANSLATE_NOOP("Lighting_View", "Single"),
    QT_TRANSLATE_NOOP("Lighting_View", "OFF"),
    QT_TRANSLATE_NOOP("Lighting_View", "Random"),
};

const char* const kSpeedKeys[] = {
    QT_TRANSLATE_NOOP("Lighting_View", "Extreme"),
    QT_TRANSLATE_NOOP("Lighting_View", "Fast"),
    QT_TRANSLATE_NOOP("Lighting_View", "Normal"),
    QT_TRANSLATE_NOOP("Lighting_View", "Slow"),
};

// Modes that take only the wave's per-LED colours.
constexpr int kWaveMode = 5;
// Modes that take one colour for the whole module.
constexpr int kSingleOnlyModes[] = {2, 32, 36};
// Modes that play their own built-in colours.
constexpr int kBuiltInModes[] = {0, 1, 7, 14, 16, 19, 20, 22, 23, 29, 30, 31};
// Modes that may also pick random colours.
constexpr int kRandomModes[] = {2, 3, 4, 25, 36, 37};
// Modes whose speed cannot be chosen (only values below 32 are fixed).
constexpr int kFixedSpeedModes[] = {6,  7,  8,  9,  10, 11, 12, 13, 14, 16,
                                    17, 18, 19, 20, 22, 23, 29, 30, 31};
constexpr int kFixedSpeedLimit = 32;

template <std::size_t N> bool contains(const int (&values)[N], int value)
{
    return std::find(std::begin(values), std::end(values), value) != std::end(values);
}

} // namespace

const char* LightModeTable::modeKey(int lightMode)
{
    if (lightMode < 0 || lightMode > LastMode)
        return nullptr;
    return kModeKeys[lightMode];
}

QVector<int> LightModeTable::modeValues(bool newMode)
{
    const int last = newMode ? LastMode : FirstNewMode - 1;
    QVector<int> values;
    values.reserve(last + 1);
    for (int mode = 0; mode <= last; ++mode)
        values.append(mode);
    return values;
}

const char* LightModeTable::colorModeKey(int colorMode)
{
    if (colorMode < ColorRgb || colorMode > ColorRandom)
        return kColorModeKeys[ColorRgb];
    return kColorModeKeys[colorMode];
}

QStringList LightModeTable::colorModeKeys()
{
    QStringList keys;
    for (const char* key : kColorModeKeys)
        keys.append(QString::fromLatin1(key));
    return keys;
}

QStringList LightModeTable::speedKeys()
{
    QStringList keys;
    for (const char* key : kSpeedKeys)
        keys.append(QString::fromLatin1(key));
    return keys;
}

LightModeTable::Rule LightModeTable::rule(int lightMode)
{
    const QString rgb = QString::fromLatin1(kColorModeKeys[ColorRgb]);
    const QString single = QString::fromLatin1(kColorModeKeys[ColorSingle]);
    const QString off = QString::fromLatin1(kColorModeKeys[ColorOff]);

    Rule rule{};
    rule.colorEntryEnabled = true;
    if (lightMode == kWaveMode) {
        rule.colorItems = QStringList{rgb};
        rule.colorComboEnabled = false;
        rule.brightnessEnabled = true;
        rule.groupDiagnostic = "comboBox_ColorMode->setDisabled(true):LM == 5";
    } else if (contains(kSingleOnlyModes, lightMode)) {
        rule.colorItems = QStringList{single};
        rule.colorComboEnabled = false;
        rule.brightnessEnabled = true;
        rule.groupDiagnostic =
            "comboBox_ColorMode->setDisabled(true):LM == 2 || LM == 32 || LM == 36";
    } else if (contains(kBuiltInModes, lightMode)) {
        rule.colorItems = QStringList{off};
        rule.colorComboEnabled = false;
        rule.colorEntryEnabled = false;
        rule.brightnessEnabled = false;
        rule.groupDiagnostic =
            "comboBox_ColorMode->setDisabled(true):LM == 0 || LM == 1 || LM == 7 || LM == 14 "
            "|| LM == 16 || LM == 19 || LM == 20 || LM == 22 || LM == 23 || (LM >= 29 && LM <= "
            "31)";
    } else {
        rule.colorItems = QStringList{rgb, single};
        rule.colorComboEnabled = true;
        rule.brightnessEnabled = true;
        rule.groupDiagnostic = "comboBox_ColorMode->setDisabled(false):RGB or Single";
    }

    // The wave keeps its single "RGB" item: it never offers random colours.
    if (lightMode != kWaveMode && contains(kRandomModes, lightMode)) {
        rule.colorItems.append(QString::fromLatin1(kColorModeKeys[ColorRandom]));
        rule.colorComboEnabled = true;
        rule.randomAdded = true;
    }

    rule.speedFixed = lightMode < kFixedSpeedLimit && contains(kFixedSpeedModes, lightMode);
    return rule;
}
