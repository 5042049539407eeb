// nx-effect-strips: renders every light mode of the effect engine to an animated PNG and a
// contact sheet of its frames, so that all of them can be looked at side by side; with
// --table it prints the table of modes in Markdown instead.

#include "ApngWriter.h"
#include "EffectEngine.h"
#include "EffectRegistry.h"
#include "StripPainter.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QTextStream>

#include <cstdio>

namespace {

constexpr int kSheetColumns = 5;
constexpr int kSheetGap = 4;

struct Options {
    QString out;
    int modules = 8;
    int leds = 8;
    int frames = 60;
    int fps = 15;
    int mode = -1;
};

// The colour mode the panel preselects: its first offered.
int firstColorMode(const nxfx::EffectInfo& effect)
{
    for (int mode = 0; mode < 4; ++mode)
        if (effect.colorModes & (1 << mode))
            return mode;
    return nxfx::ColorOwn;
}

QString slug(const nxfx::EffectInfo& effect)
{
    QString name = QString::fromLatin1(effect.name).toLower();
    name.replace(QLatin1Char(' '), QLatin1Char('-')).replace(QLatin1Char('_'), QLatin1Char('-'));
    name.remove(QLatin1Char('.'));
    return QStringLiteral("%1-%2").arg(effect.value, 2, 10, QLatin1Char('0')).arg(name);
}

QString colorModeNames(uint8_t modes)
{
    static const char* const names[] = {"RGB", "Single", "OFF", "Random"};
    QStringList list;
    for (int mode = 0; mode < 4; ++mode)
        if (modes & (1 << mode))
            list << QString::fromLatin1(names[mode]);
    return list.join(QStringLiteral(", "));
}

void printTable()
{
    QTextStream out(stdout);
    out << "| Value | Name | What it shows | Colour modes | Speed |\n|---|---|---|---|---|\n";
    for (int i = 0; i < nxfx::kEffectCount; ++i) {
        const nxfx::EffectInfo& effect = nxfx::effectTable()[i];
        out << "| " << effect.value << " | " << effect.name << " | " << effect.summary << " | "
            << colorModeNames(effect.colorModes) << " | "
            << (effect.speedAdjustable ? "Extreme to Slow" : "Normal") << " |\n";
    }
}

bool renderMode(const nxfx::EffectInfo& effect, const Options& options, QString* error)
{
    const nxfx::Color colors[12] = {0x0000FF, 0x0080FF, 0x00FFFF, 0x00FF00, 0xFFFF00, 0xFF0000,
                                    0xFF0080, 0x8000FF, 0x0000FF, 0x0080FF, 0x00FFFF, 0x00FF00};
    const float brightness[12] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    nxfx::ModuleInput module;
    module.mode = effect.value;
    module.colorMode = firstColorMode(effect);
    module.ledCount = options.leds;
    module.colors = colors;
    module.brightness = brightness;
    module.single = 0xFFB020; // a light azure
    nxfx::SceneInput scene;
    scene.columns = options.modules;
    scene.seed = 7;
    scene.hour = 9;
    scene.minute = 45;

    const StripPainter painter(options.modules, options.leds);
    ApngWriter animation(1000 / options.fps);
    const QSize size = painter.frameSize();
    const int shown = (options.frames + 2) / 3;
    const int rows = (shown + kSheetColumns - 1) / kSheetColumns;
    QImage sheet(kSheetColumns * (size.width() + kSheetGap) - kSheetGap,
                 rows * (size.height() + kSheetGap) - kSheetGap, QImage::Format_RGB32);
    sheet.fill(Qt::black);
    QPainter sheetPainter(&sheet);
    std::vector<nxfx::Color> frame(std::size_t(options.modules * options.leds));
    for (int f = 0; f < options.frames; ++f) {
        scene.seconds = double(f) / options.fps;
        scene.second = scene.seconds;
        for (int m = 0; m < options.modules; ++m) {
            module.column = m;
            module.temperature = 30 + 42 * m / std::max(options.modules - 1, 1);
            nxfx::renderModule(module, scene, &frame[std::size_t(m * options.leds)]);
        }
        const QImage image = painter.paint(frame);
        animation.addFrame(image);
        if (f % 3 == 0) {
            const int index = f / 3;
            sheetPainter.drawImage((index % kSheetColumns) * (size.width() + kSheetGap),
                                   (index / kSheetColumns) * (size.height() + kSheetGap), image);
        }
    }
    sheetPainter.end();
    const QString base = QDir(options.out).filePath(slug(effect));
    if (!sheet.save(base + QStringLiteral("-sheet.png"))) {
        *error = QStringLiteral("cannot write ") + base + QStringLiteral("-sheet.png");
        return false;
    }
    return animation.save(base + QStringLiteral(".png"), error);
}

} // namespace

