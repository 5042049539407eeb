#pragma once

#include "norvalex_lighting.h"

#include <QWidget>

class FocusRing;
class QLabel;

// The colour wheel of the lighting page: a click inside the disc emits the picture's pixel under
// the pointer. From the keyboard, the arrow keys move a cursor inside the disc and Space or Return
// emit the colour under it. The cursor shows while the wheel has the focus from the keyboard, or
// once an arrow key moved it.
class RGB_Palette : public QWidget
{
    Q_OBJECT

public:
    explicit RGB_Palette(QWidget* parent = nullptr);
    ~RGB_Palette() override;

    // The colour of the wheel picture under a click in a widget of the given size, with the
    // picture centred in it. False when the click lies outside the accepting disc.
    static bool pickColour(const QPoint& click, const QSize& widgetSize, COLORREF* colour);

    QPoint keyboardCursor() const { return cursor; }
    // Shows the keyboard cursor now, while the wheel has the focus.
    void showCursor();

signals:
    void pressRGB(COLORREF color);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // Moves the keyboard cursor to `point` if it lies inside the disc.
    bool moveCursor(const QPoint& point);
    void describeCursor();

    QLabel* label_Palette = nullptr;
    FocusRing* cursorMark = nullptr;
    QPoint cursor;
};
