#pragma once

#include "norvalex_lighting.h"

#include <QPoint>

class Memory_RGB_View;
class Palette_draw_rect;
class QPainter;
class QPolygon;
class QPushButton;
class QSize;
class SlotLayout;

// Selecting LEDs on the lighting page outside Edit mode: the rubber band dragged over the LED
// area, the row buttons "A".."H", and the outline drawn around the selected strips. Works on the
// page's own state, handed over by reference, and on the strip geometry of the slot layout.
class StripSelection
{
public:
    static constexpr int SlotCount = 8;
    static constexpr int LedRows = 8;

    struct PageState {
        Palette_draw_rect*& band;
        int& startX;
        int& startY;
        int& endX;
        int& endY;
        bool& dragging;
        Memory_RGB_View* (&strips)[SlotCount];
        const MemoryModuleData (&modules)[SlotCount];
        QPushButton* (&rows)[LedRows];
        QPolygon& outline;
    };

    StripSelection(const PageState& state, const SlotLayout& layout);
    StripSelection(const StripSelection&) = delete;
    StripSelection& operator=(const StripSelection&) = delete;

    // A press: in the LED area it clears every LED selection, right of it it also arms a band.
    void press(const QPoint& pos);
    // A move while a band is armed: the band is shown from its start to the held pointer.
    void drag(const QPoint& pos);
    // A release: the band hides and, when one was armed, every LED of an available strip whose
    // corner lies strictly inside it is selected. The next band starts from here.
    void release(const QPoint& pos);

    // Row `row` on every available strip takes `checked`; a strip in Single, OFF or Random colour
    // mode takes it on all of its LEDs.
    void selectRow(int row, bool checked);
    // A row button is checked exactly when every shown, available strip has that row selected.
    void updateRowButtons();
    // The outline of the strips whose slot button is checked: one padded box per strip,
    // standing on a common base line.
    void rebuildOutline();
    // Draws the outline on a page of the given size: grey to black, edged blue to black.
    void paintOutline(QPainter& painter, const QSize& pageSize, int areaWidth) const;

private:
    void selectInBand(const QPoint& releasePos);

    PageState s;
    const SlotLayout& layout;
};
