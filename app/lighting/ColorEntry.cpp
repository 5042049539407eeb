#include "ColorEntry.h"

#include "ChannelValidator.h"
#include "LightingLook.h"
#include "Lighting_View.h"
#include "Log.h"
#include "RGB_Palette.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

using namespace LightingLook;

ColorEntry::ColorEntry(QWidget* deck) : QObject(deck)
{
    wheel = new RGB_Palette(deck);
    wheel->setObjectName(QStringLiteral("rgb_Palette"));
    wheel->move(kPalettePos);

    colorSwatch = new QLabel(deck);
    colorSwatch->setObjectName(QStringLiteral("label_ColorSwatch"));
    colorSwatch->setAlignment(Qt::AlignCenter);
    colorSwatch->setGeometry(kSwatchRect);

    const int left = kDeckWidth - kRgbRight;
    const char* const colors[] = {kRed, kGreen, kBlue};
    const char* const names[] = {"R", "G", "B"};
    const int initial[] = {kDefaultRed, 0, 0};
    for (int c = 0; c < ChannelCount; ++c) {
        const QString channel = QString::fromLatin1(names[c]);
        const QString color = QString::fromLatin1(colors[c]);
        const int top = kRgbTops[c];

        QLabel* label = new QLabel(channel, deck);
        label->setObjectName(QStringLiteral("label_%1_Value").arg(channel));
        label->setStyleSheet(styled(kChannelLabelStyle, label->objectName(), color));
        label->setAlignment(Qt::AlignCenter);
        label->setGeometry(QRect(QPoint(left, top), kRgbLabelSize));
        labels[c] = label;

        QSlider* slider = new QSlider(Qt::Horizontal, deck);
        slider->setObjectName(QStringLiteral("slider_%1_Value").arg(channel));
        slider->setRange(0, kChannelMax);
        slider->setSingleStep(1);
        slider->setPageStep(1);
        slider->setValue(initial[c]);
        slider->setStyleSheet(styled(kChannelSliderStyle, slider->objectName(), color));
        slider->setGeometry(left + kRgbSliderX, top + kRgbSliderInset, kRgbSliderWidth,
                            kRgbLabelSize.height() - 2 * kRgbSliderInset);
        sliders[c] = slider;

        QLineEdit* field = new QLineEdit(QString::number(initial[c]), deck);
        field->setObjectName(QStringLiteral("lineEdit_%1_Value").arg(channel));
        field->setValidator(new ChannelValidator(0, kChannelMax, field));
        field->setAlignment(Qt::AlignCenter);
        field->setStyleSheet(styled(kChannelEditStyle, field->objectName(), color));
        field->setGeometry(QRect(QPoint(left + kRgbEditX, top), kRgbEditSize));
        fields[c] = field;
    }
    nameChannels();

    for (QSlider* slider : sliders)
        connect(slider, &QSlider::valueChanged, this, &ColorEntry::showSwatch);
    showSwatch();
}

void ColorEntry::setColor(COLORREF color)
{
    sliders[Red]->setValue(redOf(color));
    sliders[Green]->setValue(greenOf(color));
    sliders[Blue]->setValue(blueOf(color));
}

COLORREF ColorEntry::enteredColor() const
{
    const COLORREF r = static_cast<COLORREF>(fields[Red]->text().toInt()) & 0xFF;
    const COLORREF g = static_cast<COLORREF>(fields[Green]->text().toInt()) & 0xFF;
    const COLORREF b = static_cast<COLORREF>(fields[Blue]->text().toInt()) & 0xFF;
    return r | g << 8 | b << 16;
}

void ColorEntry::showValue(int channel, int value)
{
    fields[channel]->setText(QString::number(value));
}

COLORREF ColorEntry::commit(int channel)
{
    QLineEdit* field = fields[channel];
    qCDebug(lcPanel) << "Lighting_View::commitLineEdit" << field->objectName() << field->text();
    sliders[channel]->setValue(field->text().toInt());
    // Return hands the focus to the channel's slider rather than dropping it.
    if (field->hasFocus())
        sliders[channel]->setFocus(Qt::TabFocusReason);
    else
        field->clearFocus();
    return enteredColor();
}

void ColorEntry::nameChannels()
{
    const QString names[] = {Lighting_View::tr("Red"), Lighting_View::tr("Green"),
                             Lighting_View::tr("Blue")};
    for (int c = 0; c < ChannelCount; ++c) {
        sliders[c]->setAccessibleName(names[c]);
        fields[c]->setAccessibleName(names[c]);
    }
    wheel->setAccessibleName(Lighting_View::tr("Color wheel"));
}

void ColorEntry::filterFieldEvent(QObject* watched, QEvent* event)
{
    for (int c = 0; c < ChannelCount; ++c) {
        if (watched != fields[c])
            continue;
        if (event->type() == QEvent::FocusIn) {
            qCDebug(lcPanel) << fields[c]->objectName() << "FocusIn";
        } else if (event->type() == QEvent::FocusOut) {
            qCDebug(lcPanel) << qPrintable(fields[c]->objectName() + QStringLiteral(" FocusOut"));
            // An entry that was not confirmed with Return is discarded.
            fields[c]->setText(QString::number(sliders[c]->value()));
        }
        return;
    }
}

void ColorEntry::setChannelsEnabled(bool enabled)
{
    for (QSlider* slider : sliders)
        slider->setEnabled(enabled);
    for (QLineEdit* field : fields)
        field->setEnabled(enabled);
    for (QLabel* label : labels)
        label->setEnabled(enabled);
}

void ColorEntry::showSwatch()
{
    const int r = sliders[Red]->value();
    const int g = sliders[Green]->value();
    const int b = sliders[Blue]->value();
    // Dark text on light colours, light text on dark ones.
    const bool light = (r * 299 + g * 587 + b * 114) / 1000 > kSwatchLightLimit;
    colorSwatch->setStyleSheet(QString::fromLatin1(kSwatchStyle)
                                   .arg(QLatin1String(light ? "black" : "white"))
                                   .arg(r)
                                   .arg(g)
                                   .arg(b));
    colorSwatch->setText(QStringLiteral("#%1%2%3")
                             .arg(r, 2, 16, QLatin1Char('0'))
                             .arg(g, 2, 16, QLatin1Char('0'))
                             .arg(b, 2, 16, QLatin1Char('0'))
                             .toUpper());
}
