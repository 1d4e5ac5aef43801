#include "X11KeySymbols_p.h"

#include "Chord_p.h"
#include "X11OldKeySymbols_p.h"

#include <X11/XF86keysym.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr X11KeyRow sSpecialKeys[] = {
    {Qt::Key_Escape, XK_Escape},
    {Qt::Key_Tab, XK_Tab},
    {Qt::Key_Backtab, XK_ISO_Left_Tab},
    {Qt::Key_Backspace, XK_BackSpace},
    {Qt::Key_Return, XK_Return},
    {Qt::Key_Enter, XK_KP_Enter},
    {Qt::Key_Insert, XK_Insert},
    {Qt::Key_Delete, XK_Delete},
    {Qt::Key_Pause, XK_Pause},
    {Qt::Key_Print, XK_Print},
    {Qt::Key_SysReq, XK_Print}, // the same key with Alt
    {Qt::Key_Clear, XK_Clear},
    {Qt::Key_Home, XK_Home},
    {Qt::Key_End, XK_End},
    {Qt::Key_Left, XK_Left},
    {Qt::Key_Up, XK_Up},
    {Qt::Key_Right, XK_Right},
    {Qt::Key_Down, XK_Down},
    {Qt::Key_PageUp, XK_Page_Up},
    {Qt::Key_PageDown, XK_Page_Down},
    {Qt::Key_CapsLock, XK_Caps_Lock},
    {Qt::Key_NumLock, XK_Num_Lock},
    {Qt::Key_ScrollLock, XK_Scroll_Lock},
    {Qt::Key_Menu, XK_Menu},
    {Qt::Key_Help, XK_Help},
    {Qt::Key_Select, XK_Select},
    {Qt::Key_Cancel, XK_Cancel},
    {Qt::Key_Execute, XK_Execute},
    {Qt::Key_Undo, XK_Undo},
    {Qt::Key_Redo, XK_Redo},
    {Qt::Key_Find, XK_Find},
    {Qt::Key_Back, XF86XK_Back},
    {Qt::Key_Forward, XF86XK_Forward},
    {Qt::Key_Stop, XF86XK_Stop},
    {Qt::Key_Refresh, XF86XK_Refresh},
    {Qt::Key_VolumeDown, XF86XK_AudioLowerVolume},
    {Qt::Key_VolumeMute, XF86XK_AudioMute},
    {Qt::Key_VolumeUp, XF86XK_AudioRaiseVolume},
    {Qt::Key_MicMute, XF86XK_AudioMicMute},
    {Qt::Key_MediaPlay, XF86XK_AudioPlay},
    {Qt::Key_MediaTogglePlayPause, XF86XK_AudioPlay},
    {Qt::Key_MediaPause, XF86XK_AudioPause},
    {Qt::Key_MediaStop, XF86XK_AudioStop},
    {Qt::Key_MediaPrevious, XF86XK_AudioPrev},
    {Qt::Key_MediaNext, XF86XK_AudioNext},
    {Qt::Key_MediaRecord, XF86XK_AudioRecord},
    {Qt::Key_AudioRewind, XF86XK_AudioRewind},
    {Qt::Key_AudioForward, XF86XK_AudioForward},
    {Qt::Key_AudioRepeat, XF86XK_AudioRepeat},
    {Qt::Key_AudioRandomPlay, XF86XK_AudioRandomPlay},
    {Qt::Key_AudioCycleTrack, XF86XK_AudioCycleTrack},
    {Qt::Key_Subtitle, XF86XK_Subtitle},
    {Qt::Key_HomePage, XF86XK_HomePage},
    {Qt::Key_Favorites, XF86XK_Favorites},
    {Qt::Key_Search, XF86XK_Search},
    {Qt::Key_Standby, XF86XK_Standby},
    {Qt::Key_OpenUrl, XF86XK_OpenURL},
    {Qt::Key_LaunchMail, XF86XK_Mail},
    {Qt::Key_LaunchMedia, XF86XK_AudioMedia},
    {Qt::Key_Calculator, XF86XK_Calculator},
    // Since Qt 4 the numbers of Qt's launch keys are greater by two than those of X.
    {Qt::Key_Launch0, XF86XK_MyComputer},
    {Qt::Key_Launch1, XF86XK_Calculator},
    {Qt::Key_Launch2, XF86XK_Launch0},
    {Qt::Key_Launch3, XF86XK_Launch1},
    {Qt::Key_Launch4, XF86XK_Launch2},
    {Qt::Key_Launch5, XF86XK_Launch3},
    {Qt::Key_Launch6, XF86XK_Launch4},
    {Qt::Key_Launch7, XF86XK_Launch5},
    {Qt::Key_Launch8, XF86XK_Launch6},
    {Qt::Key_Launch9, XF86XK_Launch7},
    {Qt::Key_LaunchA, XF86XK_Launch8},
    {Qt::Key_LaunchB, XF86XK_Launch9},
    {Qt::Key_LaunchC, XF86XK_LaunchA},
    {Qt::Key_LaunchD, XF86XK_LaunchB},
    {Qt::Key_LaunchE, XF86XK_LaunchC},
    {Qt::Key_LaunchF, XF86XK_LaunchD},
    {Qt::Key_LaunchG, XF86XK_LaunchE},
    {Qt::Key_LaunchH, XF86XK_LaunchF},
    {Qt::Key_MonBrightnessUp, XF86XK_MonBrightnessUp},
    {Qt::Key_MonBrightnessDown, XF86XK_MonBrightnessDown},
    {Qt::Key_KeyboardLightOnOff, XF86XK_KbdLightOnOff},
    {Qt::Key_KeyboardBrightnessUp, XF86XK_KbdBrightnessUp},
    {Qt::Key_KeyboardBrightnessDown, XF86XK_KbdBrightnessDown},
    {Qt::Key_PowerOff, XF86XK_PowerOff},
    {Qt::Key_WakeUp, XF86XK_WakeUp},
    {Qt::Key_Sleep, XF86XK_Sleep},
    {Qt::Key_Eject, XF86XK_Eject},
    {Qt::Key_ScreenSaver, XF86XK_ScreenSaver},
    {Qt::Key_WWW, XF86XK_WWW},
    {Qt::Key_Explorer, XF86XK_Explorer},
    {Qt::Key_Tools, XF86XK_Tools},
    {Qt::Key_Copy, XF86XK_Copy},
    {Qt::Key_Cut, XF86XK_Cut},
    {Qt::Key_Paste, XF86XK_Paste},
    {Qt::Key_ZoomIn, XF86XK_ZoomIn},
    {Qt::Key_ZoomOut, XF86XK_ZoomOut},
    {Qt::Key_Display, XF86XK_Display},
    {Qt::Key_WLAN, XF86XK_WLAN},
    {Qt::Key_Bluetooth, XF86XK_Bluetooth},
    {Qt::Key_TouchpadToggle, XF86XK_TouchpadToggle},
};

