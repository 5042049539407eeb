#include "Noti_View.h"

#include "Accessibility.h"
#include "AppGlobals.h"
#include "Log.h"
#include "Platform.h"
#include "PopupAnchor.h"
#include "RGB_Palette.h"
#include "SwitchButton.h"
#include "Widget_Select_Palette.h"

#include <QEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

#include <utility>

namespace {

const char kPageStyle[] = "QWidget#Information_View {background-color:red;}"
                          "QLabel {font-family: Arial; color:Lightgray; font-size:18px;}"
                          "QPushButton {font-family: Arial; color:Lightgray; font-size:22px;"
                          "background-color:transparent;}";
const char kEditStyle[] =
    "QLineEdit {font-family: Arial; color:Lightgray; font-size:18px; "
    "background-color:transparent; border-width:0;border-style:outset;}"
    "QLineEdit::focus {font-family: Arial; color:rgb(32,158,199); font-size:18px; "
    "background-color:transparent; border-width:0;border-style:outset;}";

const QColor kAccent(32, 158, 199);
const QColor kUnderline(Qt::darkGray);

const QRect kPageGeometry(0, 0, 800, 510);
const QRect kTitleGeometry(20, 50, 200, 40);
const int kGridX = 20;
const int kGridY = 100;
const int kGridMargin = 5;
const int kGridSpacing = 10;

const QSize kSwitchSize(47, 19);
const QSize kEditSize(50, 30);
const QSize kCaptionButtonSize(30, 30);
const QSize kGreaterSize(30, 30);
const int kTriggerMinWidth = 50;
const int kTriggerMaxWidth = 200;
const int kShutdownMinWidth = 250;
const int kShutdownMaxWidth = 450;
const int kFanActionMinWidth = 200;
// The action column takes nearly all spare width, up to its labels' maximum.
const int kActionStretch = 100;

const int kLoadMin = 0;
const int kLoadMax = 100;
const int kTemperatureMin = -30;
const int kTemperatureMax = 1000;

const COLORREF kInitialLoadColor = 255;
const char kInitialThreshold[] = "90";

// Rule numbers carried in changedItem.
const int kItemLoading = 1;
const int kItemShutdownMemory = 2;
const int kItemFanSpeed = 3;
const int kItemShutdownCPU = 4;

// Grid columns.
enum Column { ColSwitch, ColCondition, ColGreater, ColEdit, ColUnit, ColAction };

const wchar_t kFanSoftwareMutex[] = L"Prismveil";

// Title sizes for the languages whose caption is longer than the English one.
int titleFontSize(int language)
{
    switch (language) {
    case 7: // ru
        return 20;
    case 3: // de
        return 16;
    case 9: // es
        return 14;
    default:
        return 22;
    }
}

QString titleStyle(int pixelSize)
{
    return QStringLiteral("QLabel {font-family: Arial; color:Lightgray; font-size:") +
           QString::number(pixelSize) + QStringLiteral("px;}");
}

QString colorButtonStyle(COLORREF color)
{
    return QStringLiteral("QPushButton{background-color:rgb(") + QString::number(color & 255) +
           QLatin1Char(',') + QString::number((color >> 8) & 255) + QLatin1Char(',') +
           QString::number((color >> 16) & 255) +
           QStringLiteral("); border-radius:10px; margin:5 5 5 5;}");
}

QString degreeCaption(const char* unit)
{
    return QString(QChar(0x00B0)) + QLatin1String(unit);
}

// 0 is Celsius, 1 Fahrenheit; anything else keeps the caption.
void setUnitCaption(QPushButton* button, int unit)
{
    if (unit == 0)
        button->setText(degreeCaption("C"));
    else if (unit == 1)
        button->setText(degreeCaption("F"));
}

} // namespace

Noti_View::Noti_View(QWidget* parent) : QWidget(parent)
{
    notiEventData.loadingColor = kInitialLoadColor;

    setFocusPolicy(Qt::ClickFocus);
    setGeometry(kPageGeometry);
    setObjectName(QStringLiteral("Information_View"));
    setStyleSheet(QLatin1String(kPageStyle));

    createWidgets();
    checkFanSoftware();
    buildGrid();
    connectSignals();
    applyTexts();
    nameWidgets();
}

