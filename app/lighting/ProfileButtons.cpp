#include "ProfileButtons.h"

#include "Accessibility.h"
#include "LightingLook.h"
#include "Lighting_View.h"

#include <QButtonGroup>
#include <QPushButton>

using namespace LightingLook;

static_assert(ProfileButtons::ProfileCount == kProfileCount, "the layout's profile count");

namespace {
QString caption(int id)
{
    return Lighting_View::tr("Profile") + QLatin1Char(' ') + QString::number(id + 1);
}
} // namespace

ProfileButtons::ProfileButtons(QWidget* page, QPushButton* (&buttons)[ProfileCount])
    : buttons(buttons)
{
    group = new QButtonGroup(page);
    group->setExclusive(true);
    for (int id = 0; id < ProfileCount; ++id) {
        QPushButton* button = new QPushButton(caption(id), page);
        button->setObjectName(QStringLiteral("btn_Profile%1").arg(id));
        button->setCheckable(true);
        Accessibility::makeTabReachable(button);
        button->setGeometry(
            QRect(QPoint(kProfileX, kProfileTop + id * kProfilePitch), kProfileSize));
        group->addButton(button, id);
        buttons[id] = button;
    }
    buttons[0]->setChecked(true);
}

int ProfileButtons::checkedProfile() const
{
    return group->checkedId();
}

void ProfileButtons::check(int profile)
{
    if (QAbstractButton* button = group->button(profile))
        button->setChecked(true);
}

void ProfileButtons::retranslate()
{
    for (int id = 0; id < ProfileCount; ++id)
        buttons[id]->setText(caption(id));
}

void ProfileButtons::applyLanguageFonts(int language)
{
    const int font = language == kLanguageJapanese ? kProfileFontSmall : kProfileFont;
    for (QPushButton* button : buttons)
        button->setStyleSheet(QString::fromLatin1(kProfileStyle).arg(font));
}
