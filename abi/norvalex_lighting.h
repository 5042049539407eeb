/*
 * NORVALEX_Lighting: the C interface between the panel and the lighting library.
 *
 * Every record is a binary layout shared with a separately built library: little-endian,
 * 64-bit layout, natural alignment, one-byte bool. The static assertions at the end pin every
 * size and every named offset, so a layout change cannot slip through on either compiler.
 * This header is plain C (C11 or later) and C++ (C++11 or later) and uses no Qt.
 */
#ifndef NORVALEX_LIGHTING_H
#define NORVALEX_LIGHTING_H

#include <stddef.h>
#include <stdint.h>
#ifndef __cplusplus
#include <stdbool.h>
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* 0x00BBGGRR: red in the low byte; the top byte is never used. Spelled as the Windows headers
 * spell it there, so both definitions may meet in one translation unit. */
#ifdef _WIN32
typedef unsigned long COLORREF;
#else
typedef uint32_t COLORREF;
#endif

#define NX_MODULE_COUNT 8
#define NX_LED_ARRAY 12
#define NX_TEXT_LEN 64

typedef struct MemoryModuleData {
    int32_t memorySlot;                /*   0 */
    int32_t reserved4;                 /*   4 */
    int32_t temperature;               /*   8 */
    char text12[NX_TEXT_LEN];          /*  12 */
    char modelCode[NX_TEXT_LEN];       /*  76 */
    int32_t memoryModuleSize;          /* 140 */
    double frequency;                  /* 144 */
    char type[NX_TEXT_LEN];            /* 152 */
    char text216[NX_TEXT_LEN];         /* 216 */
    int32_t ledNum;                    /* 280 */
    uint8_t lightingOff;               /* 284 */
    uint8_t pad285[3];                 /* 285 */
    int32_t reserved288;               /* 288 */
    COLORREF rgb[NX_LED_ARRAY];        /* 292 */
    COLORREF defaultRGB[NX_LED_ARRAY]; /* 340 */
    COLORREF singleRGB;                /* 388 */
    float bright[NX_LED_ARRAY];        /* 392 */
    float singleBright;                /* 440 */
    uint8_t reserved444;               /* 444 */
    uint8_t pad445[3];                 /* 445 */
    int32_t lightMode;                 /* 448 */
    int32_t colorMode;                 /* 452 */
    int32_t lightSpeed;                /* 456 */
    bool turnOff;                      /* 460 */
    uint8_t reserved461;               /* 461 */
    uint8_t reserved462[242];          /* 462..703; byte 556 is reserved462[94] */
} MemoryModuleData;

typedef struct HWData {
    int32_t slotIndex[NX_MODULE_COUNT];           /*    0 */
    int32_t memoryCount;                          /*   32 */
    int32_t slotCount;                            /*   36 */
    int32_t reserved40;                           /*   40 */
    uint8_t pad44[4];                             /*   44 */
    double frequency;                             /*   48 */
    char systemText[NX_TEXT_LEN];                 /*   56 */
    double casLatency;                            /*  120 */
    int32_t tRCD;                                 /*  128 */
    int32_t reserved132;                          /*  132 */
    int32_t reserved136;                          /*  136 */
    int32_t channel;                              /*  140 */
    int32_t physicalMemoryUsed;                   /*  144 */
    int32_t reserved148;                          /*  148 */
    double memoryLoad;                            /*  152 */
    uint8_t reserved160[64];                      /*  160 */
    MemoryModuleData memoryData[NX_MODULE_COUNT]; /* 224 */
    uint8_t reserved5856[48];                     /* 5856 */
    uint8_t reserved5904;                         /* 5904 */
    uint8_t pad5905[3];                           /* 5905 */
    uint32_t updateTime;                          /* 5908 */
    uint8_t reserved5912[80];                     /* 5912 */
} HWData;

/* Fifteen 32-bit cells; a boolean cell is its low byte, the other three bytes travel unchanged. */
typedef struct NotiEventData {
    int32_t reserved0;   /*  0 */
    int32_t changedItem; /*  4 */
    bool loadingSwitch;  /*  8 */
    uint8_t pad9[3];
    int32_t loadingValue;      /* 12 */
    COLORREF loadingColor;     /* 16 */
    int32_t reserved20;        /* 20 */
    bool shutdownMemorySwitch; /* 24 */
    uint8_t pad25[3];
    int32_t shutdownMemoryValue; /* 28 */
    int32_t shutdownMemoryUnit;  /* 32 */
    bool fanSpeedSwitch;         /* 36 */
    uint8_t pad37[3];
    int32_t fanSpeedValue;  /* 40 */
    int32_t fanSpeedUnit;   /* 44 */
    bool shutdownCPUSwitch; /* 48 */
    uint8_t pad49[3];
    int32_t shutdownCPUValue; /* 52 */
    int32_t shutdownCPUUnit;  /* 56 */
} NotiEventData;

