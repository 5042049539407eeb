#include "Information_View.h"

#include "AccessibleDisplay.h"
#include "AppGlobals.h"
#include "Information_Slots_View.h"
#include "Log.h"

#include <QConicalGradient>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <climits>
#include <cmath>

namespace {
constexpr int kPageWidth = 800;
constexpr int kPageHeight = 510;
const char* const kPageStyle = "QWidget#Information_View { font-family: Arial; "
                               "background-color:gray;}QLabel {font-family: Arial; color:white; "
                               "font-size:18px;}";

// Slot grid and the system figures stacked under it.
constexpr int kGridX = 20;
constexpr int kGridY = 30;
constexpr int kGridHeight = 250;
constexpr int kFigureX = 20;
constexpr int kFigureGap = 40;
constexpr int kFigureHeight = 40;
constexpr int kFigureSpacing = 5;

// Used / total capacity above the gauge.
constexpr int kUsageRightInset = 190;
constexpr int kCapacityY = 35;
constexpr int kCapacityWidth = 150;
constexpr int kCapacityHeight = 60;
const char* const kUsageStyle =
    "QLabel#label_Usage {font-family: Arial; color:rgb(0,229,224); font-size:28px;}";
const char* const kTotalStyle =
    "QLabel#label_Total {font-family: Arial; color:white; font-size:28px;}";

// Texts inside and around the gauge.
const QRect kDashboardRect(450, 250, 243, 40);
const char* const kDashboardStyle =
    "QLabel#label_Dashboard{font-family: Arial; color:white; font-size:44px;}";
constexpr int kPercentX = 460;
constexpr int kPercentYBelowDashboard = 320;
constexpr int kPercentWidth = 173;
constexpr int kPercentHeight = 60;
constexpr int kPercentUnitGap = 10;
const char* const kPercentStyle =
    "QLabel#label_Percent{font-family: Arial; color:white; font-size:60px;}";
const char* const kPercentUnitStyle =
    "QLabel#label_Percent_Unit{font-family: Arial; color:white; font-size:24px;}";
const QRect kLowRect(340, 320, 90, 40);
const QRect kHighRect(705, 320, 90, 40);
const char* const kLowStyle =
    "QLabel#label_Dashboard_Low{font-family: Arial; color:white; font-size:28px;}";
const char* const kHighStyle =
    "QLabel#label_Dashboard_High{font-family: Arial; color:white; font-size:28px;}";
const char* const kHighStyleCompact =
    "QLabel#label_Dashboard_High{font-family: Arial; color:white; font-size:24px;}";
constexpr int kRussian = 7;

// The gauge.
const QRectF kGaugeRect(450.0, 165.0, 240.0, 240.0);
constexpr int kArcStart = 210 * 16;
constexpr int kTrackSpan = -240 * 16;
constexpr double kDegreesPerPercent = -2.4;
constexpr double kSpanLimitDegrees = INT_MAX / 16;
constexpr int kTrackWidth = 3;
const QColor kTrackColor(Qt::darkGray);
constexpr int kValueWidth = 20;
// The gradient centre is deliberately off the arc centre: the colours sweep unevenly.
const QPointF kGradientCentre(kGaugeRect.x() + 75, kGaugeRect.y() + 75);
constexpr qreal kGradientAngle = 320;
const QColor kGradientLow(Qt::red);
const QColor kGradientMid(QRgb(0xFF00C8FB));
const QColor kGradientHigh(QRgb(0xFF025DB6));

// Everything the gauge paints: the value arc's round caps reach half its pen beyond the circle.
const QRect kGaugeArea =
    kGaugeRect.toRect().adjusted(-kValueWidth, -kValueWidth, kValueWidth, kValueWidth);

const QRect kCapacityRule(450, 75, 243, 2);
const QColor kCapacityRuleColor(Qt::gray);
const QRect kLowMarker(435, 335, 10, 4);
const QColor kLowMarkerColor(Qt::green);
const QRect kHighMarker(690, 335, 10, 4);
const QColor kHighMarkerColor(Qt::red);

QString decimal(double value)
{
    return QString::number(value, 'g', 6);
}
} // namespace

