#pragma once

#include "norvalex_lighting.h"

#include <QWidget>

class QLabel;

// The colour wheel as a pop-up panel; it hides itself when it loses the keyboard focus.
class Widget_Select_Palette : public QWidget
{
    Q_OBJECT

public:
    explicit Widget_Select_Palette(QWidget* parent = nullptr);
    ~Widget_Select_Palette() override;

signals:
    void pressRGB(COLORREF color);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QLabel* label_Palette = nullptr;
};
