#pragma once

#include <QObject>

class QWidget;

// Gives a window its icon once its first picture is on screen: decoding the icon's sizes and
// handing them to the window system would otherwise hold the window back. A window shown
// minimised, which paints nothing until it is restored, gets its icon when it is shown.
class WindowIconAfterFirstFrame : public QObject
{
    Q_OBJECT

public:
    static void install(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit WindowIconAfterFirstFrame(QWidget* window);

    QWidget* window;
};