void Noti_View::nameWidgets()
{
    const std::pair<QWidget*, const char*> names[] = {
        {label_Title, "label_Title"},
        {widget_Grid, "widget_Grid"},
        {switch_Loading, "switch_Loading"},
        {switch_Shutdown_Memory, "switch_Shutdown_Memory"},
        {switch_Shutdown_CPU, "switch_Shutdown_CPU"},
        {switch_FanSpeed, "switch_FanSpeed"},
        {label_Loading, "label_Loading"},
        {label_Memory, "label_Memory"},
        {label_CPU, "label_CPU"},
        {label_FanSpeed_CPU, "label_FanSpeed_CPU"},
        {label_Trigger_LED, "label_Trigger_LED"},
        {label_Shutdown_Memory, "label_Shutdown_Memory"},
        {label_Shutdown_CPU, "label_Shutdown_CPU"},
        {label_FanSpeed, "label_FanSpeed"},
        {btn_Percent, "btn_Percent"},
        {btn_Unit_Memory, "btn_Unit_Memory"},
        {btn_Unit_CPU, "btn_Unit_CPU"},
        {btn_Unit_FanSpeed, "btn_Unit_FanSpeed"},
        {btn_Loading_Color, "btn_Loading_Color"},
        {label_Greater_Loading, "label_Greater_Loading"},
        {label_Greater_Memory, "label_Greater_Memory"},
        {label_Greater_CPU, "label_Greater_CPU"},
        {label_Greater_FanSpeed, "label_Greater_FanSpeed"},
        {palette_Select, "palette_Select"},
    };
    for (const auto& [widget, name] : names)
        widget->setObjectName(QLatin1String(name));
}

void Noti_View::createWidgets()
{
    label_Title = new QLabel(this);
    label_Title->setGeometry(kTitleGeometry);
    label_Title->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    widget_Grid = new QWidget(this);
    widget_Grid->setGeometry(kGridX, kGridY, width() - 30, height() - 200);

    switch_Loading = new SwitchButton(kSwitchSize.width(), kSwitchSize.height(), widget_Grid);
    switch_Shutdown_Memory =
        new SwitchButton(kSwitchSize.width(), kSwitchSize.height(), widget_Grid);
    switch_Shutdown_CPU = new SwitchButton(kSwitchSize.width(), kSwitchSize.height(), widget_Grid);
    switch_FanSpeed = new SwitchButton(kSwitchSize.width(), kSwitchSize.height(), widget_Grid);
    for (SwitchButton* button :
         {switch_Loading, switch_Shutdown_Memory, switch_Shutdown_CPU, switch_FanSpeed}) {
        button->setFixedSize(kSwitchSize);
        button->setCursor(Qt::PointingHandCursor);
    }

    label_Loading = new QLabel(widget_Grid);
    label_Memory = new QLabel(widget_Grid);
    label_CPU = new QLabel(widget_Grid);
    label_FanSpeed_CPU = new QLabel(widget_Grid);
    for (QLabel* label : {label_Loading, label_Memory, label_CPU, label_FanSpeed_CPU})
        label->setAlignment(Qt::AlignCenter);

    label_Trigger_LED = new QLabel(widget_Grid);
    label_Trigger_LED->setMinimumWidth(kTriggerMinWidth);
    label_Trigger_LED->setMaximumWidth(kTriggerMaxWidth);
    label_Shutdown_Memory = new QLabel(widget_Grid);
    label_Shutdown_CPU = new QLabel(widget_Grid);
    for (QLabel* label : {label_Shutdown_Memory, label_Shutdown_CPU}) {
        label->setMinimumWidth(kShutdownMinWidth);
        label->setMaximumWidth(kShutdownMaxWidth);
    }
    label_FanSpeed = new QLabel(widget_Grid);
    label_FanSpeed->setMinimumWidth(kFanActionMinWidth);
    label_FanSpeed->setMaximumWidth(kShutdownMaxWidth);
    // Longer translations wrap instead of being cut off. The three labels share one maximum, so
    // that each is as wide as the column whose width the layout measures the wrapping with.
    for (QLabel* label : {label_Shutdown_Memory, label_Shutdown_CPU, label_FanSpeed}) {
        label->setWordWrap(true);
        label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    }

    lineEdit_Loading = createThresholdEdit(QStringLiteral("lineEdit_Loading"), kLoadMin, kLoadMax);
    lineEdit_Shutdown_Memory = createThresholdEdit(QStringLiteral("lineEdit_Shutdown_Memory"),
                                                   kTemperatureMin, kTemperatureMax);
    lineEdit_Shutdown_CPU = createThresholdEdit(QStringLiteral("lineEdit_Shutdown_CPU"),
                                                kTemperatureMin, kTemperatureMax);
    lineEdit_FanSpeed =
        createThresholdEdit(QStringLiteral("lineEdit_FanSpeed"), kTemperatureMin, kTemperatureMax);

    btn_Percent = createCaptionButton(QStringLiteral("%"));
    btn_Unit_Memory = createCaptionButton(degreeCaption("C"));
    btn_Unit_CPU = createCaptionButton(degreeCaption("C"));
    btn_Unit_FanSpeed = createCaptionButton(degreeCaption("C"));

    btn_Loading_Color = new QPushButton(widget_Grid);
    btn_Loading_Color->setFixedSize(kCaptionButtonSize);
    btn_Loading_Color->setCursor(Qt::PointingHandCursor);
    Accessibility::makeTabReachable(btn_Loading_Color);
    setColorButton(notiEventData.loadingColor);

    label_Greater_Loading = createGreaterLabel();
    label_Greater_Memory = createGreaterLabel();
    label_Greater_CPU = createGreaterLabel();
    label_Greater_FanSpeed = createGreaterLabel();

    // Created last so that it lies above the grid.
    palette_Select = new Widget_Select_Palette(this);
    palette_Select->setFocusPolicy(Qt::ClickFocus);
    palette_Select->hide();
    PopupAnchor::tie(btn_Loading_Color, palette_Select);
    setRowTabOrder();
}

