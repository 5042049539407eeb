#include "Clean_View.h"

#include "Log.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {
constexpr int kPageWidth = 800;
constexpr int kPageHeight = 510;
const char* const kPageStyle =
    "QLabel#label_Clean {font-family: Arial; color:white; font-size:28px;}";
} // namespace

Clean_View::Clean_View(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Clean_View"));
    setFocusPolicy(Qt::NoFocus);
    setGeometry(0, 0, kPageWidth, kPageHeight);
    setStyleSheet(QString::fromLatin1(kPageStyle));

    label_Clean = new QLabel(this);
    label_Clean->setObjectName(QStringLiteral("label_Clean"));
    label_Clean->setAlignment(Qt::AlignCenter);
    label_Clean->setText(tr("Clean"));

    // The frame may give the page a different width; the caption stays centred.
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label_Clean);
}

void Clean_View::updateLanguage_Clean()
{
    qCDebug(lcPanel) << "Clean_View::updateLanguage_Clean()";
    label_Clean->setText(tr("Clean"));
}
