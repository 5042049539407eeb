// Writes every registered picture as <output directory>/<name>.png and, given an icon theme
// directory, every scalable one as hicolor/scalable/apps/<name>.svg and
// hicolor/NxN/apps/<name>.png.
#include "ImageRegistry.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgGenerator>

#include <cstdio>

namespace ImageRegistry {

std::map<std::string, Painter>& painters()
{
    static std::map<std::string, Painter> all;
    return all;
}

bool add(const char* name, Painter painter)
{
    painters()[name] = painter;
    return true;
}

std::map<std::string, ScalablePainter>& scalablePainters()
{
    static std::map<std::string, ScalablePainter> all;
    return all;
}

bool addScalable(const char* name, ScalablePainter painter)
{
    scalablePainters()[name] = painter;
    return true;
}

} // namespace ImageRegistry

namespace {

// The sizes desktops look up in the hicolor theme.
constexpr int kIconSizes[] = {16, 22, 24, 32, 48, 64, 128, 256};
// Nominal size of the SVG canvas.
constexpr int kSvgSize = 256;

bool writeSvg(const QString& path, const QString& title, ImageRegistry::ScalablePainter paint)
{
    QSvgGenerator svg;
    svg.setFileName(path);
    svg.setTitle(title);
    svg.setSize(QSize(kSvgSize, kSvgSize));
    svg.setViewBox(QRect(0, 0, kSvgSize, kSvgSize));
    QPainter painter;
    if (!painter.begin(&svg))
        return false;
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter, kSvgSize);
    return painter.end();
}

bool writePng(const QString& path, int size, ImageRegistry::ScalablePainter paint)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        paint(painter, size);
    }
    return image.save(path, "PNG");
}

bool writeIconTheme(const QString& themeDir)
{
    for (const auto& [name, paint] : ImageRegistry::scalablePainters()) {
        const QString file = QString::fromStdString(name);
        const QString scalable = themeDir + QStringLiteral("/hicolor/scalable/apps");
        if (!QDir().mkpath(scalable) ||
            !writeSvg(scalable + QLatin1Char('/') + file + QStringLiteral(".svg"), file, paint)) {
            std::fprintf(stderr, "cannot write the scalable icon %s\n", qPrintable(file));
            return false;
        }
        for (int size : kIconSizes) {
            const QString dir = themeDir + QStringLiteral("/hicolor/%1x%1/apps").arg(size);
            const QString path = dir + QLatin1Char('/') + file + QStringLiteral(".png");
            if (!QDir().mkpath(dir) || !writePng(path, size, paint)) {
                std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
                return false;
            }
        }
    }
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    if (argc < 2 || argc > 3) {
        std::fprintf(stderr, "usage: nx-imagegen OUTPUT_DIRECTORY [ICON_THEME_DIRECTORY]\n");
        return 2;
    }
    const QString outDir = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(outDir);
    for (const auto& [name, painter] : ImageRegistry::painters()) {
        const QString path =
            outDir + QLatin1Char('/') + QString::fromStdString(name) + QStringLiteral(".png");
        if (!painter().save(path, "PNG")) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
            return 1;
        }
    }
    if (argc == 3 && !writeIconTheme(QString::fromLocal8Bit(argv[2])))
        return 1;
    return 0;
}
