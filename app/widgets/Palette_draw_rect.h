#pragma once

#include <QWidget>

// The translucent rubber band drawn over the LED strips during an area selection.
class Palette_draw_rect : public QWidget
{
    Q_OBJECT

public:
    explicit Palette_draw_rect(QWidget* parent = nullptr);
    ~Palette_draw_rect() override;

    // Stores the band in widget coordinates; width and height may be negative.
    void setRect(int x, int y, int width, int height);
    QRect bandRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int rectX = 0;
    int rectY = 0;
    int rectWidth = 0;
    int rectHeight = 0;
};
