#include "SlotOrder.h"

#include "LightingLook.h"
#include "Lighting_View.h"
#include "Log.h"
#include "Memory_RGB_View.h"
#include "SlotLayout.h"
#include "StripSelection.h"
#include "Widget_Preview.h"

#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

SlotOrder::SlotOrder(Lighting_View* page, Memory_RGB_View* const (&strips)[SlotCount],
                     SlotLayout& layout, StripSelection& selection, int (&savedOrder)[SlotCount])
    : page(page), strips(strips), layout(layout), selection(selection), savedOrder(savedOrder)
{
    label_DragSlot = new QLabel(page);
    label_DragSlot->setObjectName(QStringLiteral("label_DragSlot"));
    label_DragSlot->setAttribute(Qt::WA_TransparentForMouseEvents);
    label_DragSlot->setStyleSheet(QStringLiteral("background:transparent;"));
    label_DragSlot->hide();
}

void SlotOrder::setOrder(int count, const int* order)
{
    if (!order)
        return;
    const int placed = qBound(0, count, static_cast<int>(SlotCount));
    bool anyChecked = false;
    for (int i = 0; i < placed; ++i)
        anyChecked = anyChecked || strips[i]->btn_MemorySlot->isChecked();

    // Only while nothing is selected: a selection keeps the strips where the user sees them.
    if (!anyChecked) {
        layout.setColumns(placed, order);
        int first = 0;
        for (int i = 0; i < placed; ++i) {
            if (strips[i]->slotPosition == 0) {
                first = i;
                break;
            }
        }
        page->slot_SelectMemSlot(first);
    }

    layout.widget_Preview->setSlotsOrder(placed, order);
    layout.placeMarkers();
    layout.widget_Preview->update();
    page->updateOutline();
}

void SlotOrder::toggleEditMode()
{
    for (int i = 0; i < SlotCount; ++i)
        savedOrder[i] = strips[i]->slotPosition;
    if (layout.isEditMode()) {
        finishEditMode();
        return;
    }
    layout.enterEditMode();
    selection.rebuildOutline();
    page->updateOutline();
}

void SlotOrder::finishEditMode()
{
    hide();
    layout.finishEditMode();
    page->updateOutline();
}

void SlotOrder::cancelEditMode()
{
    hide();
    layout.cancelEditMode();
    page->updateOutline();
}

void SlotOrder::applyEditMode()
{
    finishEditMode();
    int order[SlotCount];
    layout.currentOrder(order);
    emit page->changeMemorySlotNumber(SlotCount, order);
    layout.widget_Preview->setSlotsOrder(SlotCount, order);
    layout.widget_Preview->update();
}

void SlotOrder::press(const QPoint& pos)
{
    for (int i = 0; i < SlotCount; ++i) {
        if (!strips[i]->isHidden() && layout.stripContains(i, pos)) {
            pickUp(i, pos);
            return;
        }
    }
}

void SlotOrder::pickUp(int slot, const QPoint& pos)
{
    qCDebug(lcPanel) << "Lighting_View::pickUpStrip" << slot;
    dragSlotIndex = slot;
    Memory_RGB_View* strip = strips[slot];

    QPixmap picture(strip->size());
    picture.fill(Qt::transparent);
    strip->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    QPixmap faded(picture.size());
    faded.fill(Qt::transparent);
    {
        QPainter painter(&faded);
        painter.setOpacity(LightingLook::kDragOpacity);
        painter.drawPixmap(0, 0, picture);
    }

    label_DragSlot->setPixmap(faded);
    label_DragSlot->resize(faded.size());
    label_DragSlot->move(pos.x(), layout.stripRect(slot).top());
    label_DragSlot->raise();
    label_DragSlot->show();
}

bool SlotOrder::isActive() const
{
    return !label_DragSlot->isHidden();
}

void SlotOrder::follow(const QPoint& pos)
{
    label_DragSlot->move(pos.x(), label_DragSlot->y());
}

void SlotOrder::hover(const QPoint& pos)
{
    for (int i = 0; i < SlotCount; ++i) {
        if (!strips[i]->isHidden())
            emit page->sendSelected(i, layout.stripContains(i, pos));
    }
}

void SlotOrder::drop(const QPoint& pos)
{
    for (int i = 0; i < SlotCount; ++i) {
        if (strips[i]->isHidden())
            continue;
        if (layout.stripContains(i, pos))
            layout.swapStrips(dragSlotIndex, i);
        emit page->sendSelected(i, false);
    }
}

void SlotOrder::hide()
{
    label_DragSlot->hide();
}
