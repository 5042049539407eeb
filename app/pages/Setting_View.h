#pragma once

#include "norvalex_lighting.h"

#include <QWidget>

class QLabel;
class QPushButton;
class SwitchButton;
class Widget_Language;

// The settings page: interface language, automatic update, start with the system, use of the
// current location, and the program version. Every change is sent at once as the whole record.
class Setting_View : public QWidget
{
    Q_OBJECT

public:
    explicit Setting_View(QWidget* parent = nullptr);

signals:
    void changeSettingData(SettingData settingData);

public slots:
    void slot_AutoUpdate_Switch(bool checked);
    void slot_AutoRun_Switch(bool checked);
    void slot_CurrentLocation_Switch(bool checked);
    void slot_Language();
    void currentLanguageIndex(int index);
    void setSettingData(SettingData settingData);
    void updateLanguage_Setting();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void createWidgets();
    void buildGrid();
    void connectSignals();
    void nameWidgets();
    void refresh();

    SettingData settingData{};

    QLabel* label_Language = nullptr;
    QPushButton* btn_Language = nullptr;
    SwitchButton* switch_AutoUpdate = nullptr;
    SwitchButton* switch_AutoRun = nullptr;
    SwitchButton* switch_CurrentLocation = nullptr;
    QLabel* label_AutoUpdate = nullptr;
    QLabel* label_AutoRun = nullptr;
    QLabel* label_CurrentLocation = nullptr;
    QLabel* label_Version = nullptr;
    QLabel* label_Version_Value = nullptr;
    QWidget* widget_Grid = nullptr;
    Widget_Language* widget_Language = nullptr;
};
