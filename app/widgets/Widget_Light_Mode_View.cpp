#include "Widget_Light_Mode_View.h"

#include "FocusRing.h"
#include "Log.h"

#include <QAccessible>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace {

constexpr int GridMargin = 10;
constexpr int GridSpacing = 10;
constexpr int RowsPerColumn = 5;
const QColor PanelColor(40, 40, 40, 240);
const QColor PanelBorderColor(20, 20, 20);

const QString ModeButtonStyle =
    QStringLiteral("QPushButton {font-family: Arial; font-size:12px;color: gray;  "
                   "background-color:rgba(0,0,0,0);}QPushButton:hover:!pressed {color:black; "
                   "background-color:gray;}"
                   "QPushButton[keyboardCurrent=\"true\"] {color:white; border:2px solid %1;}")
        .arg(FocusRing::Accent.name());
const char* const CurrentProperty = "keyboardCurrent";

// Modes that a module may report but that are never offered for picking.
constexpr int HiddenModes[] = {7, 11, 12, 13, 16, 20, 22, 23, 29, 35};

} // namespace

Widget_Light_Mode_View::Widget_Light_Mode_View(int width, int height, QWidget* parent)
    : QWidget(parent)
{
    resize(width, height);
    setFocusPolicy(Qt::ClickFocus);

    gridLayout = new QGridLayout(this);
    gridLayout->setContentsMargins(GridMargin, GridMargin, GridMargin, GridMargin);
    gridLayout->setSpacing(GridSpacing);

    for (QPushButton*& button : btn_LightModes) {
        // Parentless until placed in the grid.
        button = new QPushButton();
        button->setStyleSheet(ModeButtonStyle);
        // The panel keeps the focus, so that picking a mode does not close it under the pointer.
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QPushButton::released, this,
                &Widget_Light_Mode_View::slot_SelectLightMode);
    }
}

Widget_Light_Mode_View::~Widget_Light_Mode_View()
{
    for (QPushButton* button : btn_LightModes) {
        if (!button->parent())
            delete button;
    }
}

bool Widget_Light_Mode_View::isOffered(int lightMode)
{
    return std::find(std::begin(HiddenModes), std::end(HiddenModes), lightMode) ==
           std::end(HiddenModes);
}

void Widget_Light_Mode_View::setLightModeMap(const QMap<int, QString>& lightModeMap)
{
    int count = 0;
    for (auto it = lightModeMap.constBegin(); it != lightModeMap.constEnd(); ++it) {
        const int value = it.key();
        qCDebug(lcPanel) << "lightModeIndex:  " << value << " ,lightModeString :" << it.value();
        if (value >= 0 && value <= 35 && !isOffered(value)) {
            qCDebug(lcPanel) << "aaaaa = " << value;
            continue;
        }
        if (value < 0 || value >= ButtonCount)
            continue;
        QPushButton* button = btn_LightModes[value];
        button->setText(it.value());
        button->setObjectName(QString::number(value));
        const int row = count % RowsPerColumn;
        const int column = count / RowsPerColumn;
        const int index = gridLayout->indexOf(button);
        int placedRow = -1;
        int placedColumn = -1;
        int rowSpan = 0;
        int columnSpan = 0;
        if (index >= 0)
            gridLayout->getItemPosition(index, &placedRow, &placedColumn, &rowSpan, &columnSpan);
        if (placedRow != row || placedColumn != column) {
            if (index >= 0)
                gridLayout->removeWidget(button);
            gridLayout->addWidget(button, row, column);
            button->show();
        }
        ++count;
        qCDebug(lcPanel) << "modeCount:" << count;
    }
    qCDebug(lcPanel) << "lightModeMap.count():" << lightModeMap.count();
    setLayout(gridLayout);
}

void Widget_Light_Mode_View::slot_SelectLightMode()
{
    const QObject* button = sender();
    if (!button)
        return;
    const QString name = button->objectName();
    qCDebug(lcPanel) << "btn:" << name;
    emit selectLightMode(name.toInt());
}

