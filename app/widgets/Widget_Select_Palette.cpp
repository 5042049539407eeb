#include "Widget_Select_Palette.h"

#include "Log.h"
#include "RGB_Palette.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int PanelSize = 200;
constexpr int WheelSize = 176;
const QColor PanelColor(40, 40, 40, 245);
const QColor PanelBorderColor(20, 20, 20);

} // namespace

Widget_Select_Palette::Widget_Select_Palette(QWidget* parent) : QWidget(parent)
{
    // Lets queued connections and signal spies carry the colour by its own name.
    qRegisterMetaType<COLORREF>("COLORREF");
    setGeometry(0, 0, PanelSize, PanelSize);
    setFocusPolicy(Qt::ClickFocus);
    // The panel picks for the mouse over its whole area; the wheel serves the keyboard.
    wheel_ = new RGB_Palette(this);
    wheel_->setGeometry((PanelSize - WheelSize) / 2, (PanelSize - WheelSize) / 2, WheelSize,
                        WheelSize);
    wheel_->setAttribute(Qt::WA_TransparentForMouseEvents);
    wheel_->setFocusPolicy(Qt::ClickFocus);
    wheel_->installEventFilter(this);
    setFocusProxy(wheel_);
    connect(wheel_, &RGB_Palette::pressRGB, this, &Widget_Select_Palette::pickedByKey);
}

Widget_Select_Palette::~Widget_Select_Palette() = default;

void Widget_Select_Palette::mousePressEvent(QMouseEvent* event)
{
    qCDebug(lcPanel) << "RGB_Palette::mousePressEvent" << event->pos().x() << event->pos().y();
    COLORREF colour = 0;
    if (!RGB_Palette::pickColour(event->pos(), size(), &colour))
        return;
    qCDebug(lcPanel) << "弹出色盘取色:" << (colour & 0xFF) << ((colour >> 8) & 0xFF)
                     << ((colour >> 16) & 0xFF);
    emit pressRGB(colour);
}

void Widget_Select_Palette::pickedByKey(COLORREF color)
{
    emit pressRGB(color);
    emit keyboardFinished();
}

void Widget_Select_Palette::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    emit keyboardFinished();
}

void Widget_Select_Palette::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(PanelColor);
    painter.setPen(QPen(PanelBorderColor, 1, Qt::SolidLine));
    painter.drawRect(0, 0, width() - 1, height() - 1);
}

void Widget_Select_Palette::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // Closing on focus loss needs the panel to hold the focus while it is open.
    setFocus(Qt::PopupFocusReason);
}

void Widget_Select_Palette::focusOutEvent(QFocusEvent* event)
{
    qCDebug(lcPanel) << "Widget_Select_Palette::focusOutEvent";
    QWidget::focusOutEvent(event);
    if (isVisible())
        hide();
}

bool Widget_Select_Palette::eventFilter(QObject* watched, QEvent* event)
{
    // The focus sits on the wheel (the panel's focus proxy), so its loss closes the panel.
    if (watched == wheel_ && event->type() == QEvent::FocusOut && isVisible()) {
        qCDebug(lcPanel) << "Widget_Select_Palette::focusOutEvent";
        hide();
    }
    return QWidget::eventFilter(watched, event);
}
