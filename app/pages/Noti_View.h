#pragma once

#include "norvalex_lighting.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class SwitchButton;
class Widget_Select_Palette;

// The notification page: four rules (memory load, memory temperature, CPU temperature and fan
// boost), each with an on/off switch and a threshold. Every change is sent at once as the whole
// record, with the changed rule marked in changedItem.
class Noti_View : public QWidget
{
    Q_OBJECT

public:
    explicit Noti_View(QWidget* parent = nullptr);

signals:
    void sendNotiData(NotiEventData notiData);

public slots:
    void slot_Loading_Switch(bool checked);
    void slot_Shutdown_Switch(bool checked);
    void slot_Shutdown_CPU_Switch(bool checked);
    void slot_FanSpeed_Switch(bool checked);
    void slot_LineEdit_Loading();
    void slot_LineEdit_Shutdown_Memory();
    void slot_LineEdit_Shutdown_CPU();
    void slot_LineEdit_FanSpeed();
    void slot_Loading_Color();
    void slot_Palette_Color(COLORREF color);
    void setNotiData(NotiEventData notiData);
    void updateLanguage_Noti();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void createWidgets();
    void buildGrid();
    void connectSignals();
    QLineEdit* createThresholdEdit(const QString& objectName, int minimum, int maximum);
    QPushButton* createCaptionButton(const QString& text);
    void applyAccessibleNames();
    void leaveEdit(QLineEdit* edit, QWidget* next);
    // Tab walks the rows from top to bottom, each from the switch to the unit.
    void setRowTabOrder();
    QLabel* createGreaterLabel();
    void applyTexts();
    void nameWidgets();

    void checkFanSoftware();
    void setFanRowVisible(bool visible);
    void hideLoadingRow();
    void updateWidgetsFromData();
    void setColorButton(COLORREF color);
    void closePalette();
    // After a pick or Escape in the pop-up, the focus goes back to the swatch.
    void returnFromPalette();
    void sendChanged(int changedItem);

    QRect underlineFor(const QWidget* widget) const;

    NotiEventData notiEventData{};

    QLabel* label_Title = nullptr;
    QWidget* widget_Grid = nullptr;

    SwitchButton* switch_Loading = nullptr;
    SwitchButton* switch_Shutdown_Memory = nullptr;
    SwitchButton* switch_Shutdown_CPU = nullptr;
    SwitchButton* switch_FanSpeed = nullptr;

    QLabel* label_Trigger_LED = nullptr;
    QLabel* label_Shutdown_Memory = nullptr;
    QLabel* label_Shutdown_CPU = nullptr;
    QLabel* label_FanSpeed = nullptr;
    QLabel* label_Loading = nullptr;
    QLabel* label_Memory = nullptr;
    QLabel* label_CPU = nullptr;
    QLabel* label_FanSpeed_CPU = nullptr;

    QLineEdit* lineEdit_Loading = nullptr;
    QLineEdit* lineEdit_Shutdown_Memory = nullptr;
    QLineEdit* lineEdit_Shutdown_CPU = nullptr;
    QLineEdit* lineEdit_FanSpeed = nullptr;

    QPushButton* btn_Percent = nullptr;
    QPushButton* btn_Unit_Memory = nullptr;
    QPushButton* btn_Unit_CPU = nullptr;
    QPushButton* btn_Unit_FanSpeed = nullptr;
    QPushButton* btn_Loading_Color = nullptr;

    QLabel* label_Greater_Loading = nullptr;
    QLabel* label_Greater_Memory = nullptr;
    QLabel* label_Greater_CPU = nullptr;
    QLabel* label_Greater_FanSpeed = nullptr;

    Widget_Select_Palette* palette_Select = nullptr;
};
