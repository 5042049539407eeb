#pragma once

#include <QStringList>
#include <QWidget>

class QGridLayout;
class QPushButton;

// The drop list of the ten interface languages opened under the settings page's language
// button. Entry i selects language index i; the list hides itself when it loses the focus.
class Widget_Language : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kLanguageCount = 10;

    explicit Widget_Language(int width, int height, QWidget* parent = nullptr);

signals:
    void selectLanguage(int index);

public slots:
    void slot_SelectLightMode();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QGridLayout* gridLayout = nullptr;
    QPushButton* btn_Language[kLanguageCount] = {};
    QStringList languageCodes;
    QStringList languageNames;
};
