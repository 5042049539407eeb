#pragma once

#include <QStringList>
#include <QVector>

// The lighting vocabulary that travels to the lighting library: light-mode values and their
// English names (translation keys of the Lighting_View context), colour modes, light speeds,
// and the per-mode rule that decides which colour modes are offered and which controls work.
class LightModeTable
{
public:
    // Colour-mode values.
    enum ColorMode { ColorRgb = 0, ColorSingle = 1, ColorOff = 2, ColorRandom = 3 };
    // The speed that modes with a fixed speed are shown with ("Normal").
    static constexpr int FixedSpeed = 2;
    // Highest light-mode value known; 36 and above exist only for the newer module generation.
    static constexpr int LastMode = 37;
    static constexpr int FirstNewMode = 36;

    // What the page offers for one light mode.
    struct Rule {
        QStringList colorItems;      // English keys of the colour combo items, in order
        bool colorComboEnabled;      // the colour combo can be changed
        bool colorEntryEnabled;      // the R/G/B sliders and line edits work
        bool brightnessEnabled;      // the brightness slider works
        bool randomAdded;            // "Random" was appended to the group's items
        bool speedFixed;             // the speed is shown as "Normal" and cannot be changed
        const char* groupDiagnostic; // the diagnostic line naming the group
    };

    // English name (translation key) of a light mode, or nullptr for an unknown value.
    static const char* modeKey(int lightMode);
    // Light-mode values that have a name, in ascending order; 36 and 37 only with newMode.
    static QVector<int> modeValues(bool newMode);

    // English key of a colour-mode value: "RGB", "Single", "OFF", "Random"; "RGB" otherwise.
    static const char* colorModeKey(int colorMode);
    // The four colour-mode keys in value order.
    static QStringList colorModeKeys();
    // The four speed keys in value order: "Extreme", "Fast", "Normal", "Slow".
    static QStringList speedKeys();

    static Rule rule(int lightMode);
};
