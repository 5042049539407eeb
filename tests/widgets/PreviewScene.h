#pragma once

// The preview see-through over a shaded page, as the lighting page holds it: eight slots, two
// empty, modules of 8 and 5 LEDs in a shuffled order.

#include "Widget_Preview.h"

#include <QImage>
#include <QList>
#include <QPalette>
#include <QPixmap>

namespace PreviewScene {

using Colors = COLORREF[8][Widget_Preview::MaxLeds];

inline void setUp(QWidget& page, Widget_Preview* preview)
{
    page.resize(300, 280);
    // A picture, as the real page's background is.
    QImage shade(300, 280, QImage::Format_RGB32);
    for (int y = 0; y < shade.height(); ++y)
        for (int x = 0; x < shade.width(); ++x)
            shade.setPixel(x, y, qRgb(10 + x / 4, 40 + y / 8, 70 - (x + y) / 10));
    QPalette palette = page.palette();
    palette.setBrush(QPalette::Window, QPixmap::fromImage(shade));
    page.setPalette(palette);
    page.setAutoFillBackground(true);
    preview->setGeometry(21, 14, 258, 252);
    preview->setSlotNum(8);
    preview->setModuleNum(6);
    const int leds[8] = {8, 5, 8, 8, 5, 8, 0, 0};
    preview->setLEDNum(8, leds);
    const int order[8] = {2, 0, 1, 3, 7, 4, 6, 5};
    preview->setSlotsOrder(8, order);
}

inline void send(Widget_Preview* preview, Colors& colors)
{
    QList<COLORREF*> list;
    for (auto& module : colors)
        list << module;
    preview->updatePreviewList(list);
}

} // namespace PreviewScene
