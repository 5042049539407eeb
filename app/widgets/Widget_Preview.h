#pragma once

#include "PreviewLayers.h"
#include "norvalex_lighting.h"

#include <QGradientStops>
#include <QList>
#include <QMutex>
#include <QWidget>

class QPainter;

// Live picture of the installed modules: one vertical bar per slot, filled with a gradient of
// the LED colours that the lighting library is currently showing.
class Widget_Preview : public QWidget
{
    Q_OBJECT

public:
    static constexpr int MaxSlots = 8;
    static constexpr int MaxLeds = 8;

    explicit Widget_Preview(QWidget* parent = nullptr);
    ~Widget_Preview() override;

    // None of the setters repaints; the next paint uses the new values.
    void setSlotNum(int n);
    void setModuleNum(int n);
    void setLEDNum(int count, const int* ledNum);
    void setSlotsOrder(int count, const int* order);

    // Left edge of the bar standing in the given column, for the given number of slot bars.
    static int barX(int column, int slotCount);
    // Gradient stops of one module's bar (an 8-LED module leaves LEDs 3 and 4 to the ornament).
    static QGradientStops gradientStops(const COLORREF* colors, int ledCount);

    // What the preview shows, for assistive technology: per bar its slot and its LED colours.
    Q_INVOKABLE QString accessibleValue() const;

public slots:
    // May run on any thread: copies the colours and asks for a repaint only when they changed.
    void updatePreviewList(QList<COLORREF*> list);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void drawFrame(QPainter& painter, const QRegion& exposed, int slotCount);
    void drawBar(QPainter& painter, int entry, int x, const COLORREF* colors);
    void drawOrnament(QPainter& painter, int x, const COLORREF* colors);
    // What the bar of the given entry, standing at x, and its ornament may touch.
    QRegion barArea(int entry, int x) const;
    // Repaints the bars of the entries flagged in changedEntries since the last call.
    void updateChangedBars();

    mutable QMutex colorMutex;
    COLORREF previewColor[MaxSlots][MaxLeds] = {};
    int slotNum = 0;
    int ledNum[MaxSlots] = {};
    int slotIndex[MaxSlots] = {0, 1, 2, 3, 4, 5, 6, 7};
    int moduleNum = 0;
    unsigned changedEntries = 0; // bit i: entry i changed, guarded by colorMutex
    PreviewLayers layers;
};
