#pragma once

class LightingDeck;
class Lighting_View;
class Memory_RGB_View;
class QPushButton;
class Widget_Light_Mode_View;
class Widget_Preview;

// Connects the parts of the lighting page to the page: the strips, the deck's controls and
// colour entry, the light-mode list, the row, profile and Edit buttons, and the preview.
class LightingWiring
{
public:
    static constexpr int SlotCount = 8;
    static constexpr int LedRows = 8;
    static constexpr int ProfileCount = 5;

    struct Parts {
        const LightingDeck& deck;
        Widget_Light_Mode_View* modeList;
        Memory_RGB_View* const (&strips)[SlotCount];
        QPushButton* const (&rows)[LedRows];
        QPushButton* const (&profiles)[ProfileCount];
        QPushButton* edit;
        QPushButton* editCancel;
        QPushButton* editApply;
        Widget_Preview* preview;
    };

    // Also makes the page filter the strips' events.
    static void connect(Lighting_View* page, const Parts& parts);
};
