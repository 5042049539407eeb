#pragma once

#include "norvalex_lighting.h"

#include <QObject>

class QEvent;
class QLabel;
class QLineEdit;
class QSlider;
class QWidget;
class RGB_Palette;

// The colour entry of the lighting page's control deck: the colour wheel, a slider and a field
// per channel, and a swatch that shows the colour the sliders hold. A field's text only counts
// once it is committed (Return or a slider release); leaving the field discards it.
class ColorEntry : public QObject
{
    Q_OBJECT

public:
    enum Channel { Red, Green, Blue, ChannelCount };

    // Builds the widgets on `deck`, which also owns this object.
    explicit ColorEntry(QWidget* deck);

    RGB_Palette* palette() const { return wheel; }
    QLabel* label(int channel) const { return labels[channel]; }
    QSlider* slider(int channel) const { return sliders[channel]; }
    QLineEdit* field(int channel) const { return fields[channel]; }
    QLabel* swatch() const { return colorSwatch; }

    // Moves the three sliders to `color` (red in the low byte).
    void setColor(COLORREF color);
    // R | G << 8 | B << 16 from the three fields' texts, each masked to 0..255.
    COLORREF enteredColor() const;
    // Writes a slider value into its channel's field.
    void showValue(int channel, int value);
    // Takes a field's text into its slider and gives up the field's focus; returns the colour
    // the three fields then hold.
    COLORREF commit(int channel);
    // On a field's focus loss, rewrites its text from its slider. Never consumes the event.
    void filterFieldEvent(QObject* watched, QEvent* event);
    // Enables or disables every channel label, slider and field (the wheel stays as it is).
    void setChannelsEnabled(bool enabled);
    // Gives the sliders, fields and wheel their translated accessible names.
    void nameChannels();

private:
    void showSwatch();

    RGB_Palette* wheel = nullptr;
    QLabel* colorSwatch = nullptr;
    QLabel* labels[ChannelCount] = {};
    QSlider* sliders[ChannelCount] = {};
    QLineEdit* fields[ChannelCount] = {};
};