int main(int argc, char* argv[])
{
    // Drawing needs no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Renders every light mode to an animated PNG and a contact sheet."));
    parser.addHelpOption();
    const QCommandLineOption outOption(QStringLiteral("out"), QStringLiteral("Output directory."),
                                       QStringLiteral("dir"), QStringLiteral("effect-strips"));
    const QCommandLineOption modulesOption(QStringLiteral("modules"),
                                           QStringLiteral("Modules, 1 to 8 (8)."),
                                           QStringLiteral("n"), QStringLiteral("8"));
    const QCommandLineOption ledsOption(QStringLiteral("leds"),
                                        QStringLiteral("LEDs, 1 to 12 (8)."), QStringLiteral("n"),
                                        QStringLiteral("8"));
    const QCommandLineOption framesOption(QStringLiteral("frames"),
                                          QStringLiteral("Frames, 1 to 600 (60)."),
                                          QStringLiteral("n"), QStringLiteral("60"));
    const QCommandLineOption fpsOption(QStringLiteral("fps"),
                                       QStringLiteral("Frames per second, 1 to 60 (15)."),
                                       QStringLiteral("n"), QStringLiteral("15"));
    const QCommandLineOption modeOption(QStringLiteral("mode"),
                                        QStringLiteral("Only this light mode, 0 to 37."),
                                        QStringLiteral("value"));
    const QCommandLineOption tableOption(QStringLiteral("table"),
                                         QStringLiteral("Print the table of modes (Markdown)."));
    parser.addOptions(
        {outOption, modulesOption, ledsOption, framesOption, fpsOption, modeOption, tableOption});
    parser.process(app);
    if (parser.isSet(tableOption)) {
        printTable();
        return 0;
    }

    Options options;
    options.out = parser.value(outOption);
    bool ok[5] = {true, true, true, true, true};
    options.modules = parser.value(modulesOption).toInt(&ok[0]);
    options.leds = parser.value(ledsOption).toInt(&ok[1]);
    options.frames = parser.value(framesOption).toInt(&ok[2]);
    options.fps = parser.value(fpsOption).toInt(&ok[3]);
    if (parser.isSet(modeOption))
        options.mode = parser.value(modeOption).toInt(&ok[4]);
    if (!ok[0] || !ok[1] || !ok[2] || !ok[3] || !ok[4] || options.modules < 1 ||
        options.modules > 8 || options.leds < 1 || options.leds > 12 || options.frames < 1 ||
        options.frames > 600 || options.fps < 1 || options.fps > 60 ||
        (parser.isSet(modeOption) && (options.mode < 0 || options.mode >= nxfx::kEffectCount))) {
        std::fprintf(stderr, "nx-effect-strips: an option is out of range; see --help\n");
        return 2;
    }
    if (!QDir().mkpath(options.out)) {
        std::fprintf(stderr, "nx-effect-strips: cannot create the output directory\n");
        return 1;
    }
    for (int i = 0; i < nxfx::kEffectCount; ++i) {
        if (options.mode >= 0 && i != options.mode)
            continue;
        QString error;
        if (!renderMode(nxfx::effectTable()[i], options, &error)) {
            std::fprintf(stderr, "nx-effect-strips: %s\n", qPrintable(error));
            return 1;
        }
    }
    return 0;
}
