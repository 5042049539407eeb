#pragma once

#include "norvalex_lighting.h"

#include <QWidget>

class QLabel;
class QPainter;
class QPushButton;

// One memory slot on the lighting page: a slot button on top and one round button per LED below
// it. Keeps the colours and brightness of every LED and of the whole module in single-colour
// mode; the page reads them back when it builds the records for the lighting library.
class Memory_RGB_View : public QWidget
{
    Q_OBJECT

public:
    static constexpr int LedCount = 8;

    explicit Memory_RGB_View(QWidget* parent = nullptr);
    ~Memory_RGB_View() override;

    void setSlotNumber(int slot);
    // Lays out the LED buttons for a module of 5 or 8 LEDs; any other count changes nothing.
    void setLEDNumber(int count);
    // true: the slot holds a module and its buttons are usable.
    void setDisable(bool available);
    // true: the LEDs are locked and an overlay swallows every click on the strip.
    void setEdited(bool edited);
    // Stores without repainting; the caller passes an index 0..7.
    void setRGB(int index, COLORREF color, float bright);
    void setSingleRGB(COLORREF color, float bright);

    bool isSelected() const { return selected; }
    bool isEdited() const { return edited; }

    // The style sheet that paints one LED button as a disc of the given colour.
    static QString ledStyleSheet(COLORREF color);

    // Read (and, for slotPosition, written) directly by the lighting page.
    int slotNumber = -1;
    int slotPosition = -1;
    QPushButton* btn_MemorySlot = nullptr;
    QPushButton* btn_Led[LedCount] = {};
    COLORREF ledColor[LedCount];
    COLORREF singleColor;
    float ledBright[LedCount];
    float singleBright;
    int colorMode = 0;
    bool available = false;

signals:
    void SelectMemSlot(int slot);

public slots:
    void pressRGB(COLORREF color);
    void slot_SelectMemSlot();
    void slot_SelectLED();
    void slot_ChangeBright(float bright);
    void slot_ChangeColorMode(int slot, int mode);
    void slot_Default();
    void slot_Selected(int slot, bool selected);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void paintLed(int index, COLORREF color);
    // Names the LED button by its slot, row letter and the colour it shows.
    void nameLed(int index);
    // Names the slot button and every LED button.
    void nameButtons();
    void drawFrame(QPainter& painter) const;
    void drawConnector(QPainter& painter) const;

    bool selected = false;
    bool edited = false;
    QLabel* label_BK = nullptr;
    COLORREF ledShown[LedCount] = {};
    bool ledStyled[LedCount] = {};
};
