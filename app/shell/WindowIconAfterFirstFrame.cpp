#include "WindowIconAfterFirstFrame.h"

#include "FramePictures.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

void WindowIconAfterFirstFrame::install(QWidget* window)
{
    window->installEventFilter(new WindowIconAfterFirstFrame(window));
}

WindowIconAfterFirstFrame::WindowIconAfterFirstFrame(QWidget* window)
    : QObject(window), window(window)
{
}

bool WindowIconAfterFirstFrame::eventFilter(QObject* watched, QEvent* event)
{
    const bool firstFrame = event->type() == QEvent::Paint;
    const bool shownMinimised = event->type() == QEvent::Show && window->isMinimized();
    if (watched == window && (firstFrame || shownMinimised)) {
        window->removeEventFilter(this);
        // After the picture has been sent, not while it is being painted.
        QTimer::singleShot(
            0, window, [target = window]() { target->setWindowIcon(FramePictures::windowIcon()); });
        deleteLater();
    }
    return false;
}