typedef struct SettingData {
    int32_t languageIndex; /* 0 */
    bool autoUpdate;       /* 4 */
    bool autoRun;          /* 5 */
    bool currentLocation;  /* 6 */
    uint8_t reserved7;     /* 7 */
} SettingData;

/* Callbacks the library raises. */
typedef void (*UIEventLightModeFunc)(int32_t event);
typedef void (*UIPreviewEventFunc)(void);

/* The 23 exported functions. GetValueTurnOff returns a one-byte bool that is read as a byte:
 * any non-zero value means "off". */
typedef void (*SharedDLL_init_fn)(void);
typedef void (*RegisterUIEventLightModeFunc_fn)(UIEventLightModeFunc callback);
typedef void (*RegisterUIPreviewEventFunc_fn)(UIPreviewEventFunc callback);
typedef int32_t (*GetValueMemorySlotNumber_fn)(int32_t index);
typedef void (*SetSlotNumber_fn)(int32_t count, int32_t* order);
typedef void (*SetValueLighting_fn)(int32_t slot, int32_t lightMode, int32_t colorMode,
                                    int32_t lightSpeed, bool turnOff);
typedef void (*SetValueRGB_fn)(int32_t slot, COLORREF* rgb, float* bright, COLORREF singleRGB,
                               float singleBright, int32_t count);
typedef int32_t (*GetValueLightMode_fn)(int32_t slot);
typedef int32_t (*GetValueColorMode_fn)(int32_t slot);
typedef int32_t (*GetValueLightSpeed_fn)(int32_t slot);
typedef uint8_t (*GetValueTurnOff_fn)(int32_t slot);
typedef COLORREF* (*GetValueRGB_fn)(int32_t slot);
typedef COLORREF (*GetValueSingleRGB_fn)(int32_t slot);
typedef float* (*GetValueBright_fn)(int32_t slot);
typedef float (*GetValueSingleBright_fn)(int32_t slot);
typedef COLORREF* (*GetValueSoftwareRGB_fn)(int32_t slot);
typedef HWData (*GetValueHWData_fn)(void);
typedef NotiEventData (*GetNotiEvent_fn)(void);
typedef void (*SetNotiEvent_fn)(NotiEventData data);
typedef SettingData (*GetSettingValue_fn)(void);
typedef void (*SetSettingValue_fn)(SettingData data);
typedef int32_t (*GetProfile_fn)(void);
typedef void (*SetProfile_fn)(int32_t profile);

/* X-macro over the 23 exports, in the order of the interface table: X(name). The type of each
 * is name##_fn. */
#define NORVALEX_LIGHTING_FUNCTIONS(X)                                                             \
    X(SharedDLL_init)                                                                              \
    X(RegisterUIEventLightModeFunc)                                                                \
    X(RegisterUIPreviewEventFunc)                                                                  \
    X(GetValueMemorySlotNumber)                                                                    \
    X(SetSlotNumber)                                                                               \
    X(SetValueLighting)                                                                            \
    X(SetValueRGB)                                                                                 \
    X(GetValueLightMode)                                                                           \
    X(GetValueColorMode)                                                                           \
    X(GetValueLightSpeed)                                                                          \
    X(GetValueTurnOff)                                                                             \
    X(GetValueRGB)                                                                                 \
    X(GetValueSingleRGB)                                                                           \
    X(GetValueBright)                                                                              \
    X(GetValueSingleBright)                                                                        \
    X(GetValueSoftwareRGB)                                                                         \
    X(GetValueHWData)                                                                              \
    X(GetNotiEvent)                                                                                \
    X(SetNotiEvent)                                                                                \
    X(GetSettingValue)                                                                             \
    X(SetSettingValue)                                                                             \
    X(GetProfile)                                                                                  \
    X(SetProfile)

#define NORVALEX_LIGHTING_FUNCTION_COUNT 23

#ifdef __cplusplus
} /* extern "C" */
#define NX_STATIC_ASSERT(cond, msg) static_assert(cond, msg)
#define NX_ALIGNOF(type) alignof(type)
#else
#define NX_STATIC_ASSERT(cond, msg) _Static_assert(cond, msg)
#define NX_ALIGNOF(type) _Alignof(type)
#endif

#define NX_AT(type, field, off) NX_STATIC_ASSERT(offsetof(type, field) == off, #type "." #field)