constexpr X11KeyRow sKeypadKeys[] = {
    {Qt::Key_Space, XK_KP_Space},
    {Qt::Key_Tab, XK_KP_Tab},
    {Qt::Key_Enter, XK_KP_Enter},
    {Qt::Key_Return, XK_KP_Enter},
    {Qt::Key_Home, XK_KP_Home},
    {Qt::Key_Left, XK_KP_Left},
    {Qt::Key_Up, XK_KP_Up},
    {Qt::Key_Right, XK_KP_Right},
    {Qt::Key_Down, XK_KP_Down},
    {Qt::Key_PageUp, XK_KP_Page_Up},
    {Qt::Key_PageDown, XK_KP_Page_Down},
    {Qt::Key_End, XK_KP_End},
    {Qt::Key_Clear, XK_KP_Begin},
    {Qt::Key_Insert, XK_KP_Insert},
    {Qt::Key_Delete, XK_KP_Delete},
    {Qt::Key_Equal, XK_KP_Equal},
    {Qt::Key_Asterisk, XK_KP_Multiply},
    {Qt::Key_Plus, XK_KP_Add},
    {Qt::Key_Comma, XK_KP_Separator},
    {Qt::Key_Minus, XK_KP_Subtract},
    {Qt::Key_Period, XK_KP_Decimal},
    {Qt::Key_Slash, XK_KP_Divide},
};

template<size_t size> QVector<xcb_keysym_t> lookUp(const X11KeyRow (&table)[size], int key)
{
    const auto row = std::find_if(
        std::begin(table), std::end(table),
        [key](const X11KeyRow &candidate) { return candidate.key == key; });
    return row == std::end(table) ? QVector<xcb_keysym_t>() : QVector<xcb_keysym_t>{row->symbol};
}

QVector<xcb_keysym_t> characterSymbols(int key)
{
    const uint lower = QChar::toLower(static_cast<uint>(key));
    if (lower <= 0xff)
        return {lower};
    return QVector<xcb_keysym_t>{0x01000000 | lower}
           + lookUp(sX11OldSymbols, static_cast<int>(lower));
}

bool isCharacter(int key)
{
    return (key >= 0x20 && key <= 0x7e) || (key >= 0xa0 && key <= 0x10ffff);
}

} // namespace

QVector<xcb_keysym_t> x11KeySymbols(int chord)
{
    const int key = keyOf(chord);
    if (modifiersOf(chord) & Qt::KeypadModifier) {
        if (key >= Qt::Key_0 && key <= Qt::Key_9)
            return {static_cast<xcb_keysym_t>(XK_KP_0 + key - Qt::Key_0)};
        return lookUp(sKeypadKeys, key);
    }
    if (isCharacter(key))
        return characterSymbols(key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        return {static_cast<xcb_keysym_t>(XK_F1 + key - Qt::Key_F1)};
    // Qt took the codes of the keys for input methods from X.
    if (key >= Qt::Key_Multi_key && key <= Qt::Key_Hangul_Special)
        return {0xff00 | static_cast<xcb_keysym_t>(key & 0xff)};
    return lookUp(sSpecialKeys, key);
}

QVector<xcb_keysym_t> x11CapitalSymbols(int chord)
{
    const int key = keyOf(chord);
    if (modifiersOf(chord) & Qt::KeypadModifier || !isCharacter(key))
        return {};
    const uint capital = QChar::toUpper(static_cast<uint>(key));
    if (capital == QChar::toLower(static_cast<uint>(key)))
        return {};
    QVector<xcb_keysym_t> symbols{capital <= 0xff ? capital : 0x01000000 | capital};
    // Of the symbols older than Unicode, only keyboards with Greek capitals lack the small letters.
    const QVector<xcb_keysym_t> smallSymbols = x11KeySymbols(chord);
    for (const xcb_keysym_t symbol : smallSymbols) {
        if (symbol >= XK_Greek_alpha && symbol <= XK_Greek_omega)
            symbols.append(symbol - XK_Greek_alpha + XK_Greek_ALPHA);
    }
    return symbols;
}
