#include "Palette_draw_rect.h"

#include <QBitmap>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr int InitialSize = 340;
const QString ShapeFile = QStringLiteral("Images/other_back.png");
const QColor BandFill(192, 192, 192, 100);
constexpr qreal BandPenWidth = 2.0;

} // namespace

Palette_draw_rect::Palette_draw_rect(QWidget* parent) : QWidget(parent)
{
    // An optional shape picture beside the program; normally absent, and then there is no mask.
    const QPixmap shape(ShapeFile);
    setAutoFillBackground(true);
    setGeometry(0, 0, InitialSize, InitialSize);
    if (!shape.isNull())
        setMask(shape.scaled(size()).createHeuristicMask());

    QPalette transparent = palette();
    for (int group = 0; group < QPalette::NColorGroups; ++group)
        transparent.setBrush(QPalette::ColorGroup(group), QPalette::Window,
                             QBrush(QColor(0, 0, 0, 0)));
    setPalette(transparent);
}

Palette_draw_rect::~Palette_draw_rect() = default;

void Palette_draw_rect::setRect(int x, int y, int width, int height)
{
    rectX = x;
    rectY = y;
    rectWidth = width;
    rectHeight = height;
    update();
}

QRect Palette_draw_rect::bandRect() const
{
    return QRect(rectX, rectY, rectWidth, rectHeight);
}

void Palette_draw_rect::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, BandPenWidth, Qt::DashDotLine, Qt::RoundCap, Qt::BevelJoin));
    painter.setBrush(BandFill);
    // A drag to the left or upwards stores a negative extent; the band covers the same area.
    painter.drawRect(QRectF(rectX, rectY, rectWidth, rectHeight).normalized());
}
