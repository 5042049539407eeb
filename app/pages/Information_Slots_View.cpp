#include "Information_Slots_View.h"

#include "Log.h"

#include <QButtonGroup>
#include <QChar>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace {
const char* const kInitialStyle =
    "QWidget#Information_Slots_View { font-family: Arial; color:white;}";
const char* const kLabelStyle = "QLabel {font-family: Arial; color:white; font-size:18px;}";

constexpr int kLabelHeight = 40;
constexpr int kLabelRightGap = 20;
constexpr int kTypeY = 70;
constexpr int kSizeY = 115;
constexpr int kFrequencyY = 160;
constexpr int kTemperatureY = 205;

const QRect kButtonArea(5, 5, 240, 46);
constexpr int kButtonAreaMargin = 5;
constexpr int kButtonSpacing = 5;
constexpr int kButtonX = 10;
constexpr int kButtonPitch = 60;
constexpr int kButtonY = 10;
constexpr int kButtonSize = 36;
constexpr int kLargeDigits = 36;
constexpr int kSmallDigits = 20;
constexpr int kLargeDigitsUpTo = 4;

const QColor kRuleColor(Qt::gray);
constexpr int kTopRuleY = 45;
constexpr int kTopRuleHeight = 2;
constexpr int kBottomRuleHeight = 1;

const QChar kDegree(0x00B0);

QString buttonStyle(int fontSize)
{
    const QString size = QString::number(fontSize);
    return QStringLiteral("QPushButton {font-family: Arial; font-size:") % size %
           QStringLiteral("px; border:none; color:gray; }"
                          "QPushButton::checked {font-family: Arial; font-size:") %
           size % QStringLiteral("px; border:none; color:white;}");
}

QString moduleType(const MemoryModuleData& module)
{
    return QString::fromLatin1(module.type, int(qstrnlen(module.type, NX_TEXT_LEN)));
}
} // namespace

Information_Slots_View::Information_Slots_View(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Information_Slots_View"));
    setStyleSheet(QString::fromLatin1(kInitialStyle));
    show();
}

int Information_Slots_View::slotButtonFontSize(int count)
{
    return count <= kLargeDigitsUpTo ? kLargeDigits : kSmallDigits;
}

QLabel* Information_Slots_View::makeModuleLabel(const char* name, int y)
{
    auto* label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label->setGeometry(0, y, width() - kLabelRightGap, kLabelHeight);
    return label;
}

void Information_Slots_View::setupSlotButtons(int count)
{
    setStyleSheet(QString::fromLatin1(kLabelStyle));

    label_Memory_Type = makeModuleLabel("label_Memory_Type", kTypeY);
    label_Memory_Size = makeModuleLabel("label_Memory_Size", kSizeY);
    label_Memory_Frequency = makeModuleLabel("label_Memory_Frequency", kFrequencyY);
    label_Memory_Temperature = makeModuleLabel("label_Memory_Temperature", kTemperatureY);
    label_Memory_Type->setText(tr("Type:") % QStringLiteral("DDR4"));
    label_Memory_Size->setText(tr("Size:") % QStringLiteral("32 GByte"));
    label_Memory_Frequency->setText(tr("Frequency:") % QStringLiteral("3200MHz"));
    label_Memory_Temperature->setText(tr("Temperature:") % QStringLiteral("31") % kDegree %
                                      QStringLiteral("C") % QStringLiteral("/87.8") % kDegree %
                                      QStringLiteral("F"));

    buttonGroup = new QButtonGroup(this);
    widget_Buttons = new QWidget(this);
    widget_Buttons->setGeometry(kButtonArea);
    gridLayout = new QGridLayout;
    gridLayout->setContentsMargins(kButtonAreaMargin, kButtonAreaMargin, kButtonAreaMargin,
                                   kButtonAreaMargin);
    gridLayout->setSpacing(kButtonSpacing);

    const int fontSize = slotButtonFontSize(count);
    for (int i = 0; i < kSlotButtonCount; ++i) {
        btn_Slot[i] = new QPushButton(widget_Buttons);
        connect(btn_Slot[i], &QPushButton::released, this,
                &Information_Slots_View::slot_Select_Memory);
        if (i < count) {
            placeSlotButton(i, fontSize);
        } else {
            btn_Slot[i]->hide();
        }
    }
    widget_Buttons->setLayout(gridLayout);
    btn_Slot[0]->setChecked(true);
}

