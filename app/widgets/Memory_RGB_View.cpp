#include "Memory_RGB_View.h"

#include "AppGlobals.h"
#include "ColorNames.h"
#include "Log.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace {

constexpr int StripWidth = 30;
constexpr int StripHeight = 295;
constexpr int ButtonSize = 30;
constexpr int LedTop = 30;
constexpr int WideLedPitch = 52;  // five LEDs spread over the whole strip
constexpr int DenseLedPitch = 30; // eight LEDs packed one under the other

constexpr COLORREF DefaultLedColor = 0x00FF00;
constexpr COLORREF DefaultSingleColor = 0x0000FF;
constexpr COLORREF InactiveLedColor = 0x646464;

// Red, yellow-green, green, blue, violet, then the first three again.
constexpr COLORREF DefaultColorsFive[Memory_RGB_View::LedCount] = {
    0x0000FF, 0x00FFD8, 0x3BFF00, 0xFF6200, 0xFF00A7, 0x0000FF, 0x00FFD8, 0x3BFF00};
// Red, orange, yellow, green, spring green, cyan, blue, violet.
constexpr COLORREF DefaultColorsEight[Memory_RGB_View::LedCount] = {
    0x0000FF, 0x007FFF, 0x00FFFF, 0x00FF00, 0x7FFF00, 0xFFFF00, 0xFF0000, 0xFF007F};

const QColor SelectedFrameColor(255, 0, 0);
const QColor EditedFrameColor(32, 158, 199);
constexpr qreal FrameWidth = 5.0;
const QColor ConnectorColor(82, 82, 82);
const QRect ConnectorRect(10, 40, 10, 210);

const QString SlotButtonStyle =
    QStringLiteral("QPushButton#btn_MemorySlot {font-family: Arial; font-size:18px; border:none; "
                   "color:rgba(0,0,0,0); }QPushButton#btn_MemorySlot::checked {font-family: Arial; "
                   "font-size:18px; border:none; color:rgb(0,122,0);}");
const QString OverlayStyle = QStringLiteral("QLabel#label_BK{background-color:rgba(0,0,0,0);}");

enum ColorMode { ModeRgb = 0, ModeSingle = 1, ModeOff = 2, ModeRandom = 3 };

} // namespace

Memory_RGB_View::Memory_RGB_View(QWidget* parent) : QWidget(parent)
{
    setGeometry(0, 0, StripWidth, StripHeight);

    btn_MemorySlot = new QPushButton(this);
    btn_MemorySlot->setGeometry(0, 0, ButtonSize, ButtonSize);
    btn_MemorySlot->setCheckable(true);
    btn_MemorySlot->setFlat(true);
    btn_MemorySlot->setObjectName(QStringLiteral("btn_MemorySlot"));
    btn_MemorySlot->setStyleSheet(SlotButtonStyle);
    connect(btn_MemorySlot, &QPushButton::released, this, &Memory_RGB_View::slot_SelectMemSlot);

    singleColor = DefaultSingleColor;
    singleBright = 1.0f;

    for (int i = 0; i < LedCount; ++i) {
        ledColor[i] = DefaultLedColor;
        ledBright[i] = 1.0f;
        btn_Led[i] = new QPushButton(this);
        btn_Led[i]->setGeometry(0, LedTop + WideLedPitch * i, ButtonSize, ButtonSize);
        btn_Led[i]->setObjectName(QStringLiteral("btn_Led"));
        btn_Led[i]->setCheckable(true);
        paintLed(i, ledColor[i]);
        connect(btn_Led[i], &QPushButton::released, this, &Memory_RGB_View::slot_SelectLED);
    }

    setAcceptDrops(true);

    // Created last so that it lies above the buttons and takes their clicks while shown.
    label_BK = new QLabel(this);
    label_BK->setGeometry(0, 0, width(), height());
    label_BK->setObjectName(QStringLiteral("label_BK"));
    label_BK->setStyleSheet(OverlayStyle);
    label_BK->hide();
}

Memory_RGB_View::~Memory_RGB_View() = default;

QString Memory_RGB_View::ledStyleSheet(COLORREF color)
{
    const QString rgb = QString::number(color & 0xFF) % QLatin1Char(',') %
                        QString::number((color >> 8) & 0xFF) % QLatin1Char(',') %
                        QString::number((color >> 16) & 0xFF);
    return QStringLiteral("QPushButton{background-color:rgb(") % rgb %
           QStringLiteral("); border-radius:9px;margin:6 6 6 6;}"
                          "QPushButton:checked{background-color:rgb(") %
           rgb % QStringLiteral("); border-radius:12px; margin: 3 3 3 3;}");
}