Information_View::Information_View(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setGeometry(0, 0, kPageWidth, kPageHeight);
    setObjectName(QStringLiteral("Information_View"));
    setStyleSheet(QString::fromLatin1(kPageStyle));

    // The gauge is painted by the page; this empty widget over it carries its name and value.
    gauge = new QWidget(this);
    gauge->setObjectName(QStringLiteral("gauge_MemoryLoad"));
    gauge->setGeometry(kGaugeRect.toRect());
    gauge->setAttribute(Qt::WA_TransparentForMouseEvents);
    AccessibleDisplay::expose(gauge, QAccessible::ProgressBar);
    describeGauge();

    information_Slots_View = new Information_Slots_View(this);
    information_Slots_View->setGeometry(kGridX, kGridY, width() / 2 - kGridX, kGridHeight);
    information_Slots_View->setupSlotButtons(NX_MODULE_COUNT);

    const Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter;
    QRect figure(kFigureX, information_Slots_View->height() + kFigureGap, width() / 2,
                 kFigureHeight);
    label_Channel = makeLabel("label_Channel", figure, left);
    figure.moveTop(figure.y() + figure.height() + kFigureSpacing);
    label_CL = makeLabel("label_CL", figure, left);
    figure.moveTop(figure.y() + figure.height() + kFigureSpacing);
    label_tRCD = makeLabel("label_tRCD", figure, left);
    figure.moveTop(figure.y() + figure.height() + kFigureSpacing);
    label_Frequency = makeLabel("label_Frequency", figure, left);
    label_Channel->setText(tr("Channel:") % QStringLiteral("Dual"));
    label_CL->setText(tr("CAS# Latency (CL):") % QStringLiteral("8"));
    label_tRCD->setText(tr("RAS# to CAS# Delay (tRCD):") % QStringLiteral("6"));
    label_Frequency->setText(tr("Frequency:"));

    const QRect usage(width() * 3 / 4 - kUsageRightInset, kCapacityY, kCapacityWidth,
                      kCapacityHeight);
    // Top-aligned so the figures stand clear of the rule drawn under them.
    label_Usage = makeLabel("label_Usage", usage, Qt::AlignRight | Qt::AlignTop);
    label_Usage->setStyleSheet(QString::fromLatin1(kUsageStyle));
    label_Total =
        makeLabel("label_Total", usage.translated(usage.width(), 0), Qt::AlignLeft | Qt::AlignTop);
    label_Total->setStyleSheet(QString::fromLatin1(kTotalStyle));

    label_Dashboard = makeLabel("label_Dashboard", kDashboardRect, Qt::AlignCenter);
    label_Dashboard->setStyleSheet(QString::fromLatin1(kDashboardStyle));
    label_Dashboard->setText(tr("Load"));

    const QRect percent(kPercentX, label_Dashboard->height() + kPercentYBelowDashboard,
                        kPercentWidth, kPercentHeight);
    label_Percent =
        makeLabel("label_Percent", percent, Qt::AlignRight | Qt::AlignHCenter | Qt::AlignVCenter);
    label_Percent->setStyleSheet(QString::fromLatin1(kPercentStyle));
    label_Percent->setText(QStringLiteral("30 %"));
    const QRect unit(percent.x() + percent.width() + kPercentUnitGap, percent.y(), percent.height(),
                     percent.height());
    QLabel* label_Percent_Unit =
        makeLabel("label_Percent_Unit", unit, Qt::AlignLeft | Qt::AlignBottom);
    label_Percent_Unit->setStyleSheet(QString::fromLatin1(kPercentUnitStyle));
    label_Percent_Unit->setText(QStringLiteral("%"));

    label_Dashboard_Low =
        makeLabel("label_Dashboard_Low", kLowRect, Qt::AlignRight | Qt::AlignVCenter);
    label_Dashboard_Low->setText(tr("Low"));
    label_Dashboard_Low->setStyleSheet(QString::fromLatin1(kLowStyle));
    label_Dashboard_High = makeLabel("label_Dashboard_High", kHighRect, left);
    label_Dashboard_High->setText(tr("High"));
    label_Dashboard_High->setStyleSheet(QString::fromLatin1(kHighStyle));
}

QLabel* Information_View::makeLabel(const char* name, const QRect& geometry,
                                    Qt::Alignment alignment)
{
    auto* label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setGeometry(geometry);
    label->setAlignment(alignment);
    return label;
}

int Information_View::valueArcSpan(double memoryLoad)
{
    const double degrees = memoryLoad * kDegreesPerPercent;
    if (!std::isfinite(degrees))
        return 0;
    return int(std::clamp(degrees, -kSpanLimitDegrees, kSpanLimitDegrees)) * 16;
}

void Information_View::setSystemData(HWData* /*data*/)
{
    qCDebug(lcPanel) << "Information_View::setSystemData";
    qCDebug(lcPanel) << "Information_View::setSystemData---end";
}

void Information_View::setSystemData1(HWData data)
{
    label_Frequency->setText(QStringLiteral("Clock: ") % decimal(data.frequency));
    label_tRCD->setText(QStringLiteral("RAS# to CAS# Delay (tRCD): ") % QString::number(data.tRCD));
    label_Percent->setText(decimal(data.memoryLoad));
    memoryLoad = data.memoryLoad;
    describeGauge();

    qCDebug(lcPanel) << "Information_View::physicalMemoryUsed:" << data.physicalMemoryUsed;
    for (int i = 0; i < NX_MODULE_COUNT; ++i)
        qCDebug(lcPanel) << "Information_View::slotIndex:" << i << data.slotIndex[i];
    qCDebug(lcPanel) << "Information_View::memoryCount:" << data.memoryCount;

    qint64 total = 0;
    for (int i = 0; i < NX_MODULE_COUNT; ++i) {
        if (data.slotIndex[i] < 0)
            continue;
        const MemoryModuleData& module = data.memoryData[i];
        qCDebug(lcPanel) << "Information_View::memoryModuleSize:" << module.memoryModuleSize;
        qCDebug(lcPanel) << "Information_View::memorySlot:" << module.memorySlot;
        total += module.memoryModuleSize;
    }
    label_Total->setText(QString::number(total / 1024) % QStringLiteral(" GB / ") %
                         QString::number(data.physicalMemoryUsed / 1024) % QStringLiteral("GB"));

    information_Slots_View->setModuleData(data.memoryData);
    qCDebug(lcPanel) << "12332112345678";
}

