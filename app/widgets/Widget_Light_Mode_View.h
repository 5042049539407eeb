#pragma once

#include <QMap>
#include <QString>
#include <QWidget>

class QGridLayout;
class QPushButton;

// Pop-up list of the light modes offered for picking, in columns of five; closes itself when it
// loses the focus.
class Widget_Light_Mode_View : public QWidget
{
    Q_OBJECT

public:
    static constexpr int ButtonCount = 40;

    Widget_Light_Mode_View(int width, int height, QWidget* parent = nullptr);
    ~Widget_Light_Mode_View() override;

    // Places one button per offered mode; called again with the same keys it renews the texts.
    void setLightModeMap(const QMap<int, QString>& lightModeMap);

    // Whether the given light-mode value is ever offered in this list.
    static bool isOffered(int lightMode);

signals:
    void selectLightMode(int lightMode);

public slots:
    void slot_SelectLightMode();

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QGridLayout* gridLayout = nullptr;
    QPushButton* btn_LightModes[ButtonCount] = {};
};
