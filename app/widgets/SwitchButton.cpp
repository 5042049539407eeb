#include "SwitchButton.h"

#include "Log.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPropertyAnimation>

namespace {

constexpr int SlideDuration = 100; // ms
const QColor TrackColor(48, 48, 48);
const QString KnobOffPicture = QStringLiteral(":/QXRGBMemory/Images/Btn_Switch_OFF.png");
const QString KnobOnPicture = QStringLiteral(":/QXRGBMemory/Images/Btn_Switch_ON.png");

} // namespace

SwitchButton::SwitchButton(int width, int height, QWidget* parent) : QWidget(parent)
{
    resize(width, height);
    // Reached by Tab and switched by Space; a mouse click does not take the focus.
    setFocusPolicy(Qt::TabFocus);

    label_Knob = new QLabel(this);
    label_Knob->setFixedSize(height, height);
    label_Knob->setPixmap(QPixmap(KnobOffPicture));
    label_Knob->move(offPosition());

    // A pill of the widget's size: two end circles joined by a rectangle.
    trackPath = new QPainterPath();
    trackPath->moveTo(width, height);
    trackPath->setFillRule(Qt::WindingFill);
    trackPath->addEllipse(width - height, 0, height, height);
    trackPath->addEllipse(0, 0, height, height);
    trackPath->addRect(height * 0.5, 0, width - height, height);

    knobAnimation = new QPropertyAnimation(label_Knob, "pos", this);
    knobAnimation->setEasingCurve(QEasingCurve::Linear);
    knobAnimation->setDuration(SlideDuration);
}

SwitchButton::~SwitchButton()
{
    delete trackPath;
}

QPoint SwitchButton::offPosition() const
{
    return QPoint(1, 0);
}

QPoint SwitchButton::onPosition() const
{
    return QPoint(width() - label_Knob->height() - 1, 0);
}

void SwitchButton::showKnobPicture()
{
    label_Knob->setPixmap(QPixmap(checked ? KnobOnPicture : KnobOffPicture));
}

void SwitchButton::_checkBtn()
{
    // A click during the slide is not taken.
    if (knobAnimation->state() == QAbstractAnimation::Running)
        return;
    knobAnimation->setStartValue(checked ? onPosition() : offPosition());
    knobAnimation->setEndValue(checked ? offPosition() : onPosition());
    knobAnimation->start();
    checked = !checked;
    qCDebug(lcPanel) << "SwitchButton::_checkBtn" << checked;
    showKnobPicture();
}

void SwitchButton::setChecked(bool on)
{
    checked = on;
    label_Knob->move(on ? onPosition() : offPosition());
    showKnobPicture();
    update();
}

void SwitchButton::click()
{
    const bool before = checked;
    _checkBtn();
    update();
    if (checked != before) {
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(this, changed);
        QAccessible::updateAccessibility(&event);
    }
    emit sigClicked(checked);
}

void SwitchButton::mouseReleaseEvent(QMouseEvent* event)
{
    click();
    QWidget::mouseReleaseEvent(event);
}

void SwitchButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Select:
        click();
        event->accept();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void SwitchButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(TrackColor);
    painter.drawPath(*trackPath);
}
