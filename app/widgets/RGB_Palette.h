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

signals:
    void pressRGB(COLORREF color);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    QLabel* label_Palette = nullptr;
};
