#pragma once

#include "norvalex_lighting.h"

#include <QWidget>

class QButtonGroup;
class QGridLayout;
class QLabel;
class QPushButton;

// The row of numbered slot buttons on the Information page and the four labels that describe
// the module of the chosen slot.
class Information_Slots_View : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kSlotButtonCount = NX_MODULE_COUNT;

    explicit Information_Slots_View(QWidget* parent = nullptr);

    // First build of the labels and the slot buttons.
    void setupSlotButtons(int count);
    // Shows the first `count` slot buttons again, laid out afresh, and checks the first.
    void resetSlotButtons(int count);
    void setModuleData(const MemoryModuleData modules[NX_MODULE_COUNT]);
    void refreshModuleLabels();

    // Font size of the slot numbers for a given number of slots.
    static int slotButtonFontSize(int count);

public slots:
    void slot_Select_Memory();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* makeModuleLabel(const char* name, int y);
    void placeSlotButton(int index, int fontSize);

    QLabel* label_Memory_Type = nullptr;
    QLabel* label_Memory_Frequency = nullptr;
    QLabel* label_Memory_Size = nullptr;
    QLabel* label_Memory_Temperature = nullptr;
    QPushButton* btn_Slot[NX_MODULE_COUNT] = {};
    QButtonGroup* buttonGroup = nullptr;
    MemoryModuleData memoryData[NX_MODULE_COUNT] = {};
    QWidget* widget_Buttons = nullptr;
    QGridLayout* gridLayout = nullptr;
};
