#include "Loading_View.h"

#include "Log.h"
#include "Platform.h"

#include <QConicalGradient>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTimer>

namespace {
constexpr int kViewWidth = 1000;
constexpr int kViewHeight = 600;

constexpr int kAngleStep = 20;
constexpr int kFrameIntervalMs = 40;

const QColor kShadeColor(0, 0, 0, 200);
// The ring sits right of the middle, over the page area rather than the whole window.
constexpr int kSpinnerOffsetX = 53;
constexpr int kSpinnerRadius = 40;
constexpr int kSpinnerPenWidth = 10;
const QColor kSpinnerHead(128, 128, 128);
const QColor kSpinnerBody(30, 30, 30, 150);
const QColor kSpinnerTail(0, 0, 0, 0);

constexpr int kWarningWidth = 434;
constexpr int kWarningHeight = 130;
constexpr int kButtonWidth = 50;
constexpr int kButtonHeight = 20;
constexpr int kButtonBottomGap = 30;

const char* const kWarningStyle = "QLabel#label_Warning {background-color:rgb(70,70,70);}";
const char* const kWarningContentStyle =
    "QLabel#label_Warning_Content {font-family: Arial; color:white; font-size:18px; "
    "background-color:rgb(70,70,70);}";
const char* const kButtonStyle =
    "QPushButton#btn_OK{font-family: Arial; font-size:12px; color:white; border-radius:10px; "
    "background-color:rgba(0,0,0,0);border:1px solid white;}"
    "QPushButton#btn_OK:hover{font-family: Arial; font-size:12px; color:rgb(70,70,70); "
    "border-radius:10px; background-color:white;border:1px solid white;}";

const wchar_t* const kPanelMutex = L"NORVALEX RGB.exe";
const wchar_t* const kPanelWindow = L"NORVALEX RGB";
const wchar_t* const kControlMutex = L"NORVALEX Control.exe";
const wchar_t* const kControlWindow = L"NORVALEX RGB Control";

// Holds the name briefly to learn whether another holder has it.
bool nameIsHeld(const wchar_t* name)
{
    bool exists = false;
    Platform::MutexHandle handle = Platform::createMutex(name, &exists);
    Platform::closeHandle(handle);
    return exists;
}

void sendQuit(const wchar_t* title)
{
    const Platform::WindowHandle window = Platform::findWindow(title);
    qCDebug(lcPanel) << "hwnd = " << window;
    Platform::sendMessage(window, Platform::kMessageQuit, 1, 1);
}
} // namespace

Loading_View::Loading_View(QWidget* parent) : QWidget(parent)
{
    resize(kViewWidth, kViewHeight);

    timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &Loading_View::rotate, Qt::DirectConnection);

    label_Warning = new QLabel(this);
    label_Warning->setObjectName(QStringLiteral("label_Warning"));
    label_Warning->hide();
    label_Warning->setGeometry((width() - kWarningWidth) / 2, (height() - kWarningHeight) / 2,
                               kWarningWidth, kWarningHeight);
    label_Warning->setStyleSheet(QString::fromLatin1(kWarningStyle));

    label_Warning_Content = new QLabel(label_Warning);
    label_Warning_Content->setObjectName(QStringLiteral("label_Warning_Content"));
    label_Warning_Content->setStyleSheet(QString::fromLatin1(kWarningContentStyle));
    label_Warning_Content->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    label_Warning_Content->setWordWrap(true);
    label_Warning_Content->setGeometry(0, 0, label_Warning->width(), label_Warning->height() / 2);

    btn_OK = new QPushButton(label_Warning);
    btn_OK->setObjectName(QStringLiteral("btn_OK"));
    btn_OK->setGeometry((label_Warning->width() - kButtonWidth) / 2,
                        label_Warning->height() - kButtonBottomGap, kButtonWidth, kButtonHeight);
    btn_OK->setStyleSheet(QString::fromLatin1(kButtonStyle));
    btn_OK->setCursor(Qt::PointingHandCursor);
    connect(btn_OK, &QPushButton::released, this, &Loading_View::slot_CloseApp);
    applyTexts();
}

void Loading_View::applyTexts()
{
    label_Warning_Content->setText(tr("Can not Find QX NORVALEX"));
    btn_OK->setText(tr("OK"));
}

void Loading_View::changeEvent(QEvent* event)
{
    // The overlay exists before the stored language is known; follow later changes.
    if (event->type() == QEvent::LanguageChange)
        applyTexts();
    QWidget::changeEvent(event);
}

void Loading_View::isStartLoading(bool on)
{
    qCDebug(lcPanel) << "Loading_View::isStartLoading:" << on;
    isLoading = on;
    if (on) {
        show();
        if (!timer->isActive())
            timer->start(kFrameIntervalMs);
    } else {
        hide();
        if (timer->isActive())
            timer->stop();
    }
}

void Loading_View::isProductWarning(bool on)
{
    qCDebug(lcPanel) << "Loading_View::isProductWarning = " << on;
    label_Warning->setVisible(on);
}

void Loading_View::rotate()
{
    angle = (angle + kAngleStep) % 360;
    update();
}

void Loading_View::slot_CloseApp()
{
    qCDebug(lcPanel) << "Loading_View::slot_CloseApp";
    qCDebug(lcPanel) << "QXRGBMemoryControl::closeApplication";

    if (nameIsHeld(kPanelMutex)) {
        qCDebug(lcPanel) << "UI EXE有開";
        sendQuit(kPanelWindow);
    } else {
        qCDebug(lcPanel) << "UI EXE沒開";
    }

    if (nameIsHeld(kControlMutex)) {
        qCDebug(lcPanel) << "Control EXE有開";
        sendQuit(kControlWindow);
    } else {
        qCDebug(lcPanel) << "UI EXE沒開";
    }

    QCoreApplication::quit();
}

void Loading_View::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawShade(painter);
    if (isLoading)
        drawSpinner(painter);
}

void Loading_View::drawShade(QPainter& painter)
{
    painter.setPen(kShadeColor);
    painter.setBrush(kShadeColor);
    painter.drawRect(rect());
}

void Loading_View::drawSpinner(QPainter& painter)
{
    QConicalGradient gradient(0, 0, 0);
    gradient.setColorAt(0.0, kSpinnerHead);
    gradient.setColorAt(0.3, kSpinnerBody);
    gradient.setColorAt(1.0, kSpinnerTail);

    painter.setPen(QPen(QBrush(gradient), kSpinnerPenWidth));
    painter.setBrush(Qt::NoBrush);
    painter.translate(width() / 2 + kSpinnerOffsetX, height() / 2);
    painter.rotate(angle);
    painter.drawArc(QRect(-kSpinnerRadius, -kSpinnerRadius, 2 * kSpinnerRadius, 2 * kSpinnerRadius),
                    0, 360 * 16);
}
