#pragma once

#include "norvalex_lighting.h"

#include <QList>
#include <QMap>
#include <QPixmap>
#include <QPolygon>
#include <QString>
#include <QWidget>

class Memory_RGB_View;
class Palette_draw_rect;
class QButtonGroup;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPropertyAnimation;
class QPushButton;
class QSlider;
class RGB_Palette;
class SwitchButton;
class Widget_Light_Mode_View;
class Widget_Preview;

// The lighting page: one LED strip per memory slot, the light mode, colour mode, speed,
// brightness and colour controls, profiles and the slot-order editor. Every decision leaves the
// page as a signal for the controller; the controller pushes the library's state back in through
// setLighting, setRGB and the slot-layout setters.
class Lighting_View : public QWidget
{
    Q_OBJECT

public:
    static constexpr int SlotCount = 8;
    static constexpr int LedRows = 8;
    static constexpr int ProfileCount = 5;

    explicit Lighting_View(QWidget* parent = nullptr);
    ~Lighting_View() override;

    // Shows the first slotCount strips; those below availableCount hold a module.
    void setMemorySlots(int slotCount, int availableCount);
    // Rebuilds the colour and speed combos for a light mode and enables the controls it uses.
    void checkLightingRule(int lightMode);

    // Slot-order editor buttons. Leaving the page during an edit emits btn_Edit_Cancel's
    // released() to cancel it.
    QPushButton* btn_Edit = nullptr;
    QPushButton* btn_Edit_Cancel = nullptr;
    QPushButton* btn_Edit_Apply = nullptr;

signals:
    void changeColor(int slot, COLORREF* colors, COLORREF singleColor, float* brights,
                     float singleBright);
    void changeLightMode(int slot, int lightMode, int colorMode, int lightSpeed, bool turnOff);
    void changeBright(float bright);
    void changeColorMode(int slot, int colorMode);
    void sendDefault();
    void sendSelected(int slot, bool selected);
    void changeMemorySlotNumber(int count, int* order);
    void select_Profile(int profile);
    void pressRGB(COLORREF color);
    void sendUpdatePreviewList(QList<COLORREF*> list);

public slots:
    void slotApply();
    void slotEdit();
    void slotEdit_Cancel();
    void slotEdit_Apply();
    void slotDefault();
    void currentLightModeIndex(int lightMode);
    void currentColorModeIndex(int index);
    void currentLightSpeedIndex(int index);
    void updatePreview();
    void updatePreviewList(QList<COLORREF*> list);
    void slot_SelectMemSlot(int slot);
    void slot_TurnOn_Switch(bool on);
    void slot_SelectHorizontal();
    void setRGB(int slot, COLORREF* colors, COLORREF singleColor, float* brights,
                float singleBright);
    void setLighting(int slot, int lightMode, int colorMode, int lightSpeed, bool turnOff);
    void changeSliderBright(int value);
    void slotLightMode();
    void setMemorySlotNumber(int count, int* order);
    void setMemoryLEDNumber(int count, int* ledNumbers);
    void slot_Profile();
    void slot_setProfile(int profile);
    void updateLanguage_Lighting();
    void slot_R_Value(int value);
    void slot_G_Value(int value);
    void slot_B_Value(int value);
    void slot_LineEdit_RValue();
    void slot_LineEdit_GValue();
    void slot_LineEdit_BValue();
    void receivePaletteValue(COLORREF color);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Construction, one group of widgets each.
    void buildLightModeMap();
    void createModeControls(QWidget* deck);
    void createColorControls(QWidget* deck);
    void createSwitchAndActions(QWidget* deck);
    void createStripArea();
    void createStrips();
    void createRowButtons();
    void createProfileButtons();
    void createEditButtons();
    void connectControls();
    void applyLanguageFonts();
    void showColorSwatch();

