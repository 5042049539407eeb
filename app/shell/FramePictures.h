#pragma once

// The frame's background and window icon. The background, the largest picture of the panel, is
// decoded on a worker thread that start-up sets going as soon as the application exists, while
// the controller and the pages are being built.

#include <QIcon>
#include <QPixmap>

class FramePictures
{
public:
    // Starts decoding the background; later calls do nothing until it has been taken.
    static void preload();
    // Waits for a decode that nobody took: it reads the application's resources, so it must end
    // before the application object does (a second instance returns at once).
    static void settle();
    // The background at `size`; waits for a decode under way, or decodes it now.
    static QPixmap background(const QSize& size);
    // The window icon in the sizes handed to the window system, each drawn at its size.
    static QIcon windowIcon();
};
