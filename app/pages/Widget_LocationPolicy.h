#pragma once

#include <QPoint>
#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

// Frameless, rounded, draggable window asking whether the program may use the current
// location. OK reports the check box's state through sendPushOK(bool) and closes the window.
class Widget_LocationPolicy : public QWidget
{
    Q_OBJECT

public:
    explicit Widget_LocationPolicy(QWidget* parent = nullptr);

    // Re-sets the texts after a language change.
    void retranslate();

signals:
    void sendPushOK(bool allowed);

public slots:
    void pushOK();
    void RemindChange(bool checked);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void placeCheckBox();

    QPushButton* btn_OK = nullptr;
    QLabel* label_Title = nullptr;
    QLabel* label_Content = nullptr;
    QCheckBox* check_notRemind = nullptr;
    QPoint pressPosition;
    bool notRemind = false;
    bool dragging = false;
};
