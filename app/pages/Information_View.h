#pragma once

#include "norvalex_lighting.h"

#include <QWidget>

#include <optional>

class Information_Slots_View;
class QLabel;
class QPainter;

// The Information page: system memory figures, the memory-load gauge with used and total
// capacity, and the slot grid with the figures of one module.
class Information_View : public QWidget
{
    Q_OBJECT

public:
    explicit Information_View(QWidget* parent = nullptr);

    Information_Slots_View* slotsView() const { return information_Slots_View; }

    // Span of the value arc in sixteenths of a degree: 2.4 degrees per percent, clockwise,
    // whole degrees only.
    static int valueArcSpan(double memoryLoad);

public slots:
    void setSystemData(HWData* data);
    void setSystemData1(HWData data);
    void setHWData(HWData data);
    void updateLanguage_Info();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void describeGauge();
    QLabel* makeLabel(const char* name, const QRect& geometry, Qt::Alignment alignment);
    void drawTrack(QPainter& painter);
    void drawValueArc(QPainter& painter);
    void drawMarkers(QPainter& painter);

    Information_Slots_View* information_Slots_View = nullptr;
    QLabel* label_Channel = nullptr;
    QLabel* label_CL = nullptr;
    QLabel* label_tRCD = nullptr;
    QLabel* label_Total = nullptr;
    QLabel* label_Usage = nullptr;
    QLabel* label_Dashboard = nullptr;
    QLabel* label_Dashboard_Low = nullptr;
    QLabel* label_Dashboard_High = nullptr;
    QLabel* label_Percent = nullptr;
    QLabel* label_Frequency = nullptr;
    double memoryLoad = 0.0;
    // The value arc's span on screen; none is there before the first full paint of the gauge.
    std::optional<int> shownArcSpan;
    QWidget* gauge = nullptr;
};
