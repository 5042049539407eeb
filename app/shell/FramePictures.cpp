#include "FramePictures.h"

#include <QImage>
#include <QImageReader>
#include <QResource>

#include <future>
#include <mutex>

#include <png.h>

namespace {

const char* const kBackgroundImage = ":/QXRGBMemory/Images/Main_BG.png";
// X11 refuses a property as large as the 256-pixel picture.
constexpr int kWindowIconSizes[] = {16, 24, 32, 48, 64, 128};

std::mutex preloadMutex;
std::future<QImage> preloaded;

// Straight from the resource with libpng, which is quicker than Qt's image reader. That reader
// still loads the frame's other pictures (its style sheets name them), and its first use reads the
// metadata of every image-format plugin: the worker does that first, for the GUI thread.
QImage decodeBackground()
{
    const QString path = QString::fromLatin1(kBackgroundImage);
    QImageReader(path).canRead();
    const QByteArray data = QResource(path).uncompressedData();
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&png, data.constData(), std::size_t(data.size()))) {
        // The byte order of an opaque QImage::Format_RGB32 pixel.
        png.format = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;
        QImage image(int(png.width), int(png.height), QImage::Format_RGB32);
        if (!image.isNull() &&
            png_image_finish_read(&png, nullptr, image.bits(), image.bytesPerLine(), nullptr))
            return image;
        png_image_free(&png);
    }
    return QImage(path);
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
