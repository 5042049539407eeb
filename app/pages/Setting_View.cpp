#include "Setting_View.h"

#include "Accessibility.h"
#include "AppGlobals.h"
#include "Log.h"
#include "SwitchButton.h"
#include "Widget_Language.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <utility>

namespace {

const char kPageStyle[] = "QWidget#Information_View {background-color:red;}"
                          "QLabel {font-family: Arial; color:Lightgray; font-size:22px;}"
                          "QPushButton {font-family: Arial; color:Lightgray; font-size:22px;"
                          "background-color:transparent;}";
const char kLanguageButtonStyle[] =
    "QPushButton#btn_Language {font-family: Arial; color:Lightgray; font-size:22px; "
    "text-align:left; border: 0px solid gray; background-color:transparent;"
    "background-image: url(:/QXRGBMemory/Images/Select.png); background-repeat:no-repeat; "
    "background-position: center right;}"
    "QPushButton#btn_Language::hover {font-family: Arial; color:rgb(32,158,199); "
    "font-size:22px; text-align:left; border: 0px solid gray; background-color:transparent;"
    "background-image: url(:/QXRGBMemory/Images/Select_h.png); background-repeat:no-repeat; "
    "background-position: center right;}";
const char kCurrentLocationStyle[] =
    "QLabel#label_CurrentLocation {font-family: Arial; color:Lightgray; font-size:18px;}";

const QColor kUnderline(Qt::darkGray);

const QRect kPageGeometry(0, 0, 800, 510);
const int kGridX = 50;
const int kGridY = 0;
const int kGridMargin = 15;
const int kGridSpacing = 5;

const QSize kLanguageButtonSize(120, 30);
const QSize kSwitchSize(47, 19);
const QSize kOptionLabelMinimum(450, 30);
const QSize kVersionCaptionSize(80, 30);
const QSize kVersionTextSize(180, 30);
const QSize kLanguageListSize(300, 200);
const int kCaptionColumnMinWidth = 120;
// Widest and smallest type for the fixed-width version caption.
const int kCaptionFontSize = 22;
const int kCaptionMinFontSize = 12;

const char kSpecialVersion[] = "1.0.305";
const char kSpecialSuffix[] = "_CES";

// Language index order, shared with the language list.
const char* const kCodes[] = {
    QT_TRANSLATE_NOOP("Setting_View", "en"), QT_TRANSLATE_NOOP("Setting_View", "tc"),
    QT_TRANSLATE_NOOP("Setting_View", "sc"), QT_TRANSLATE_NOOP("Setting_View", "de"),
    QT_TRANSLATE_NOOP("Setting_View", "fr"), QT_TRANSLATE_NOOP("Setting_View", "jp"),
    QT_TRANSLATE_NOOP("Setting_View", "th"), QT_TRANSLATE_NOOP("Setting_View", "ru"),
    QT_TRANSLATE_NOOP("Setting_View", "kr"), QT_TRANSLATE_NOOP("Setting_View", "es")};
const int kCodeCount = int(sizeof(kCodes) / sizeof(kCodes[0]));

int autoRunFontSize(int language)
{
    switch (language) {
    case 7: // ru
        return 20;
    case 4: // fr
        return 19;
    default:
        return 22;
    }
}

QString autoRunStyle(int pixelSize)
{
    return QStringLiteral("QLabel#label_AutoRun {font-family: Arial; color:Lightgray; font-size:") +
           QString::number(pixelSize) + QStringLiteral("px;}");
}

// The largest type, at most the page's caption size, in which the text fits the label's width.
QString fittingCaptionStyle(const QLabel* label, const QString& text)
{
    QFont font(QStringLiteral("Arial"));
    int size = kCaptionFontSize;
    for (; size > kCaptionMinFontSize; --size) {
        font.setPixelSize(size);
        if (QFontMetrics(font).horizontalAdvance(text) <= label->width())
            break;
    }
    return QStringLiteral("QLabel {font-size:") + QString::number(size) + QStringLiteral("px;}");
}

} // namespace