    // Shared steps.
    bool isEditMode() const;
    bool isSlotChecked(int slot) const;
    QString lightModeName(int lightMode);
    int colorComboIndexFor(int colorMode);
    int colorModeOfComboText();
    float moduleBrightness(int slot) const;
    void setBrightnessSlider(float bright);
    void applyMbSyncRule(int lightMode);
    void showSwitchState(bool on);
    void showSelectedControls();
    void showModuleColor(int slot);
    void updateRowButtons();
    void rebuildSelectArea();
    void placeRowButtons();
    void placeMarkers();
    void relayoutStrips();
    void readdStrip(int slot, int column);
    void setEditControlsEnabled(bool enabled);
    void leaveEditMode();
    void finishEditMode();
    void sendColorEntry();
    void commitLineEdit(QLineEdit* lineEdit, QSlider* slider);
    QRect stripRect(int slot) const;
    bool stripContains(int slot, const QPoint& pos) const;
    QPoint ledCorner(int slot, int led) const;

    // Mouse handling.
    void pressInEditMode(const QPoint& pos);
    void pickUpStrip(int slot, const QPoint& pos);
    void dropStrip(const QPoint& pos);
    void swapStrips(int dragged, int target);
    void selectLedsInBand(const QPoint& releasePos);

    // Per-module lighting state, by slot.
    MemoryModuleData memoryData[SlotCount];
    int currentLightMode = 0;
    int currentColorMode = 0;
    int currentLightSpeed = 0;

    QMap<int, QString> lightModeMap;
    QMap<QString, int> colorModeStandMap;
    QMap<QString, int> colorModeMap;

    // Slot layout.
    int slotNumber = 0;
    int availableSlotNumber = 0;
    int maxLEDNum = 0;
    int savedOrder[SlotCount] = {0, 1, 2, 3, 4, 5, 6, 7};

    // Mode and colour controls.
    QWidget* widget_Lighting_Control = nullptr;
    QPushButton* btn_LightMode = nullptr;
    QLabel* label_LightModeArrow = nullptr;
    Widget_Light_Mode_View* widget_Light_Mode_View = nullptr;
    QLabel* label_MB_Sync = nullptr;
    QLabel* label_colorMode = nullptr;
    QComboBox* comboBox_ColorMode = nullptr;
    QLabel* line_ColorMode = nullptr;
    QLabel* label_ligheSpeed = nullptr;
    QComboBox* comboBox_LightSpeed = nullptr;
    QLabel* line_LightSpeed = nullptr;
    QLabel* label_Brightness = nullptr;
    QSlider* slider_Light = nullptr;
    QLabel* label_R_Value = nullptr;
    QLabel* label_G_Value = nullptr;
    QLabel* label_B_Value = nullptr;
    QSlider* slider_R_Value = nullptr;
    QSlider* slider_G_Value = nullptr;
    QSlider* slider_B_Value = nullptr;
    QLineEdit* lineEdit_R_Value = nullptr;
    QLineEdit* lineEdit_G_Value = nullptr;
    QLineEdit* lineEdit_B_Value = nullptr;
    QLabel* label_ColorSwatch = nullptr;
    RGB_Palette* rgb_Palette = nullptr;
    SwitchButton* switchButton = nullptr;
    QLabel* label_TurnLight = nullptr;
    QLabel* label_Switch = nullptr;
    QPushButton* btn_Apply = nullptr;
    QPushButton* btn_Default = nullptr;

    // Strips, markers, rows, preview and profiles.
    QWidget* widget_memory_Control = nullptr;
    QGridLayout* gridLayout_Memory = nullptr;
    Memory_RGB_View* memoryRGBView[SlotCount] = {};
    QPushButton* btn_Slots[SlotCount] = {};
    QPushButton* btn_SelectHorizontal[LedRows] = {};
    QLabel* label_Preview = nullptr;
    Widget_Preview* widget_Preview = nullptr;
    QButtonGroup* buttonGroup_Profile = nullptr;
    QPushButton* btn_Profile[ProfileCount] = {};

    // Area selection and slot dragging.
    Palette_draw_rect* palette_draw_rect = nullptr;
    int allselect_start_x = 0;
    int allselect_start_y = 0;
    int allselect_end_x = 0;
    int allselect_end_y = 0;
    bool allselectDragging = false;
    QPolygon selectAreaPointList;
    int dragSlotIndex = -1;
    QPixmap dragPixmap;
    QLabel* label_DragSlot = nullptr;
    QPropertyAnimation* slotAnimation[SlotCount] = {};
    QLabel* slotLabel[SlotCount] = {};
};
