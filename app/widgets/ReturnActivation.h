#pragma once

#include <QObject>

// Return and Enter press the push button that has the keyboard focus, as Space does. Dialogs are
// left alone: there Return belongs to the default button. One filter serves the application.
class ReturnActivation : public QObject
{
    Q_OBJECT

public:
    // Creates the application's filter once; later calls do nothing.
    static void install();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ReturnActivation();
};
