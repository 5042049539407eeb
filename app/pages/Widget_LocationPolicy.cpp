#include "Widget_LocationPolicy.h"

#include "Log.h"

#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace {

const char kTitleStyle[] = "color:white; font: bold; font-family: Arial; font-size:25px;";
const char kContentStyle[] = "color:white; font-family: Arial; font-size:16px;";
const char kCheckBoxStyle[] = "QCheckBox { color:white; font-family: Arial; font-size:14px;}"
                              "QCheckBox::indicator { subcontrol-position: left; }";
const char kOkButtonStyle[] =
    "QPushButton {font-family: Arial; font-size:15px; color:white; border:none; "
    "border-radius:6px; background-color:rgb(32,158,199);}"
    "QPushButton:hover {background-color:rgb(52,178,219);}"
    "QPushButton:pressed {background-color:rgb(22,128,162);}";

const QSize kWindowSize(400, 230);
const QColor kBackground(50, 50, 50);
const qreal kCornerRadius = 15;

const int kTitleTop = 10;
const int kTitleHeight = 50;
const int kContentLeft = 40;
const int kContentTop = 60;
const int kCheckBoxWidth = 70;
const int kCheckBoxHeight = 30;
const int kCheckBoxBottomOffset = 70;
const QSize kOkButtonSize(80, 30);
const int kOkButtonBottomOffset = 40;

} // namespace

Widget_LocationPolicy::Widget_LocationPolicy(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowFlags(Qt::FramelessWindowHint);
    resize(kWindowSize);
    setWindowTitle(tr("NORVALEX Privacy Policy"));
    setObjectName(QStringLiteral("NORVALEXLocationPolicy"));

    label_Title = new QLabel(this);
    label_Title->setGeometry(0, kTitleTop, width(), kTitleHeight);
    label_Title->setAlignment(Qt::AlignCenter);
    label_Title->setStyleSheet(QLatin1String(kTitleStyle));

    label_Content = new QLabel(this);
    label_Content->setGeometry(kContentLeft, kContentTop, width() - 2 * kContentLeft,
                               height() - 130);
    label_Content->setAlignment(Qt::AlignCenter);
    label_Content->setWordWrap(true);
    label_Content->setStyleSheet(QLatin1String(kContentStyle));

    check_notRemind = new QCheckBox(this);
    check_notRemind->setStyleSheet(QLatin1String(kCheckBoxStyle));
    check_notRemind->setCursor(Qt::PointingHandCursor);
    connect(check_notRemind, &QCheckBox::clicked, this, &Widget_LocationPolicy::RemindChange);

    btn_OK = new QPushButton(this);
    btn_OK->setGeometry(width() / 2 - kOkButtonSize.width() / 2, height() - kOkButtonBottomOffset,
                        kOkButtonSize.width(), kOkButtonSize.height());
    btn_OK->setStyleSheet(QLatin1String(kOkButtonStyle));
    btn_OK->setCursor(Qt::PointingHandCursor);
    connect(btn_OK, &QPushButton::released, this, &Widget_LocationPolicy::pushOK);

    label_Title->setObjectName(QStringLiteral("label_Title"));
    label_Content->setObjectName(QStringLiteral("label_Content"));
    check_notRemind->setObjectName(QStringLiteral("check_notRemind"));
    btn_OK->setObjectName(QStringLiteral("btn_OK"));

    retranslate();
    qCDebug(lcPanel) << "check_notRemind" << check_notRemind->size();
}

void Widget_LocationPolicy::retranslate()
{
    btn_OK->setText(tr("OK"));
    check_notRemind->setText(tr("Location_Not_Remind"));
    label_Content->setText(tr("Location_Warning_Content"));
    label_Title->setText(tr("Location_Warning_Title"));
    setWindowTitle(tr("NORVALEX Privacy Policy"));
    placeCheckBox();
}

// Centred at its usual 70-pixel width; a longer caption widens it evenly on both sides.
void Widget_LocationPolicy::placeCheckBox()
{
    check_notRemind->ensurePolished();
    const int boxWidth = qMax(kCheckBoxWidth, check_notRemind->sizeHint().width());
    check_notRemind->setGeometry(width() / 2 - boxWidth / 2, height() - kCheckBoxBottomOffset,
                                 boxWidth, kCheckBoxHeight);
}

void Widget_LocationPolicy::RemindChange(bool checked)
{
    qCDebug(lcPanel) << "Widget_LocationPolicy::RemindChange()" << checked;
    notRemind = checked;
}

void Widget_LocationPolicy::pushOK()
{
    qCDebug(lcPanel) << "Widget_LocationPolicy::pushOK()";
    emit sendPushOK(notRemind);
    close();
}

void Widget_LocationPolicy::mousePressEvent(QMouseEvent* event)
{
    pressPosition = event->pos();
    dragging = true;
}

void Widget_LocationPolicy::mouseMoveEvent(QMouseEvent* event)
{
    if (dragging)
        move(pos() + (event->pos() - pressPosition));
}

void Widget_LocationPolicy::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    qCDebug(lcPanel) << "mouse release";
    dragging = false;
}

void Widget_LocationPolicy::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::transparent);
    painter.setBrush(kBackground);
    painter.drawRoundedRect(QRect(0, 0, width() - 1, height() - 1), kCornerRadius, kCornerRadius,
                            Qt::AbsoluteSize);
}