Setting_View::Setting_View(QWidget* parent) : QWidget(parent)
{
    settingData.languageIndex = 0;
    settingData.autoUpdate = true;
    settingData.autoRun = true;
    settingData.currentLocation = false;

    setFocusPolicy(Qt::ClickFocus);
    setGeometry(kPageGeometry);
    setObjectName(QStringLiteral("Information_View"));
    setStyleSheet(QLatin1String(kPageStyle));

    createWidgets();
    buildGrid();
    connectSignals();
    refresh();

    widget_Language =
        new Widget_Language(kLanguageListSize.width(), kLanguageListSize.height(), this);
    widget_Language->move(widget_Grid->x() + btn_Language->x(),
                          widget_Grid->y() + btn_Language->y());
    widget_Language->hide();
    connect(widget_Language, &Widget_Language::selectLanguage, this,
            &Setting_View::currentLanguageIndex);
    nameWidgets();
}

void Setting_View::nameWidgets()
{
    const std::pair<QWidget*, const char*> names[] = {
        {widget_Grid, "widget_Grid"},
        {label_Language, "label_Language"},
        {switch_AutoUpdate, "switch_AutoUpdate"},
        {switch_AutoRun, "switch_AutoRun"},
        {switch_CurrentLocation, "switch_CurrentLocation"},
        {label_AutoUpdate, "label_AutoUpdate"},
        {label_Version, "label_Version"},
        {label_Version_Value, "label_Version_Value"},
        {widget_Language, "widget_Language"},
    };
    for (const auto& [widget, name] : names)
        widget->setObjectName(QLatin1String(name));
}

void Setting_View::createWidgets()
{
    widget_Grid = new QWidget(this);
    widget_Grid->setGeometry(kGridX, kGridY, width() - 100, height() - 200);

    label_Language = new QLabel(widget_Grid);

    btn_Language = new QPushButton(widget_Grid);
    btn_Language->setObjectName(QStringLiteral("btn_Language"));
    btn_Language->setFixedSize(kLanguageButtonSize);
    btn_Language->setStyleSheet(QLatin1String(kLanguageButtonStyle));
    btn_Language->setCursor(Qt::PointingHandCursor);
    Accessibility::makeTabReachable(btn_Language);
    btn_Language->setText(tr("en"));

    switch_AutoUpdate = new SwitchButton(kSwitchSize.width(), kSwitchSize.height(), widget_Grid);
    switch_AutoRun = new SwitchButton(kSwitchSize.width(), kSwitchSize.height(), widget_Grid);
    switch_CurrentLocation =
        new SwitchButton(kSwitchSize.width(), kSwitchSize.height(), widget_Grid);
    for (SwitchButton* button : {switch_AutoUpdate, switch_AutoRun, switch_CurrentLocation}) {
        button->setFixedSize(kSwitchSize);
        button->setCursor(Qt::PointingHandCursor);
    }

    label_AutoUpdate = new QLabel(widget_Grid);
    label_AutoRun = new QLabel(widget_Grid);
    label_AutoRun->setObjectName(QStringLiteral("label_AutoRun"));
    label_AutoRun->setMinimumSize(kOptionLabelMinimum);
    label_CurrentLocation = new QLabel(widget_Grid);
    label_CurrentLocation->setObjectName(QStringLiteral("label_CurrentLocation"));
    label_CurrentLocation->setMinimumSize(kOptionLabelMinimum);
    label_CurrentLocation->setStyleSheet(QLatin1String(kCurrentLocationStyle));

    // Each caption names the control beside it for assistive technology.
    label_Language->setBuddy(btn_Language);
    label_AutoUpdate->setBuddy(switch_AutoUpdate);
    label_AutoRun->setBuddy(switch_AutoRun);
    label_CurrentLocation->setBuddy(switch_CurrentLocation);

    label_Version = new QLabel(widget_Grid);
    label_Version->setFixedSize(kVersionCaptionSize);
    label_Version_Value = new QLabel(widget_Grid);
    label_Version_Value->setFixedSize(kVersionTextSize);
}

void Setting_View::buildGrid()
{
    auto* grid = new QGridLayout(widget_Grid);
    grid->setContentsMargins(kGridMargin, kGridMargin, kGridMargin, kGridMargin);
    grid->setSpacing(kGridSpacing);

    // Fixed-size widgets are aligned in their cells, so that they do not cap their column's
    // width and the captions beside them can take the whole row.
    const Qt::Alignment fixed = Qt::AlignLeft | Qt::AlignVCenter;
    grid->addWidget(label_Language, 0, 0);
    grid->addWidget(btn_Language, 0, 1, fixed);
    grid->addWidget(switch_AutoUpdate, 1, 0, fixed);
    grid->addWidget(label_AutoUpdate, 1, 1);
    grid->addWidget(switch_AutoRun, 2, 0, fixed);
    grid->addWidget(label_AutoRun, 2, 1);
    grid->addWidget(switch_CurrentLocation, 3, 0, fixed);
    grid->addWidget(label_CurrentLocation, 3, 1);
    grid->addWidget(label_Version, 4, 0, fixed);
    grid->addWidget(label_Version_Value, 4, 1, fixed);

    // Some room between the captions and the values beside them.
    grid->setColumnMinimumWidth(0, kCaptionColumnMinWidth);
    grid->setColumnStretch(1, 1);
    // Lay out the container now, so that the list can be placed under the button at once.
    grid->activate();
}