void Information_Slots_View::resetSlotButtons(int count)
{
    delete buttonGroup;
    buttonGroup = new QButtonGroup(this);
    widget_Buttons->setGeometry(kButtonArea);
    for (QPushButton* button : btn_Slot) {
        gridLayout->removeWidget(button);
        button->hide();
    }
    const int fontSize = slotButtonFontSize(count);
    const int shown = std::min(count, int(kSlotButtonCount));
    for (int i = 0; i < shown; ++i) {
        placeSlotButton(i, fontSize);
        btn_Slot[i]->show();
    }
    btn_Slot[0]->setChecked(true);
}

void Information_Slots_View::placeSlotButton(int index, int fontSize)
{
    QPushButton* button = btn_Slot[index];
    const QString number = QString::number(index + 1);
    button->setGeometry(kButtonX + kButtonPitch * index, kButtonY, kButtonSize, kButtonSize);
    button->setMaximumSize(kButtonSize, kButtonSize);
    button->setText(number);
    button->setObjectName(number);
    button->setCheckable(true);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(buttonStyle(fontSize));
    buttonGroup->addButton(button, index);
    gridLayout->addWidget(button, 0, index);
}

void Information_Slots_View::setModuleData(const MemoryModuleData modules[NX_MODULE_COUNT])
{
    std::copy(modules, modules + kSlotButtonCount, memoryData);
    refreshModuleLabels();
}

void Information_Slots_View::refreshModuleLabels()
{
    const int checked = buttonGroup->checkedId();
    const MemoryModuleData& module = memoryData[checked >= 0 ? checked : 0];

    if (module.memoryModuleSize > 0) {
        label_Memory_Size->setText(tr("Size:") % QString::number(module.memoryModuleSize / 1024) %
                                   QStringLiteral(" GByte"));
    } else {
        label_Memory_Size->setText(tr("Size:") % QStringLiteral("N/A"));
    }

    label_Memory_Type->setText(tr("Type:") % moduleType(module));

    if (module.frequency < 0) {
        label_Memory_Frequency->setText(tr("Frequency:") % QStringLiteral("N/A"));
    } else {
        label_Memory_Frequency->setText(
            tr("Frequency:") % QString::number(module.frequency, 'g', 6) % QStringLiteral(" MHz"));
    }

    if (module.temperature > 0) {
        const qint64 fahrenheit = qint64(module.temperature) * 9 / 5 + 32;
        label_Memory_Temperature->setText(tr("Temperature:") % QString::number(module.temperature) %
                                          kDegree % QStringLiteral("C") % QStringLiteral(" / ") %
                                          QString::number(fahrenheit) % kDegree %
                                          QStringLiteral("F"));
    } else {
        label_Memory_Temperature->setText(tr("Temperature:") % QStringLiteral("N/A"));
    }
}

void Information_Slots_View::slot_Select_Memory()
{
    const QObject* button = sender();
    qCDebug(lcPanel) << "slot_Select_Memory:" << (button ? button->objectName() : QString());
    refreshModuleLabels();
}

void Information_Slots_View::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(kRuleColor);
    painter.setBrush(kRuleColor);
    const int ruleWidth = 2 * width() / 3;
    painter.drawRect(0, kTopRuleY, ruleWidth, kTopRuleHeight);
    painter.drawRect(0, height() - kTopRuleHeight, ruleWidth, kBottomRuleHeight);
}
