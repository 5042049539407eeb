#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <vector>

// Writes frames of one size as an animated PNG: Qt encodes each frame, and its image data is
// repackaged into the animation chunks. Viewers without animation show the first frame.
class ApngWriter
{
public:
    explicit ApngWriter(int delayMs) : delayMs_(delayMs) {}

    // A frame equal to the one before only lengthens that one.
    void addFrame(const QImage& frame);
    bool save(const QString& path, QString* error) const;

private:
    int delayMs_;
    struct Frame {
        QImage image;
        int repeats;
    };
    std::vector<Frame> frames_;
};