void Setting_View::connectSignals()
{
    connect(switch_AutoUpdate, &SwitchButton::sigClicked, this,
            &Setting_View::slot_AutoUpdate_Switch);
    connect(switch_AutoRun, &SwitchButton::sigClicked, this, &Setting_View::slot_AutoRun_Switch);
    connect(switch_CurrentLocation, &SwitchButton::sigClicked, this,
            &Setting_View::slot_CurrentLocation_Switch);
    connect(btn_Language, &QPushButton::released, this, &Setting_View::slot_Language);
}

void Setting_View::slot_AutoUpdate_Switch(bool checked)
{
    qCDebug(lcPanel) << "Setting_View::slot_AutoUpdate_Switch" << checked;
    settingData.autoUpdate = checked;
    emit changeSettingData(settingData);
}

void Setting_View::slot_AutoRun_Switch(bool checked)
{
    qCDebug(lcPanel) << "Setting_View::slot_AutoRun_Switch" << checked;
    settingData.autoRun = checked;
    emit changeSettingData(settingData);
}

void Setting_View::slot_CurrentLocation_Switch(bool checked)
{
    qCDebug(lcPanel) << "Setting_View::slot_CurrentLocation_Switch" << checked;
    settingData.currentLocation = checked;
    emit changeSettingData(settingData);
}

void Setting_View::slot_Language()
{
    qCDebug(lcPanel) << "Setting_View::slot_Language()";
    widget_Language->move(btn_Language->x() + widget_Grid->x(),
                          btn_Language->y() + btn_Language->height() + widget_Grid->y() + 1);
    widget_Language->raise();
    widget_Language->show();
    widget_Language->setFocus(Qt::OtherFocusReason);
}

void Setting_View::currentLanguageIndex(int index)
{
    qCDebug(lcPanel) << "Setting_View::currentLanguageIndex" << index;
    currentLanguage = index;
    settingData.languageIndex = index;
    refresh();
    // A choice closes the list: it hides itself once the page has the focus.
    if (widget_Language->isVisible())
        setFocus(Qt::OtherFocusReason);
    emit changeSettingData(settingData);
}

void Setting_View::setSettingData(SettingData data)
{
    qCDebug(lcPanel) << "Setting_View::setSettingData";
    if (!extendedFeatures) {
        switch_CurrentLocation->hide();
        label_CurrentLocation->hide();
    }
    settingData = data;
    refresh();
}

void Setting_View::updateLanguage_Setting()
{
    qCDebug(lcPanel) << "Setting_View::updateLanguage_Setting()";
    refresh();
}

void Setting_View::refresh()
{
    const int index = settingData.languageIndex;
    label_Language->setText(tr("Language"));
    if (index >= 0 && index < kCodeCount)
        btn_Language->setText(tr(kCodes[index]));

    label_AutoRun->setStyleSheet(autoRunStyle(autoRunFontSize(index)));

    switch_AutoUpdate->setChecked(settingData.autoUpdate);
    switch_AutoRun->setChecked(settingData.autoRun);
    switch_CurrentLocation->setChecked(settingData.currentLocation);

    const QString versionCaption = tr("Version") + QLatin1Char(':');
    label_Version->setStyleSheet(fittingCaptionStyle(label_Version, versionCaption));
    label_Version->setText(versionCaption);
    QString version = programVersion;
    if (version == QLatin1String(kSpecialVersion))
        version += QLatin1String(kSpecialSuffix);
    label_Version_Value->setText(version);

    label_AutoRun->setText(tr("Run NORVALEX RGB Program when Windows starts."));
    label_AutoUpdate->setText(tr("Auto Update"));
    label_CurrentLocation->setText(tr("Current_Location"));
}

void Setting_View::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRect(widget_Grid->x() + btn_Language->x(),
                           widget_Grid->y() + btn_Language->y() + btn_Language->height(),
                           btn_Language->width(), 1),
                     kUnderline);
}
