#include "Widget_Light_Mode_View.h"

#include "Log.h"

#include <QGridLayout>
#include <QPainter>
#include <QPushButton>

#include <algorithm>
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
                   "background-color:gray;}");

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
