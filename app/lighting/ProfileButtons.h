#pragma once

class QButtonGroup;
class QPushButton;
class QWidget;

// The buttons "Profile 1".."Profile 5" of the lighting page, below the frame's menu: exactly one
// is checked. Built into the page's array, which the slot layout also reads.
class ProfileButtons
{
public:
    static constexpr int ProfileCount = 5;

    ProfileButtons(QWidget* page, QPushButton* (&buttons)[ProfileCount]);
    ProfileButtons(const ProfileButtons&) = delete;
    ProfileButtons& operator=(const ProfileButtons&) = delete;

    int checkedProfile() const;
    // Checks a profile's button; an unknown profile changes nothing.
    void check(int profile);
    void retranslate();
    void applyLanguageFonts(int language);

private:
    QButtonGroup* group = nullptr;
    QPushButton* (&buttons)[ProfileCount];
};