void Information_View::setHWData(HWData data)
{
    const QString na = QStringLiteral("N/A");

    if (data.tRCD < 0)
        label_tRCD->setText(tr("RAS# to CAS# Delay (tRCD):") % na);
    else
        label_tRCD->setText(tr("RAS# to CAS# Delay (tRCD):") % QString::number(data.tRCD));

    label_Percent->setText(data.memoryLoad < 0 ? na : decimal(data.memoryLoad));
    memoryLoad = data.memoryLoad;
    describeGauge();

    switch (data.channel) {
    case 0:
        label_Channel->setText(tr("Channel:") % QStringLiteral(" N/A"));
        break;
    case 2:
        label_Channel->setText(tr("Channel:") % QStringLiteral("Dual"));
        break;
    case 4:
        label_Channel->setText(tr("Channel:") % QStringLiteral("Quad"));
        break;
    default:
        label_Channel->setText(tr("Channel:") % na);
        break;
    }

    if (data.casLatency < 0)
        label_CL->setText(tr("CAS# Latency (CL):") % na);
    else
        label_CL->setText(tr("CAS# Latency (CL):") % decimal(data.casLatency));
    if (data.frequency < 0)
        label_Frequency->setText(tr("Frequency:") % na);
    else
        label_Frequency->setText(tr("Frequency:") % decimal(data.frequency));

    qint64 total = 0;
    for (int i = 0; i < NX_MODULE_COUNT; ++i) {
        const int size = data.memoryData[i].memoryModuleSize;
        qCDebug(lcPanel).nospace() << "hwData.memoryData[" << i << "].memoryModuleSize:" << size
                                   << " " << data.slotIndex[i];
        if (data.slotIndex[i] >= 0)
            total += size;
    }
    if (total > 0) {
        label_Total->setText(QStringLiteral(" / ") % QString::number(total / 1024) %
                             QStringLiteral(" GB"));
        label_Usage->setText(QString::number(data.physicalMemoryUsed / 1024) %
                             QStringLiteral("GB"));
    } else {
        label_Total->setText(na);
        label_Usage->clear();
    }

    label_Percent->setText(memoryLoad < 0 ? na : QString::number(memoryLoad, 'f', 2));

    information_Slots_View->setModuleData(data.memoryData);
    // The page paints only the gauge, and a refresh changes at most its arc: the rest of the
    // page sent again to the window system every second cost more than the whole refresh.
    if (shownArcSpan != valueArcSpan(memoryLoad))
        update(kGaugeArea);
}

void Information_View::updateLanguage_Info()
{
    qCDebug(lcPanel) << "Information_View::updateLanguage_Info()" << currentLanguage;
    label_Dashboard_High->setStyleSheet(
        QString::fromLatin1(currentLanguage == kRussian ? kHighStyleCompact : kHighStyle));
    label_Dashboard->setText(tr("Load"));
    describeGauge();
    label_Dashboard_Low->setText(tr("Low"));
    label_Dashboard_High->setText(tr("High"));
}

void Information_View::describeGauge()
{
    gauge->setAccessibleName(tr("Load"));
    AccessibleDisplay::setValue(gauge, memoryLoad < 0
                                           ? QStringLiteral("N/A")
                                           : QStringLiteral("%1%").arg(qRound(memoryLoad)));
}

void Information_View::paintEvent(QPaintEvent* event)
{
    if (QRegion(kGaugeArea).subtracted(event->region()).isEmpty())
        shownArcSpan = valueArcSpan(memoryLoad);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawTrack(painter);
    drawValueArc(painter);
    drawMarkers(painter);
}

void Information_View::drawTrack(QPainter& painter)
{
    painter.setPen(QPen(kTrackColor, kTrackWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(kGaugeRect, kArcStart, kTrackSpan);
}

void Information_View::drawValueArc(QPainter& painter)
{
    QConicalGradient gradient(kGradientCentre, kGradientAngle);
    gradient.setColorAt(0.0, kGradientLow);
    gradient.setColorAt(0.4, kGradientMid);
    gradient.setColorAt(0.7, kGradientHigh);
    painter.setPen(QPen(QBrush(gradient), kValueWidth, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(kGaugeRect, kArcStart, valueArcSpan(memoryLoad));
}

void Information_View::drawMarkers(QPainter& painter)
{
    painter.setPen(kCapacityRuleColor);
    painter.setBrush(kCapacityRuleColor);
    painter.drawRect(kCapacityRule);
    painter.setPen(kLowMarkerColor);
    painter.setBrush(kLowMarkerColor);
    painter.drawRect(kLowMarker);
    painter.setPen(kHighMarkerColor);
    painter.setBrush(kHighMarkerColor);
    painter.drawRect(kHighMarker);
}
