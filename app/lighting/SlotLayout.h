#pragma once

#include <QPoint>
#include <QRect>

class Memory_RGB_View;
class QGridLayout;
class QLabel;
class QObject;
class QPropertyAnimation;
class QPushButton;
class QWidget;
class Widget_Preview;

// The row of memory slots on the lighting page: the strip area with one strip per slot in a
// grid, the column markers "1".."8", the LED row buttons "A".."H", the preview beside them, and
// Edit mode, in which the user reorders the strips and then applies or cancels the new order.
// The page keeps the state this works on (its strips, their backdrops and animations, the
// saved order, the largest LED count) and hands it over by reference, so that this class can be
// driven on its own.
class SlotLayout
{
public:
    static constexpr int SlotCount = 8;
    static constexpr int LedRows = 8;
    static constexpr int ProfileCount = 5;

    struct PageState {
        QWidget* page;
        QWidget*& area;
        Memory_RGB_View* (&strips)[SlotCount];
        QLabel* (&wells)[SlotCount];
        QPropertyAnimation* (&animations)[SlotCount];
        QPushButton* (&rows)[LedRows];
        QPushButton* const (&profiles)[ProfileCount];
        QPushButton*& editButton;
        QPushButton*& editCancelButton;
        QPushButton*& editApplyButton;
        int (&savedOrder)[SlotCount];
        int& maxLEDNum;
    };

    // Builds the strip area, strips, markers, preview and row buttons into the page's state.
    explicit SlotLayout(const PageState& state);
    // The Edit, Cancel and Apply buttons, built after the page's profile buttons they follow.
    void createEditButtons();
    // Gives the LED row buttons their translated accessible names.
    void nameRows();
    SlotLayout(const SlotLayout&) = delete;
    SlotLayout& operator=(const SlotLayout&) = delete;

    // Shows the first slotCount strips, those below availableCount usable; a strip whose
    // ledNumbers entry is 5 or 8 shows that many LEDs. Fewer than five slots take the narrow
    // layout, up to eight the wide one; more collapse the strip area.
    void setSlotCounts(int slotCount, int availableCount, const int* ledNumbers);
    // Puts strip i in column order[i] (out-of-range columns: its own index) for i < count.
    void setColumns(int count, const int* order);
    // Takes the LED counts of the first `count` modules; maxLEDNum only grows.
    void setLedCounts(int count, const int* ledNumbers);
    // Each column's marker onto the strip standing in that column.
    void placeMarkers();
    // The column of each strip, by slot.
    void currentOrder(int (&order)[SlotCount]) const;

    // Edit mode: on exactly while the Edit button is hidden.
    bool isEditMode() const;
    void enterEditMode();
    // Leaves it keeping the strips where they stand.
    void finishEditMode();
    // Leaves it with every shown slot back in its saved column.
    void cancelEditMode();
    // The dragged strip and the one it was dropped on change columns, both sliding over.
    void swapStrips(int dragged, int target);

    // A strip in page coordinates; contains() is inclusive on all four edges.
    QRect stripRect(int slot) const;
    bool stripContains(int slot, const QPoint& pos) const;
    // An LED button's top-left corner in page coordinates.
    QPoint ledCorner(int slot, int led) const;
    // Keeps a strip's backdrop around the strip while it moves (for the page's event filter).
    void followStrip(const QObject* strip);

    QGridLayout* gridLayout_Memory = nullptr;
    QPushButton* btn_Slots[SlotCount] = {};
    QLabel* label_Preview = nullptr;
    Widget_Preview* widget_Preview = nullptr;
    int slotNumber = 0;
    int availableSlotNumber = 0;

private:
    void createStripArea();
    void createStrips();
    void createRowButtons();
    void placeRowButtons();
    void relayoutStrips();
    void readdStrip(int slot, int column);
    void setEditControlsEnabled(bool enabled);
    void leaveEditMode();
    void lowerMarkers();

    PageState s;
};
