#pragma once

#include <QColor>
#include <QDebug>
#include <QElapsedTimer>
#include <QImage>
#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QStringList>
#include <QThread>
#include <QVector>

#include <algorithm>
#include <cstdlib>

// Real input to, and screenshots of, one top-level window of the X display the test runs on
// (DISPLAY, normally an Xvfb started by xvfb-run), through xdotool and ImageMagick's import.
class XSession
{
public:
    // Runs a tool to its end; its standard output (empty, not null, when it printed nothing), or
    // a null string when it failed.
    static QString run(const QString& program, const QStringList& arguments, int timeoutMs = 30000)
    {
        QProcess process;
        process.start(program, arguments);
        if (!process.waitForFinished(timeoutMs) || process.exitStatus() != QProcess::NormalExit ||
            process.exitCode() != 0) {
            qWarning().noquote() << program << arguments.join(QLatin1Char(' '))
                                 << "failed:" << process.readAllStandardError().trimmed();
            process.kill();
            process.waitForFinished(1000);
            return QString();
        }
        const QString output = QString::fromLocal8Bit(process.readAllStandardOutput());
        return output.isNull() ? QStringLiteral("") : output;
    }

    // The first visible window whose title is exactly `title`, waited for up to timeoutMs.
    bool findWindow(const QString& title, int timeoutMs)
    {
        QElapsedTimer clock;
        clock.start();
        do {
            const QStringList ids = run(QStringLiteral("xdotool"),
                                        {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                         QStringLiteral("--name"), QLatin1Char('^') + title + '$'})
                                        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
            if (!ids.isEmpty()) {
                window_ = ids.first();
                return true;
            }
            QThread::msleep(100);
        } while (clock.elapsed() < timeoutMs);
        window_.clear();
        return false;
    }
    QString window() const { return window_; }

    // Pointer moves and clicks in window coordinates. Every step is its own X request, with a
    // short pause so that the toolkit sees the intermediate positions of a drag.
    bool click(QPoint at) { return xdotool(moveTo(at) << QStringLiteral("click") << "1"); }
    bool drag(QPoint from, QPoint to, int steps = 8)
    {
        QStringList args = moveTo(from);
        args << QStringLiteral("mousedown") << QStringLiteral("1");
        for (int step = 1; step <= steps; ++step) {
            args << QStringLiteral("sleep") << QStringLiteral("0.05");
            args << moveTo(from + (to - from) * step / steps);
        }
        args << QStringLiteral("sleep") << QStringLiteral("0.1") << QStringLiteral("mouseup")
             << QStringLiteral("1");
        return xdotool(args);
    }
    // Keyboard input goes to the window holding the X input focus.
    bool focus()
    {
        return xdotool({QStringLiteral("windowfocus"), QStringLiteral("--sync"), window_});
    }
    bool keys(const QStringList& names)
    {
        return xdotool(
            QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("30")} +
            names);
    }
    // Empties the focused text field the way a user does, from its end.
    bool clearField(int length = 6)
    {
        return keys(QStringList{QStringLiteral("End")} +
                    QStringList(QVector<QString>(length, QStringLiteral("BackSpace")).toList()));
    }
    bool type(const QString& text)
    {
        return xdotool(
            {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("30"), text});
    }

    // The window's pixels as the X server holds them.
    QImage screenshot() const
    {
        QProcess import;
        import.start(QStringLiteral("import"),
                     {QStringLiteral("-silent"), QStringLiteral("-window"), window_,
                      QStringLiteral("png:-")});
        if (!import.waitForFinished(30000))
            return QImage();
        return QImage::fromData(import.readAllStandardOutput(), "PNG")
            .convertToFormat(QImage::Format_RGB32);
    }

private:
    QStringList moveTo(QPoint at) const
    {
        return {QStringLiteral("mousemove"), QStringLiteral("--window"), window_,
                QString::number(at.x()), QString::number(at.y())};
    }
    static bool xdotool(const QStringList& args)
    {
        return !run(QStringLiteral("xdotool"), args).isNull();
    }

    QString window_;
};

// Pixel measures of a screenshot.
namespace Pixels {

inline int luminance(QRgb c)
{
    return (qRed(c) * 299 + qGreen(c) * 587 + qBlue(c) * 114) / 1000;
}

inline int brightest(const QImage& image, QRect area)
{
    int best = -1;
    area &= image.rect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            best = std::max(best, luminance(image.pixel(x, y)));
    }
    return best;
}

// How many pixels of the area are within `tolerance` of `colour` in each channel.
inline int countNear(const QImage& image, QRect area, QColor colour, int tolerance)
{
    int count = 0;
    area &= image.rect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb c = image.pixel(x, y);
            count += std::abs(qRed(c) - colour.red()) <= tolerance &&
                     std::abs(qGreen(c) - colour.green()) <= tolerance &&
                     std::abs(qBlue(c) - colour.blue()) <= tolerance;
        }
    }
    return count;
}

// Share of the pixels of an area that differ between two images of the same size.
inline double changedShare(const QImage& a, const QImage& b, QRect area)
{
    area &= a.rect() & b.rect();
    if (area.isEmpty())
        return 0;
    int changed = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            changed += a.pixel(x, y) != b.pixel(x, y);
    }
    return double(changed) / (area.width() * area.height());
}

} // namespace Pixels
