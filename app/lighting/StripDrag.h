#pragma once

class Lighting_View;
class Memory_RGB_View;
class QLabel;
class QPoint;
class SlotLayout;

// Dragging a strip in Edit mode of the lighting page: a faded picture of it follows the pointer
// sideways, the strips under the pointer show as selected, and a drop on another strip swaps
// the two.
class StripDrag
{
public:
    static constexpr int SlotCount = 8;

    StripDrag(Lighting_View* page, Memory_RGB_View* const (&strips)[SlotCount], SlotLayout& layout);
    StripDrag(const StripDrag&) = delete;
    StripDrag& operator=(const StripDrag&) = delete;

    // A press on a shown strip picks it up: its picture appears at the pointer, in its row.
    void press(const QPoint& pos);
    bool isActive() const;
    // The picture follows the pointer sideways.
    void follow(const QPoint& pos);
    // Each shown strip is marked selected while the pointer is over it.
    void hover(const QPoint& pos);
    // The picked-up strip and the one under the pointer swap; every mark is cleared.
    void drop(const QPoint& pos);
    void hide();

private:
    void pickUp(int slot, const QPoint& pos);

    Lighting_View* page;
    Memory_RGB_View* const (&strips)[SlotCount];
    SlotLayout& layout;
    QLabel* label_DragSlot = nullptr;
    int dragSlotIndex = -1;
};