NX_STATIC_ASSERT(sizeof(COLORREF) == 4, "COLORREF is 32-bit");
NX_STATIC_ASSERT(sizeof(bool) == 1, "bool is one byte");

NX_STATIC_ASSERT(sizeof(MemoryModuleData) == 704, "MemoryModuleData size");
NX_AT(MemoryModuleData, memorySlot, 0);
NX_AT(MemoryModuleData, reserved4, 4);
NX_AT(MemoryModuleData, temperature, 8);
NX_AT(MemoryModuleData, text12, 12);
NX_AT(MemoryModuleData, modelCode, 76);
NX_AT(MemoryModuleData, memoryModuleSize, 140);
NX_AT(MemoryModuleData, frequency, 144);
NX_AT(MemoryModuleData, type, 152);
NX_AT(MemoryModuleData, text216, 216);
NX_AT(MemoryModuleData, ledNum, 280);
NX_AT(MemoryModuleData, lightingOff, 284);
NX_AT(MemoryModuleData, reserved288, 288);
NX_AT(MemoryModuleData, rgb, 292);
NX_AT(MemoryModuleData, defaultRGB, 340);
NX_AT(MemoryModuleData, singleRGB, 388);
NX_AT(MemoryModuleData, bright, 392);
NX_AT(MemoryModuleData, singleBright, 440);
NX_AT(MemoryModuleData, reserved444, 444);
NX_AT(MemoryModuleData, lightMode, 448);
NX_AT(MemoryModuleData, colorMode, 452);
NX_AT(MemoryModuleData, lightSpeed, 456);
NX_AT(MemoryModuleData, turnOff, 460);
NX_AT(MemoryModuleData, reserved461, 461);
NX_AT(MemoryModuleData, reserved462, 462);

NX_STATIC_ASSERT(sizeof(HWData) == 5992, "HWData size");
NX_STATIC_ASSERT(NX_ALIGNOF(HWData) == 8, "HWData alignment");
NX_AT(HWData, slotIndex, 0);
NX_AT(HWData, memoryCount, 32);
NX_AT(HWData, slotCount, 36);
NX_AT(HWData, reserved40, 40);
NX_AT(HWData, frequency, 48);
NX_AT(HWData, systemText, 56);
NX_AT(HWData, casLatency, 120);
NX_AT(HWData, tRCD, 128);
NX_AT(HWData, reserved132, 132);
NX_AT(HWData, reserved136, 136);
NX_AT(HWData, channel, 140);
NX_AT(HWData, physicalMemoryUsed, 144);
NX_AT(HWData, reserved148, 148);
NX_AT(HWData, memoryLoad, 152);
NX_AT(HWData, reserved160, 160);
NX_AT(HWData, memoryData, 224);
NX_AT(HWData, reserved5856, 5856);
NX_AT(HWData, reserved5904, 5904);
NX_AT(HWData, updateTime, 5908);
NX_AT(HWData, reserved5912, 5912);

NX_STATIC_ASSERT(sizeof(NotiEventData) == 60, "NotiEventData size");
NX_STATIC_ASSERT(NX_ALIGNOF(NotiEventData) == 4, "NotiEventData alignment");
NX_AT(NotiEventData, reserved0, 0);
NX_AT(NotiEventData, changedItem, 4);
NX_AT(NotiEventData, loadingSwitch, 8);
NX_AT(NotiEventData, loadingValue, 12);
NX_AT(NotiEventData, loadingColor, 16);
NX_AT(NotiEventData, reserved20, 20);
NX_AT(NotiEventData, shutdownMemorySwitch, 24);
NX_AT(NotiEventData, shutdownMemoryValue, 28);
NX_AT(NotiEventData, shutdownMemoryUnit, 32);
NX_AT(NotiEventData, fanSpeedSwitch, 36);
NX_AT(NotiEventData, fanSpeedValue, 40);
NX_AT(NotiEventData, fanSpeedUnit, 44);
NX_AT(NotiEventData, shutdownCPUSwitch, 48);
NX_AT(NotiEventData, shutdownCPUValue, 52);
NX_AT(NotiEventData, shutdownCPUUnit, 56);

NX_STATIC_ASSERT(sizeof(SettingData) == 8, "SettingData size");
NX_AT(SettingData, languageIndex, 0);
NX_AT(SettingData, autoUpdate, 4);
NX_AT(SettingData, autoRun, 5);
NX_AT(SettingData, currentLocation, 6);
NX_AT(SettingData, reserved7, 7);

#undef NX_AT

#endif /* NORVALEX_LIGHTING_H */
