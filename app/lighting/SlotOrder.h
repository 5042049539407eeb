#pragma once

class Lighting_View;
class Memory_RGB_View;
class QLabel;
class QPoint;
class SlotLayout;
class StripSelection;

// The order of the strips on the lighting page: as the controller reports it, and as the user
// changes it in Edit mode by dragging a strip onto another. While a strip is dragged a faded
// picture of it follows the pointer sideways and the strips under the pointer show as selected.
class SlotOrder
{
public:
    static constexpr int SlotCount = 8;

    SlotOrder(Lighting_View* page, Memory_RGB_View* const (&strips)[SlotCount], SlotLayout& layout,
              StripSelection& selection, int (&savedOrder)[SlotCount]);
    SlotOrder(const SlotOrder&) = delete;
    SlotOrder& operator=(const SlotOrder&) = delete;

    // The controller's order of the first `count` strips, taken only while no strip is selected
    // (the first column's strip is then selected); the preview and markers follow it.
    void setOrder(int count, const int* order);

    // The Edit button: enters Edit mode saving the order, or leaves it keeping the new one.
    void toggleEditMode();
    void finishEditMode();
    // Leaves it with the saved order.
    void cancelEditMode();
    // Leaves it and sends the new order of all strips.
    void applyEditMode();

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
    StripSelection& selection;
    int (&savedOrder)[SlotCount];
    QLabel* label_DragSlot = nullptr;
    int dragSlotIndex = -1;
};
