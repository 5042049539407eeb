#pragma once

#include <QWidget>

class QLabel;

// A blank page that carries only its caption; it is not reachable from the menu.
class Clean_View : public QWidget
{
    Q_OBJECT

public:
    explicit Clean_View(QWidget* parent = nullptr);

    QLabel* label_Clean = nullptr;

public slots:
    void updateLanguage_Clean();
};
