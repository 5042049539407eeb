#pragma once

#include <QWidget>

class QLabel;
class QPainterPath;
class QPropertyAnimation;

// On/off slider: a dark pill-shaped track with a round knob that slides right when switched on.
class SwitchButton : public QWidget
{
    Q_OBJECT

public:
    SwitchButton(int width, int height, QWidget* parent = nullptr);
    ~SwitchButton() override;

    // Sets the state and places the knob at once, without animation and without signal.
    void setChecked(bool checked);
    bool isChecked() const { return checked; }
    // Toggles with a slide; ignored while a slide is running.
    void _checkBtn();
    // What a mouse click does: toggles with a slide and emits sigClicked.
    void click();

signals:
    void sigClicked(bool checked);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QPoint offPosition() const;
    QPoint onPosition() const;
    void showKnobPicture();

    bool checked = false;
    QLabel* label_Knob = nullptr;
    QPainterPath* trackPath = nullptr;
    QPropertyAnimation* knobAnimation = nullptr;
};
