#include "StripDrag.h"

#include "LightingLook.h"
#include "Lighting_View.h"
#include "Log.h"
#include "Memory_RGB_View.h"
#include "SlotLayout.h"

#include <QLabel>
#include <QPainter>
#include <QPixmap>

StripDrag::StripDrag(Lighting_View* page, Memory_RGB_View* const (&strips)[SlotCount],
                     SlotLayout& layout)
    : page(page), strips(strips), layout(layout)
{
    label_DragSlot = new QLabel(page);
    label_DragSlot->setObjectName(QStringLiteral("label_DragSlot"));
    label_DragSlot->setAttribute(Qt::WA_TransparentForMouseEvents);
    label_DragSlot->setStyleSheet(QStringLiteral("background:transparent;"));
    label_DragSlot->hide();
}

void StripDrag::press(const QPoint& pos)
{
    for (int i = 0; i < SlotCount; ++i) {
        if (!strips[i]->isHidden() && layout.stripContains(i, pos)) {
            pickUp(i, pos);
            return;
        }
    }
}

void StripDrag::pickUp(int slot, const QPoint& pos)
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

bool StripDrag::isActive() const
{
    return !label_DragSlot->isHidden();
}

void StripDrag::follow(const QPoint& pos)
{
    label_DragSlot->move(pos.x(), label_DragSlot->y());
}

void StripDrag::hover(const QPoint& pos)
{
    for (int i = 0; i < SlotCount; ++i) {
        if (!strips[i]->isHidden())
            emit page->sendSelected(i, layout.stripContains(i, pos));
    }
}

void StripDrag::drop(const QPoint& pos)
{
    for (int i = 0; i < SlotCount; ++i) {
        if (strips[i]->isHidden())
            continue;
        if (layout.stripContains(i, pos))
            layout.swapStrips(dragSlotIndex, i);
        emit page->sendSelected(i, false);
    }
}

void StripDrag::hide()
{
    label_DragSlot->hide();
}
