#pragma once

#include <QWidget>

// A ring in the panel's accent colour drawn around a widget of the same window. It lets every
// mouse event through and takes no focus. FocusTracker places it.
class FocusRing : public QWidget
{
    Q_OBJECT

public:
    static const QColor Accent;

    explicit FocusRing(QWidget* window);

    // Covers `target` with a small margin and shows above its siblings.
    void surround(QWidget* target);

protected:
    void paintEvent(QPaintEvent* event) override;
};
