#pragma once

#include "norvalex_lighting.h"

#include <QWidget>

class QLabel;

// The colour wheel of the lighting page: a click inside the disc emits the picture's pixel under
// the pointer.
class RGB_Palette : public QWidget
{
    Q_OBJECT

public:
    explicit RGB_Palette(QWidget* parent = nullptr);
    ~RGB_Palette() override;

    // The colour of the wheel picture under a click in a widget of the given size, with the
    // picture centred in it. False when the click lies outside the accepting disc.
    static bool pickColour(const QPoint& click, const QSize& widgetSize, COLORREF* colour);

signals:
    void pressRGB(COLORREF color);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    QLabel* label_Palette = nullptr;
};
