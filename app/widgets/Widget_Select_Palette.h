#pragma once

#include "norvalex_lighting.h"

#include <QWidget>

class RGB_Palette;

// The colour wheel as a pop-up panel; it hides itself when it loses the keyboard focus. The
// wheel inside holds that focus, so the arrow keys move its cursor and Space or Return pick the
// colour under it; Escape closes the panel without a choice.
class Widget_Select_Palette : public QWidget
{
    Q_OBJECT

public:
    explicit Widget_Select_Palette(QWidget* parent = nullptr);
    ~Widget_Select_Palette() override;

    RGB_Palette* wheel() const { return wheel_; }

signals:
    void pressRGB(COLORREF color);
    // A colour was picked or the panel closed by key, so the focus goes back to what opened it.
    void keyboardFinished();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void pickedByKey(COLORREF color);

    RGB_Palette* wheel_ = nullptr;
};
