#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

// Ties a pop-up to the button that opens it. While the pop-up shows, the button's focus proxy is
// the pop-up: a click on the button then leaves the focus with the pop-up (Qt gives a click's
// focus to no parent of a widget whose proxy holds it), so the click closes the pop-up instead
// of the focus loss closing it and the click opening it again. While the pop-up is hidden the
// button has no proxy, so Tab reaches it.
class PopupAnchor : public QObject
{
    Q_OBJECT

public:
    // Owned by the pop-up.
    static void tie(QWidget* opener, QWidget* popup);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    PopupAnchor(QWidget* opener, QWidget* popup);

    QPointer<QWidget> opener;
    QWidget* popup;
};
