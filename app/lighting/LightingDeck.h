#pragma once

class ColorEntry;
class QComboBox;
class QLabel;
class QPushButton;
class QSlider;
class QString;
class QWidget;
class SwitchButton;

// The control deck below the strips of the lighting page: light-mode button, colour-mode and
// speed combos, colour entry, brightness, the on/off switch, Apply and Default. It builds the
// widgets (the page's children, named as the page's style sheets and tests expect) and keeps
// their captions and per-language fonts; what the controls do is the page's business.
class LightingDeck
{
public:
    explicit LightingDeck(QWidget* page);
    LightingDeck(const LightingDeck&) = delete;
    LightingDeck& operator=(const LightingDeck&) = delete;

    // Renews every caption and both combos' item texts in the current language.
    void retranslate();
    // Font sizes that keep the captions inside their places in the given language.
    void applyLanguageFonts(int language);
    // The switch and its "ON"/"OFF" label; showSwitchLabel leaves the switch itself alone.
    void showSwitchState(bool on);
    void showSwitchLabel(bool on);
    // Brightness 0.0..1.0 on the ten-step slider.
    void setBrightness(float bright);
    // The MB Sync warning, shown above the colour wheel.
    void showMbSyncWarning(bool shown);

    // Combo items that carry their English key, so that a language change can renew them.
    static void addKeyedItem(QComboBox* combo, const QString& key);
    static void retranslateCombo(QComboBox* combo);
    // An item with an empty text that the drop-down never shows and the arrow keys skip: the
    // combo shows it when the selected modules disagree.
    static void appendHiddenEmptyItem(QComboBox* combo);

    QWidget* widget_Lighting_Control = nullptr;
    QPushButton* btn_LightMode = nullptr;
    QLabel* label_LightModeArrow = nullptr;
    QLabel* label_MB_Sync = nullptr;
    QLabel* label_colorMode = nullptr;
    QComboBox* comboBox_ColorMode = nullptr;
    QLabel* line_ColorMode = nullptr;
    QLabel* label_ligheSpeed = nullptr;
    QComboBox* comboBox_LightSpeed = nullptr;
    QLabel* line_LightSpeed = nullptr;
    ColorEntry* colorEntry = nullptr;
    QLabel* label_Brightness = nullptr;
    QSlider* slider_Light = nullptr;
    QLabel* label_TurnLight = nullptr;
    SwitchButton* switchButton = nullptr;
    QLabel* label_Switch = nullptr;
    QPushButton* btn_Apply = nullptr;
    QPushButton* btn_Default = nullptr;

private:
    void nameControls();
    void createModeControls(QWidget* deck);
    void createBrightness(QWidget* deck);
    void createSwitchAndActions(QWidget* deck);
};
