#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QTimer;

// Dimmed overlay with a spinning ring, shown over the whole frame until the module counts are
// known. It can also show a small warning box whose OK button closes the panel and the control
// service.
class Loading_View : public QWidget
{
    Q_OBJECT

public:
    explicit Loading_View(QWidget* parent = nullptr);

    void isStartLoading(bool on);
    void isProductWarning(bool on);

    bool loading() const { return isLoading; }
    const QTimer* spinnerTimer() const { return timer; }

    QLabel* label_Warning = nullptr;
    QLabel* label_Warning_Content = nullptr;
    QPushButton* btn_OK = nullptr;

public slots:
    void rotate();
    void slot_CloseApp();

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void applyTexts();
    void drawShade(QPainter& painter);
    void drawSpinner(QPainter& painter);

    int angle = 20;
    QTimer* timer = nullptr;
    bool isLoading = false;
};