void Widget_Light_Mode_View::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setBrush(PanelColor);
    painter.setPen(QPen(PanelBorderColor, 1, Qt::SolidLine));
    painter.drawRect(0, 0, width() - 1, height() - 1);
}

void Widget_Light_Mode_View::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // Closing on focus loss needs the panel to hold the focus while it is open.
    setFocus(Qt::PopupFocusReason);
}

void Widget_Light_Mode_View::focusInEvent(QFocusEvent* event)
{
    qCDebug(lcPanel) << "focusInEvent";
    QWidget::focusInEvent(event);
}

void Widget_Light_Mode_View::focusOutEvent(QFocusEvent* event)
{
    qCDebug(lcPanel) << "focusOutEvent";
    QWidget::focusOutEvent(event);
    if (isVisible())
        hide();
}

void Widget_Light_Mode_View::hideEvent(QHideEvent* event)
{
    // The highlight is for one keyboard visit; a mouse user never sees it.
    setCurrent(nullptr);
    QWidget::hideEvent(event);
}

QVector<QPushButton*> Widget_Light_Mode_View::orderedButtons() const
{
    QVector<QPushButton*> buttons(ButtonCount, nullptr);
    for (int i = 0; i < gridLayout->count(); ++i) {
        int row = -1, column = -1, rowSpan = 0, columnSpan = 0;
        gridLayout->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
        const int index = column * RowsPerColumn + row;
        if (index >= 0 && index < ButtonCount)
            buttons[index] = qobject_cast<QPushButton*>(gridLayout->itemAt(i)->widget());
    }
    buttons.removeAll(nullptr);
    return buttons;
}

void Widget_Light_Mode_View::setCurrent(QPushButton* button)
{
    if (button == current)
        return;
    for (QPushButton* changed : {current, button}) {
        if (!changed)
            continue;
        changed->setProperty(CurrentProperty, changed == button);
        changed->style()->unpolish(changed);
        changed->style()->polish(changed);
    }
    current = button;
    if (button && isVisible()) {
        // Screen readers follow the highlight as if it were the focus.
        QAccessibleEvent focus(button, QAccessible::Focus);
        QAccessible::updateAccessibility(&focus);
    }
}

void Widget_Light_Mode_View::highlight(int lightMode)
{
    const QVector<QPushButton*> buttons = orderedButtons();
    if (buttons.isEmpty())
        return;
    QPushButton* chosen = buttons.first();
    for (QPushButton* button : buttons) {
        if (button->objectName() == QString::number(lightMode))
            chosen = button;
    }
    setCurrent(chosen);
}

int Widget_Light_Mode_View::highlighted() const
{
    return current ? current->objectName().toInt() : -1;
}

void Widget_Light_Mode_View::moveCurrent(int step)
{
    const QVector<QPushButton*> buttons = orderedButtons();
    if (buttons.isEmpty())
        return;
    const int at = buttons.indexOf(current);
    if (at < 0) {
        setCurrent(step >= ButtonCount ? buttons.last() : buttons.first());
        return;
    }
    // Home and End, and a step into the shorter last column, stop at the ends; a step past the
    // first or last column leaves the highlight where it is.
    const int last = int(buttons.size()) - 1;
    int next = at + step;
    if (std::abs(step) >= ButtonCount)
        next = step < 0 ? 0 : last;
    else if (next > last && next / RowsPerColumn == last / RowsPerColumn)
        next = last;
    if (next >= 0 && next <= last)
        setCurrent(buttons.at(next));
}

void Widget_Light_Mode_View::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        moveCurrent(-1);
        break;
    case Qt::Key_Down:
        moveCurrent(1);
        break;
    case Qt::Key_Left:
        moveCurrent(-RowsPerColumn);
        break;
    case Qt::Key_Right:
        moveCurrent(RowsPerColumn);
        break;
    case Qt::Key_Home:
        moveCurrent(-ButtonCount);
        break;
    case Qt::Key_End:
        moveCurrent(ButtonCount);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (QPushButton* picked = current) {
            // The same path as a click: the button's release names the mode.
            picked->click();
            emit keyboardFinished();
        }
        break;
    case Qt::Key_Escape:
        emit keyboardFinished();
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
}
