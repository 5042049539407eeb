#include "Widget_Language.h"

#include "Log.h"

#include <QGridLayout>
#include <QPainter>
#include <QPushButton>

namespace {

const char kButtonStyle[] = "QPushButton {font-family: Arial; font-size:12px;color: gray;  "
                            "background-color:rgba(0,0,0,0);}"
                            "QPushButton:hover:!pressed {color:black; background-color:gray;}";

// Adds to each button's own style what that style leaves open: no frame, a little room, and
// rounded corners for the highlight under the pointer.
const char kListStyle[] = "QPushButton {border:none; border-radius:3px; padding:4px 6px;}";

const QColor kPanelFill(40, 40, 40, 245);
const QColor kPanelBorder(20, 20, 20);
const int kGridMargin = 10;
const int kGridSpacing = 10;
const int kRows = 3;

// In language-index order; the translation files give each code its native name.
const char* const kCodes[Widget_Language::kLanguageCount] = {
    QT_TRANSLATE_NOOP("Widget_Language", "en"), QT_TRANSLATE_NOOP("Widget_Language", "tc"),
    QT_TRANSLATE_NOOP("Widget_Language", "sc"), QT_TRANSLATE_NOOP("Widget_Language", "de"),
    QT_TRANSLATE_NOOP("Widget_Language", "fr"), QT_TRANSLATE_NOOP("Widget_Language", "jp"),
    QT_TRANSLATE_NOOP("Widget_Language", "th"), QT_TRANSLATE_NOOP("Widget_Language", "ru"),
    QT_TRANSLATE_NOOP("Widget_Language", "kr"), QT_TRANSLATE_NOOP("Widget_Language", "es")};

} // namespace

Widget_Language::Widget_Language(int width, int height, QWidget* parent) : QWidget(parent)
{
    resize(width, height);
    setFocusPolicy(Qt::ClickFocus);

    setStyleSheet(QLatin1String(kListStyle));

    gridLayout = new QGridLayout(this);
    gridLayout->setContentsMargins(kGridMargin, kGridMargin, kGridMargin, kGridMargin);
    gridLayout->setSpacing(kGridSpacing);

    for (const char* code : kCodes) {
        languageCodes << QLatin1String(code);
        languageNames << tr(code);
    }

    for (int i = 0; i < kLanguageCount; ++i) {
        QPushButton* button = new QPushButton(languageNames.at(i), this);
        button->setStyleSheet(QLatin1String(kButtonStyle));
        button->setObjectName(QString::number(i));
        button->setCursor(Qt::PointingHandCursor);
        // The highlight spans the whole cell.
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        // The list keeps the focus while a button is pressed; otherwise the press would move
        // the focus to the button and the list would close before the release.
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QPushButton::released, this, &Widget_Language::slot_SelectLightMode);
        gridLayout->addWidget(button, i % kRows, i / kRows);
        btn_Language[i] = button;
    }
}

void Widget_Language::slot_SelectLightMode()
{
    setFocus(Qt::OtherFocusReason);
    const QObject* button = sender();
    if (!button)
        return;
    qCDebug(lcPanel) << "btn:" << button->objectName();
    emit selectLanguage(button->objectName().toInt());
}

void Widget_Language::focusInEvent(QFocusEvent* event)
{
    qCDebug(lcPanel) << "focusInEvent";
    QWidget::focusInEvent(event);
}

void Widget_Language::focusOutEvent(QFocusEvent* event)
{
    qCDebug(lcPanel) << "focusOutEvent";
    if (!isHidden())
        hide();
    QWidget::focusOutEvent(event);
}

void Widget_Language::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(kPanelFill);
    painter.setPen(QPen(kPanelBorder, 1, Qt::SolidLine));
    // Half-pixel offset: the one-pixel border lands on whole pixels with antialiasing on.
    painter.drawRect(QRectF(0.5, 0.5, width() - 1, height() - 1));
}