QLineEdit* Noti_View::createThresholdEdit(const QString& objectName, int minimum, int maximum)
{
    auto* edit = new QLineEdit(widget_Grid);
    edit->setObjectName(objectName);
    edit->setFixedSize(kEditSize);
    edit->setText(QLatin1String(kInitialThreshold));
    edit->setAlignment(Qt::AlignCenter);
    edit->setStyleSheet(QLatin1String(kEditStyle));
    edit->setValidator(new QIntValidator(minimum, maximum, edit));
    edit->setContextMenuPolicy(Qt::NoContextMenu);
    edit->installEventFilter(this);
    return edit;
}

QPushButton* Noti_View::createCaptionButton(const QString& text)
{
    auto* button = new QPushButton(text, widget_Grid);
    button->setFixedSize(kCaptionButtonSize);
    button->setFlat(true);
    Accessibility::makeTabReachable(button);
    return button;
}

QLabel* Noti_View::createGreaterLabel()
{
    auto* label = new QLabel(QStringLiteral(">"), widget_Grid);
    label->setFixedSize(kGreaterSize);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

void Noti_View::buildGrid()
{
    auto* grid = new QGridLayout(widget_Grid);
    grid->setContentsMargins(kGridMargin, kGridMargin, kGridMargin, kGridMargin);
    grid->setSpacing(kGridSpacing);

    auto* trigger = new QHBoxLayout;
    trigger->setContentsMargins(0, 0, 0, 0);
    trigger->addWidget(label_Trigger_LED);
    trigger->addWidget(btn_Loading_Color);
    trigger->addStretch();

    grid->addWidget(switch_Loading, 0, ColSwitch);
    grid->addWidget(label_Loading, 0, ColCondition);
    grid->addWidget(label_Greater_Loading, 0, ColGreater);
    grid->addWidget(lineEdit_Loading, 0, ColEdit);
    grid->addWidget(btn_Percent, 0, ColUnit);
    grid->addLayout(trigger, 0, ColAction, 1, 2);

    grid->addWidget(switch_Shutdown_Memory, 1, ColSwitch);
    grid->addWidget(label_Memory, 1, ColCondition);
    grid->addWidget(label_Greater_Memory, 1, ColGreater);
    grid->addWidget(lineEdit_Shutdown_Memory, 1, ColEdit);
    grid->addWidget(btn_Unit_Memory, 1, ColUnit);
    grid->addWidget(label_Shutdown_Memory, 1, ColAction);

    grid->addWidget(switch_Shutdown_CPU, 2, ColSwitch);
    grid->addWidget(label_CPU, 2, ColCondition);
    grid->addWidget(label_Greater_CPU, 2, ColGreater);
    grid->addWidget(lineEdit_Shutdown_CPU, 2, ColEdit);
    grid->addWidget(btn_Unit_CPU, 2, ColUnit);
    grid->addWidget(label_Shutdown_CPU, 2, ColAction);

    grid->addWidget(switch_FanSpeed, 3, ColSwitch);
    grid->addWidget(label_FanSpeed_CPU, 3, ColCondition);
    grid->addWidget(label_Greater_FanSpeed, 3, ColGreater);
    grid->addWidget(lineEdit_FanSpeed, 3, ColEdit);
    grid->addWidget(btn_Unit_FanSpeed, 3, ColUnit);
    grid->addWidget(label_FanSpeed, 3, ColAction);

    // Rows keep their natural height at the top; the action column takes the spare width, so
    // that the actions read on one line where they can.
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(ColAction, kActionStretch);
    grid->setColumnStretch(ColAction + 1, 1);
}

void Noti_View::connectSignals()
{
    connect(switch_Loading, &SwitchButton::sigClicked, this, &Noti_View::slot_Loading_Switch);
    connect(switch_Shutdown_Memory, &SwitchButton::sigClicked, this,
            &Noti_View::slot_Shutdown_Switch);
    connect(switch_Shutdown_CPU, &SwitchButton::sigClicked, this,
            &Noti_View::slot_Shutdown_CPU_Switch);
    connect(switch_FanSpeed, &SwitchButton::sigClicked, this, &Noti_View::slot_FanSpeed_Switch);

    connect(lineEdit_Loading, &QLineEdit::returnPressed, this, &Noti_View::slot_LineEdit_Loading);
    connect(lineEdit_Shutdown_Memory, &QLineEdit::returnPressed, this,
            &Noti_View::slot_LineEdit_Shutdown_Memory);
    connect(lineEdit_Shutdown_CPU, &QLineEdit::returnPressed, this,
            &Noti_View::slot_LineEdit_Shutdown_CPU);
    connect(lineEdit_FanSpeed, &QLineEdit::returnPressed, this, &Noti_View::slot_LineEdit_FanSpeed);

    connect(btn_Loading_Color, &QPushButton::released, this, &Noti_View::slot_Loading_Color);
    connect(palette_Select, &Widget_Select_Palette::pressRGB, this, &Noti_View::slot_Palette_Color);
    connect(palette_Select, &Widget_Select_Palette::keyboardFinished, this,
            &Noti_View::returnFromPalette);
}

void Noti_View::applyTexts()
{
    label_Title->setStyleSheet(titleStyle(titleFontSize(currentLanguage)));
    label_Title->setText(tr("Setting Notification"));
    label_Loading->setText(tr("Loading"));
    label_Trigger_LED->setText(tr("Trigger all LED "));
    label_Memory->setText(tr("Memory"));
    label_Shutdown_Memory->setText(tr("Shutdown PC"));
    label_CPU->setText(tr("CPU"));
    label_Shutdown_CPU->setText(tr("Shutdown PC"));
    label_FanSpeed_CPU->setText(tr("CPU"));
    label_FanSpeed->setText(tr("Set all fans to 100%"));
    applyAccessibleNames();
}

void Noti_View::leaveEdit(QLineEdit* edit, QWidget* next)
{
    // A value taken with Return hands the focus on to the row's next control instead of dropping
    // it; a value taken because the focus went elsewhere leaves the focus where it went.
    if (edit->hasFocus())
        next->setFocus(Qt::TabFocusReason);
}

void Noti_View::setRowTabOrder()
{
    QWidget* const order[] = {switch_Loading,    lineEdit_Loading,       btn_Percent,
                              btn_Loading_Color, switch_Shutdown_Memory, lineEdit_Shutdown_Memory,
                              btn_Unit_Memory,   switch_Shutdown_CPU,    lineEdit_Shutdown_CPU,
                              btn_Unit_CPU,      switch_FanSpeed,        lineEdit_FanSpeed,
                              btn_Unit_FanSpeed};
    for (size_t i = 1; i < sizeof(order) / sizeof(order[0]); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

void Noti_View::applyAccessibleNames()
{
    // Each row is named by its source and its action, e.g. "Memory, Shutdown PC".
    const auto row = [](const QLabel* source, const QLabel* action) {
        return QStringLiteral("%1, %2").arg(source->text().simplified(),
                                            action->text().simplified());
    };
    const QString threshold = tr("threshold");
    const QString unit = tr("unit");
    const QString loading = row(label_Loading, label_Trigger_LED);
    const QString memory = row(label_Memory, label_Shutdown_Memory);
    const QString cpu = row(label_CPU, label_Shutdown_CPU);
    const QString fans = row(label_FanSpeed_CPU, label_FanSpeed);
    switch_Loading->setAccessibleName(loading);
    switch_Shutdown_Memory->setAccessibleName(memory);
    switch_Shutdown_CPU->setAccessibleName(cpu);
    switch_FanSpeed->setAccessibleName(fans);
    lineEdit_Loading->setAccessibleName(QStringLiteral("%1, %2").arg(loading, threshold));
    lineEdit_Shutdown_Memory->setAccessibleName(QStringLiteral("%1, %2").arg(memory, threshold));
    lineEdit_Shutdown_CPU->setAccessibleName(QStringLiteral("%1, %2").arg(cpu, threshold));
    lineEdit_FanSpeed->setAccessibleName(QStringLiteral("%1, %2").arg(fans, threshold));
    btn_Percent->setAccessibleName(QStringLiteral("%1, %2").arg(loading, unit));
    btn_Unit_Memory->setAccessibleName(QStringLiteral("%1, %2").arg(memory, unit));
    btn_Unit_CPU->setAccessibleName(QStringLiteral("%1, %2").arg(cpu, unit));
    btn_Unit_FanSpeed->setAccessibleName(QStringLiteral("%1, %2").arg(fans, unit));
    btn_Loading_Color->setAccessibleName(QStringLiteral("%1, %2").arg(loading, tr("color")));
    palette_Select->wheel()->setAccessibleName(btn_Loading_Color->accessibleName());
}

void Noti_View::updateLanguage_Noti()
{
    qCDebug(lcPanel) << "Noti_View::updateLanguage_Noti()";
    applyTexts();
}

void Noti_View::sendChanged(int changedItem)
{
    notiEventData.changedItem = changedItem;
    emit sendNotiData(notiEventData);
}

void Noti_View::slot_Loading_Switch(bool checked)
{
    qCDebug(lcPanel) << "Noti_View::slot_Temp_Warning_Switch" << checked;
    notiEventData.loadingSwitch = checked;
    notiEventData.loadingValue = lineEdit_Loading->text().toInt();
    sendChanged(kItemLoading);
}

void Noti_View::slot_Shutdown_Switch(bool checked)
{
    qCDebug(lcPanel) << "Noti_View::slot_Shutdown_Switch" << checked;
    notiEventData.shutdownMemorySwitch = checked;
    notiEventData.shutdownMemoryValue = lineEdit_Shutdown_Memory->text().toInt();
    sendChanged(kItemShutdownMemory);
}

void Noti_View::slot_Shutdown_CPU_Switch(bool checked)
{
    qCDebug(lcPanel) << "Noti_View::slot_Shutdown_CPU_Switch" << checked;
    notiEventData.shutdownCPUSwitch = checked;
    notiEventData.shutdownCPUValue = lineEdit_Shutdown_CPU->text().toInt();
    sendChanged(kItemShutdownCPU);
}

void Noti_View::slot_FanSpeed_Switch(bool checked)
{
    qCDebug(lcPanel) << "Noti_View::slot_FanSpeed_Switch" << checked;
    notiEventData.fanSpeedSwitch = checked;
    notiEventData.fanSpeedValue = lineEdit_FanSpeed->text().toInt();
    sendChanged(kItemFanSpeed);
}

void Noti_View::slot_LineEdit_Loading()
{
    notiEventData.loadingValue = lineEdit_Loading->text().toInt();
    qCDebug(lcPanel) << "Noti_View::slot_LineEdit_Loading" << notiEventData.loadingValue;
    sendChanged(kItemLoading);
    leaveEdit(lineEdit_Loading, btn_Percent);
}

void Noti_View::slot_LineEdit_Shutdown_Memory()
{
    notiEventData.shutdownMemoryValue = lineEdit_Shutdown_Memory->text().toInt();
    qCDebug(lcPanel) << "Noti_View::slot_LineEdit_Shutdown_Memory"
                     << notiEventData.shutdownMemoryValue;
    sendChanged(kItemShutdownMemory);
    leaveEdit(lineEdit_Shutdown_Memory, btn_Unit_Memory);
}

void Noti_View::slot_LineEdit_Shutdown_CPU()
{
    notiEventData.shutdownCPUValue = lineEdit_Shutdown_CPU->text().toInt();
    qCDebug(lcPanel) << "Noti_View::slot_LineEdit_Shutdown_CPU" << notiEventData.shutdownCPUValue;
    sendChanged(kItemShutdownCPU);
    leaveEdit(lineEdit_Shutdown_CPU, btn_Unit_CPU);
}

void Noti_View::slot_LineEdit_FanSpeed()
{
    notiEventData.fanSpeedValue = lineEdit_FanSpeed->text().toInt();
    qCDebug(lcPanel) << "Noti_View::slot_LineEdit_FanSpeed" << notiEventData.fanSpeedValue;
    sendChanged(kItemFanSpeed);
    leaveEdit(lineEdit_FanSpeed, btn_Unit_FanSpeed);
}

void Noti_View::slot_Loading_Color()
{
    qCDebug(lcPanel) << "Noti_View::slot_Loading_Color" << palette_Select->isHidden();
    if (palette_Select->isHidden()) {
        // The swatch takes the focus only from the keyboard.
        const bool byKey = btn_Loading_Color->hasFocus();
        const QRect swatch = btn_Loading_Color->geometry();
        palette_Select->move(widget_Grid->x() + swatch.x(),
                             widget_Grid->y() + swatch.y() + swatch.height());
        palette_Select->raise();
        palette_Select->setFocus(Qt::OtherFocusReason);
        palette_Select->show();
        if (byKey)
            palette_Select->wheel()->showCursor();
    } else {
        closePalette();
    }
}

// The page takes the focus first, so that hiding the pop-up does not pass the focus on to the
// next edit in the tab chain.
void Noti_View::closePalette()
{
    setFocus(Qt::OtherFocusReason);
    palette_Select->hide();
}

void Noti_View::returnFromPalette()
{
    btn_Loading_Color->setFocusProxy(nullptr);
    if (palette_Select->isVisible())
        closePalette();
    btn_Loading_Color->setFocus(Qt::TabFocusReason);
}

void Noti_View::slot_Palette_Color(COLORREF color)
{
    qCDebug(lcPanel) << "Noti_View::slot_Palette_Color" << (color & 255) << ((color >> 8) & 255)
                     << ((color >> 16) & 255);
    setColorButton(color);
    if (palette_Select->isVisible())
        closePalette();
    notiEventData.loadingColor = color;
    notiEventData.loadingValue = lineEdit_Loading->text().toInt();
    sendChanged(kItemLoading);
    setFocus(Qt::OtherFocusReason);
}

void Noti_View::setNotiData(NotiEventData notiData)
{
    if (!extendedFeatures)
        hideLoadingRow();

    qCDebug(lcPanel) << "Noti_View::setNotiData" << notiData.loadingValue;
    qCDebug(lcPanel) << "Noti_View::switch_Loading" << notiData.loadingSwitch;
    qCDebug(lcPanel) << "Noti_View::switch_Shutdown_Memory" << notiData.shutdownMemorySwitch;
    qCDebug(lcPanel) << "Noti_View::switch_Shutdown_CPU" << notiData.shutdownCPUSwitch;
    qCDebug(lcPanel) << "Noti_View::switch_FanSpeed" << notiData.fanSpeedSwitch;

    notiEventData = notiData;
    checkFanSoftware();
    updateWidgetsFromData();
}

void Noti_View::checkFanSoftware()
{
    bool exists = false;
    Platform::MutexHandle handle = Platform::createMutex(kFanSoftwareMutex, &exists);
    Platform::closeHandle(handle);

    if (!exists) {
        qCDebug(lcPanel) << "風扇軟體不存在";
        setFanRowVisible(false);
        notiEventData.fanSpeedSwitch = false;
        notiEventData.fanSpeedValue = lineEdit_FanSpeed->text().toInt();
        sendChanged(kItemFanSpeed);
    } else {
        qCDebug(lcPanel) << "風扇軟體存在";
        setFanRowVisible(true);
    }
}

void Noti_View::setFanRowVisible(bool visible)
{
    // The row's underlines lie outside its widgets, so hiding or showing them alone leaves the
    // lines as they were.
    if (lineEdit_FanSpeed->isHidden() == visible)
        update();
    for (QWidget* widget : std::initializer_list<QWidget*>{
             switch_FanSpeed, label_FanSpeed_CPU, label_Greater_FanSpeed, lineEdit_FanSpeed,
             btn_Unit_FanSpeed, label_FanSpeed})
        widget->setVisible(visible);
}

void Noti_View::hideLoadingRow()
{
    for (QWidget* widget : std::initializer_list<QWidget*>{
             label_Greater_Loading, switch_Loading, label_Loading, lineEdit_Loading, btn_Percent,
             label_Trigger_LED, btn_Loading_Color})
        widget->hide();
}

void Noti_View::updateWidgetsFromData()
{
    switch_Loading->setChecked(notiEventData.loadingSwitch);
    switch_Shutdown_Memory->setChecked(notiEventData.shutdownMemorySwitch);
    switch_Shutdown_CPU->setChecked(notiEventData.shutdownCPUSwitch);
    lineEdit_Loading->setText(QString::number(notiEventData.loadingValue));
    lineEdit_Shutdown_Memory->setText(QString::number(notiEventData.shutdownMemoryValue));
    lineEdit_Shutdown_CPU->setText(QString::number(notiEventData.shutdownCPUValue));
    setColorButton(notiEventData.loadingColor);
    setUnitCaption(btn_Unit_Memory, notiEventData.shutdownMemoryUnit);
    setUnitCaption(btn_Unit_CPU, notiEventData.shutdownCPUUnit);

    switch_FanSpeed->setChecked(notiEventData.fanSpeedSwitch);
    lineEdit_FanSpeed->setText(QString::number(notiEventData.fanSpeedValue));
    setUnitCaption(btn_Unit_FanSpeed, notiEventData.fanSpeedUnit);
}

void Noti_View::setColorButton(COLORREF color)
{
    btn_Loading_Color->setStyleSheet(colorButtonStyle(color));
}

bool Noti_View::eventFilter(QObject* watched, QEvent* event)
{
    const bool isEdit = watched == lineEdit_Loading || watched == lineEdit_Shutdown_Memory ||
                        watched == lineEdit_Shutdown_CPU || watched == lineEdit_FanSpeed;
    const bool isFocusChange =
        event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    if (isEdit && isFocusChange) {
        qCDebug(lcPanel) << watched->objectName();
        // A threshold typed but not confirmed with Return is thrown away.
        if (event->type() == QEvent::FocusOut)
            updateWidgetsFromData();
        update();
    }
    return QWidget::eventFilter(watched, event);
}

void Noti_View::focusInEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::MouseFocusReason)
        qCDebug(lcPanel) << "Noti_View::focusInEven"
                         << "MouseFocusReason";
    else
        qCDebug(lcPanel) << "Noti_View::focusInEven";
    QWidget::focusInEvent(event);
}

QRect Noti_View::underlineFor(const QWidget* widget) const
{
    return QRect(widget_Grid->x() + widget->x(), widget_Grid->y() + widget->y() + widget->height(),
                 widget->width(), 1);
}

void Noti_View::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const auto editLine = [&](const QLineEdit* edit) {
        painter.fillRect(underlineFor(edit), edit->hasFocus() ? kAccent : kUnderline);
    };
    const auto greyLine = [&](const QWidget* widget) {
        painter.fillRect(underlineFor(widget), kUnderline);
    };

    editLine(lineEdit_Shutdown_Memory);
    editLine(lineEdit_Shutdown_CPU);
    if (!lineEdit_FanSpeed->isHidden())
        editLine(lineEdit_FanSpeed);
    if (extendedFeatures) {
        greyLine(lineEdit_Loading);
        greyLine(btn_Percent);
        greyLine(btn_Loading_Color);
    }
    greyLine(btn_Unit_Memory);
    greyLine(btn_Unit_CPU);
    if (!btn_Unit_FanSpeed->isHidden())
        greyLine(btn_Unit_FanSpeed);
}