void Memory_RGB_View::paintLed(int index, COLORREF color)
{
    QPushButton* button = btn_Led[index];
    if (!button)
        return;
    // The same sheet again would only re-polish the button and repaint it unchanged; state
    // refreshes repaint every LED with the colour it shows.
    if (ledStyled[index] && ledShown[index] == color)
        return;
    button->setStyleSheet(ledStyleSheet(color));
    ledShown[index] = color;
    ledStyled[index] = true;
    nameLed(index);
}

void Memory_RGB_View::nameLed(int index)
{
    const COLORREF color = ledShown[index];
    const QColor shown(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
    btn_Led[index]->setAccessibleName(tr("Slot %1, LED %2, %3")
                                          .arg(slotNumber + 1)
                                          .arg(QChar('A' + index))
                                          .arg(ColorNames::describe(shown)));
}

void Memory_RGB_View::setSlotNumber(int slot)
{
    slotNumber = slot;
    slotPosition = slot;
    btn_MemorySlot->setText(QString::number(slot + 1));
    nameButtons();
}

void Memory_RGB_View::nameButtons()
{
    btn_MemorySlot->setAccessibleName(tr("Slot %1").arg(slotNumber + 1));
    for (int i = 0; i < LedCount; ++i)
        nameLed(i);
}

void Memory_RGB_View::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && slotNumber >= 0)
        nameButtons();
    QWidget::changeEvent(event);
}

void Memory_RGB_View::setLEDNumber(int count)
{
    if (count == 8) {
        for (int i = 0; i < LedCount; ++i) {
            btn_Led[i]->show();
            btn_Led[i]->setGeometry(0, LedTop + DenseLedPitch * i, ButtonSize, ButtonSize);
            btn_Led[i]->setCheckable(true);
        }
    } else if (count == 5) {
        for (int i = 0; i < LedCount; ++i) {
            if (i < 5) {
                btn_Led[i]->show();
                btn_Led[i]->setGeometry(0, LedTop + WideLedPitch * i, ButtonSize, ButtonSize);
                btn_Led[i]->setCheckable(true);
            } else {
                btn_Led[i]->hide();
            }
        }
    }
}

void Memory_RGB_View::setDisable(bool isAvailable)
{
    qCDebug(lcPanel) << "setDisable:" << isAvailable;
    available = isAvailable;
    btn_MemorySlot->setCheckable(isAvailable);
    for (QPushButton* led : btn_Led) {
        led->setCheckable(isAvailable);
        led->setVisible(isAvailable);
    }
}

void Memory_RGB_View::setEdited(bool isEdited)
{
    qCDebug(lcPanel) << "Memory_RGB_View::setEdited" << isEdited;
    edited = isEdited;
    for (QPushButton* led : btn_Led)
        led->setEnabled(!isEdited);
    if (isEdited) {
        label_BK->raise();
        label_BK->show();
    } else {
        label_BK->hide();
    }
    update();
}

void Memory_RGB_View::setRGB(int index, COLORREF color, float bright)
{
    ledColor[index] = color;
    ledBright[index] = bright;
}

void Memory_RGB_View::setSingleRGB(COLORREF color, float bright)
{
    singleColor = color;
    singleBright = bright;
}

void Memory_RGB_View::pressRGB(COLORREF color)
{
    qCDebug(lcPanel) << "R= " << (color & 0xFF) << ", G = " << ((color >> 8) & 0xFF)
                     << ", B = " << ((color >> 16) & 0xFF);
    if (!btn_MemorySlot->isChecked())
        return;
    if (colorMode == ModeRgb) {
        for (int i = 0; i < LedCount; ++i) {
            if (btn_Led[i]->isChecked()) {
                ledColor[i] = color;
                paintLed(i, color);
            }
        }
    } else if (colorMode == ModeSingle) {
        singleColor = color;
        for (int i = 0; i < LedCount; ++i) {
            if (btn_Led[i]->isChecked())
                paintLed(i, color);
        }
    }
}

