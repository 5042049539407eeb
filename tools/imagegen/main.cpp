// Writes every registered picture as <output directory>/<name>.png.
#include "ImageRegistry.h"

#include <QDir>
#include <QGuiApplication>

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

} // namespace ImageRegistry

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: nx-imagegen OUTPUT_DIRECTORY\n");
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
    return 0;
}
