#pragma once

#include "norvalex_lighting.h"

#include <QList>
#include <QPolygon>
#include <QWidget>

#include <memory>

class LightingDeck;
class Memory_RGB_View;
class ModeControls;
class Palette_draw_rect;
class ProfileButtons;
class QLabel;
class QLineEdit;
class QPropertyAnimation;
class QPushButton;
class SelectionDeck;
class SlotLayout;
class SlotOrder;
class StripSelection;
class Widget_Light_Mode_View;

// The lighting page: one LED strip per memory slot, the light mode, colour mode, speed,
// brightness and colour controls, profiles and the slot-order editor. Every decision leaves the
// page as a signal for the controller; the controller pushes the library's state back in through
// setLighting, setRGB and the slot-layout setters. The page owns its state and wires its
// helpers: LightingDeck builds the control deck (with ColorEntry for the colour channels),
// ModeControls fills its combos for a light mode, SelectionDeck shows the selected modules in
// it, SlotLayout arranges the slots and runs Edit mode, SlotOrder keeps their order and drags a
// strip in Edit mode, and
// StripSelection selects LEDs.
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

    // Repaints where the outline of the selected strips was and is now: the only picture the
    // page draws itself. Its children repaint themselves when they change.
    void updateOutline();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void returnFromModeList();

private:
    void applyLanguageFonts();
    // The part of the page the outline of the selected strips covers.
    QRect outlineArea() const;

    // Shared steps.
    bool isEditMode() const;
    bool isSlotChecked(int slot) const;
    void commitLineEdit(int channel);

    // Per-module lighting state, by slot.
    MemoryModuleData memoryData[SlotCount];
    int currentLightMode = 0;
    int currentColorMode = 0;
    int currentLightSpeed = 0;

    // The control deck, what it shows, and the light-mode list below its mode button.
    std::unique_ptr<LightingDeck> deck;
    std::unique_ptr<ModeControls> modes;
    std::unique_ptr<SelectionDeck> selectionDeck;
    Widget_Light_Mode_View* widget_Light_Mode_View = nullptr;
    QLineEdit* lineEdit_R_Value = nullptr;
    QLineEdit* lineEdit_G_Value = nullptr;
    QLineEdit* lineEdit_B_Value = nullptr;

    // Slot layout and Edit mode.
    std::unique_ptr<SlotLayout> slotLayout;
    QWidget* widget_memory_Control = nullptr;
    Memory_RGB_View* memoryRGBView[SlotCount] = {};
    QPushButton* btn_SelectHorizontal[LedRows] = {};
    QLabel* slotLabel[SlotCount] = {};
    QPropertyAnimation* slotAnimation[SlotCount] = {};
    int maxLEDNum = 0;
    int savedOrder[SlotCount] = {0, 1, 2, 3, 4, 5, 6, 7};

    // Profiles.
    std::unique_ptr<ProfileButtons> profiles;
    QPushButton* btn_Profile[ProfileCount] = {};

    // LED selection: the band, the row buttons and the outline of the selected strips.
    std::unique_ptr<StripSelection> selection;
    Palette_draw_rect* palette_draw_rect = nullptr;
    int allselect_start_x = 0;
    int allselect_start_y = 0;
    int allselect_end_x = 0;
    int allselect_end_y = 0;
    bool allselectDragging = false;
    QPolygon selectAreaPointList;
    QRect outlineOnScreen; // what painted outlines may cover until they are painted over

    // The strip picked up in Edit mode.
    std::unique_ptr<SlotOrder> slotOrder;
};
