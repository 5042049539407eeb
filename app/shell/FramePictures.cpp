#include "FramePictures.h"

#include <QImage>

#include <future>
#include <mutex>

namespace {

const char* const kBackgroundImage = ":/QXRGBMemory/Images/Main_BG.png";
// X11 refuses a property as large as the 256-pixel picture.
constexpr int kWindowIconSizes[] = {16, 24, 32, 48, 64, 128};

std::mutex preloadMutex;
std::future<QImage> preloaded;

QImage decodeBackground()
{
    return QImage(QString::fromLatin1(kBackgroundImage));
}

} // namespace

void FramePictures::preload()
{
    const std::lock_guard<std::mutex> lock(preloadMutex);
    if (!preloaded.valid())
        preloaded = std::async(std::launch::async, decodeBackground);
}

void FramePictures::settle()
{
    const std::lock_guard<std::mutex> lock(preloadMutex);
    if (preloaded.valid())
        preloaded.wait();
}

QPixmap FramePictures::background(const QSize& size)
{
    QImage image;
    {
        const std::lock_guard<std::mutex> lock(preloadMutex);
        image = preloaded.valid() ? preloaded.get() : decodeBackground();
    }
    if (image.size() != size)
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return QPixmap::fromImage(std::move(image));
}

QIcon FramePictures::windowIcon()
{
    QIcon icon;
    for (int size : kWindowIconSizes)
        icon.addFile(QStringLiteral(":/QXRGBMemory/Images/AppIcon_%1.png").arg(size),
                     QSize(size, size));
    return icon;
}
