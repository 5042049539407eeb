#pragma once

#include <QMap>
#include <QString>
#include <QWidget>

class QGridLayout;
class QPushButton;

// Pop-up list of the light modes offered for picking, in columns of five; closes itself when it
// loses the focus. The list keeps the focus itself: the arrow keys move a highlight over the
// modes (Up and Down within the order, Left and Right to the neighbouring column), Return or
// Space pick the highlighted mode and Escape leaves without a choice.
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

    // Highlights the button of `lightMode`, or the first one when that mode is not listed.
    void highlight(int lightMode);
    // The mode of the highlighted button, or -1 while nothing is highlighted.
    int highlighted() const;

signals:
    void selectLightMode(int lightMode);
    // A mode was picked or the list left by key, so the focus goes back to what opened it.
    void keyboardFinished();

public slots:
    void slot_SelectLightMode();

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // The listed buttons in reading order: down each column, then the next column.
    QVector<QPushButton*> orderedButtons() const;
    void setCurrent(QPushButton* button);
    void moveCurrent(int step);

    QPushButton* current = nullptr;
    QGridLayout* gridLayout = nullptr;
    QPushButton* btn_LightModes[ButtonCount] = {};
};