void Memory_RGB_View::slot_SelectMemSlot()
{
    SelectMemoryIndex = slotNumber;
    const bool slotChecked = btn_MemorySlot->isChecked();
    for (QPushButton* led : btn_Led)
        led->setChecked(slotChecked);
    emit SelectMemSlot(slotNumber);
}

void Memory_RGB_View::slot_SelectLED()
{
    if (auto* clicked = qobject_cast<QPushButton*>(sender())) {
        // Outside RGB mode the LEDs of one module are selected together.
        if (colorMode == ModeSingle || colorMode == ModeOff || colorMode == ModeRandom) {
            const bool ledChecked = clicked->isChecked();
            for (QPushButton* led : btn_Led)
                led->setChecked(ledChecked);
        }
    }
    bool anyChecked = false;
    for (QPushButton* led : btn_Led)
        anyChecked = anyChecked || led->isChecked();
    btn_MemorySlot->setChecked(anyChecked);
    emit SelectMemSlot(slotNumber);
}

void Memory_RGB_View::slot_ChangeBright(float bright)
{
    if (!btn_MemorySlot->isChecked())
        return;
    if (colorMode == ModeRgb) {
        for (int i = 0; i < LedCount; ++i) {
            if (btn_Led[i]->isChecked())
                ledBright[i] = bright;
        }
    } else if (colorMode == ModeSingle) {
        singleBright = bright;
    }
}

void Memory_RGB_View::slot_ChangeColorMode(int slot, int mode)
{
    qCDebug(lcPanel) << "slot_ChangeColorMode:" << slotNumber << slot << mode << colorMode;
    if (slot != slotNumber)
        return;
    colorMode = mode;
    switch (mode) {
    case ModeRgb:
        for (int i = 0; i < LedCount; ++i) {
            qCDebug(lcPanel) << "btn_Led[" << i << "]:" << btn_Led[i];
            qCDebug(lcPanel) << "btn_Led[" << i << "]->isHidden():" << btn_Led[i]->isHidden();
            paintLed(i, ledColor[i]);
            qCDebug(lcPanel) << "END----";
        }
        break;
    case ModeSingle:
        for (int i = 0; i < LedCount; ++i) {
            if (btn_MemorySlot->isChecked())
                btn_Led[i]->setChecked(true);
            paintLed(i, singleColor);
        }
        break;
    case ModeOff:
    case ModeRandom:
        // The effect chooses the colours itself; the strip shows the LEDs inactive.
        for (int i = 0; i < LedCount; ++i) {
            btn_Led[i]->setChecked(btn_MemorySlot->isChecked());
            paintLed(i, InactiveLedColor);
        }
        break;
    default:
        break;
    }
}

void Memory_RGB_View::slot_Default()
{
    int visibleLeds = 0;
    for (QPushButton* led : btn_Led) {
        if (!led->isHidden())
            ++visibleLeds;
    }
    qCDebug(lcPanel) << "Def" << visibleLeds;
    const COLORREF* defaults = visibleLeds == 8 ? DefaultColorsEight : DefaultColorsFive;
    for (int i = 0; i < LedCount; ++i) {
        ledColor[i] = defaults[i];
        ledBright[i] = 1.0f;
    }
    singleColor = DefaultSingleColor;
    singleBright = 1.0f;

    // The values are reset in any case; only a selected strip shows them at once.
    if (btn_MemorySlot->isChecked()) {
        if (colorMode == ModeRgb) {
            for (int i = 0; i < LedCount; ++i)
                paintLed(i, ledColor[i]);
        } else if (colorMode == ModeSingle) {
            for (int i = 0; i < LedCount; ++i)
                paintLed(i, singleColor);
        }
    }
    qCDebug(lcPanel) << "Memory_RGB_View::slot_Default----END";
}

void Memory_RGB_View::slot_Selected(int slot, bool isSelected)
{
    if (slot == slotNumber)
        selected = isSelected;
    update();
}

void Memory_RGB_View::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    drawFrame(painter);
    drawConnector(painter);
}

void Memory_RGB_View::drawFrame(QPainter& painter) const
{
    if (!selected && !edited)
        return;
    painter.save();
    painter.setPen(QPen(selected ? SelectedFrameColor : EditedFrameColor, FrameWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(0, 0, width() - 1, height() - 1);
    painter.restore();
}

void Memory_RGB_View::drawConnector(QPainter& painter) const
{
    painter.setPen(ConnectorColor);
    painter.setBrush(ConnectorColor);
    painter.drawRect(ConnectorRect);
}
