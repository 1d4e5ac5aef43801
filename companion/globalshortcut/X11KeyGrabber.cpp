#include "X11KeyGrabber_p.h"

#include "Xkb_p.h"

#include <QScopedPointer>
#include <QSocketNotifier>

#include <algorithm>
#include <utility>

namespace {

template<typename T> using XcbPointer = QScopedPointer<T, QScopedPointerPodDeleter>;

/// In milliseconds: less than a user needs to press a key again.
constexpr int sReleaseInterval = 20;

/// Returns the modifiers of `combination` with every subset of its ignored modifiers.
QVector<quint16> modifierStates(const KeyCombination &combination)
{
    QVector<quint16> states;
    // Enumerates all subsets of the bits of `ignored` in descending order.
    for (quint32 subset = combination.ignored;; subset = (subset - 1) & combination.ignored) {
        states.append(static_cast<quint16>(combination.modifiers | subset));
        if (subset == 0)
            return states;
    }
}

} // namespace

X11KeyGrabber::X11KeyGrabber(Listener &listener)
    : mListener(listener), mConnection(xcb_connect(nullptr, nullptr))
{
    if (!isSupported())
        return;
    for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(mConnection)); screen.rem;
         xcb_screen_next(&screen))
        mRoots.append(screen.data->root);
    startXkb();
    mKeyboard.load(mConnection);
    mNotifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(mConnection),
                                                  QSocketNotifier::Read);
    QObject::connect(mNotifier.get(), &QSocketNotifier::activated, &mContext,
                     [this] { readEvents(); });
    mReleaseTimer.setInterval(sReleaseInterval);
    QObject::connect(&mReleaseTimer, &QTimer::timeout, &mContext, [this] { forgetReleasedKeys(); });
    readEventsLater();
}

X11KeyGrabber::~X11KeyGrabber()
{
    mNotifier.reset();
    xcb_disconnect(mConnection);
}

// With XKB the server reports every change of the keyboard mapping, and key repeat consists of
// presses without releases between them.
void X11KeyGrabber::startXkb()
{
    const XcbPointer<xcb_xkb_use_extension_reply_t> use(xcb_xkb_use_extension_reply(
        mConnection,
        xcb_xkb_use_extension(mConnection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION), nullptr));
    if (!use || !use->supported)
        return;
    mFirstXkbEvent = xcb_get_extension_data(mConnection, &xcb_xkb_id)->first_event;
    constexpr uint16_t events = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY
                                | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr uint16_t mapParts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS
                                  | XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_VIRTUAL_MODS
                                  | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;
    xcb_xkb_select_events(mConnection, XCB_XKB_ID_USE_CORE_KBD, events, 0, events, mapParts,
                          mapParts, nullptr);
    constexpr uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const XcbPointer<xcb_xkb_per_client_flags_reply_t> flags(xcb_xkb_per_client_flags_reply(
        mConnection,
        xcb_xkb_per_client_flags(mConnection, XCB_XKB_ID_USE_CORE_KBD, flag, flag, 0, 0, 0),
        nullptr));
}

bool X11KeyGrabber::isSupported() const
{
    return !xcb_connection_has_error(mConnection);
}

QVector<KeyCombination> X11KeyGrabber::combinations(int chord) const
{
    return isSupported() ? mKeyboard.combinations(chord) : QVector<KeyCombination>();
}

bool X11KeyGrabber::grab(const KeyCombination &combination)
{
    // A key that is held when it is grabbed, because a field has just recorded it, repeats into the
    // grab. The server reports its release only after that, so it is polled.
    if (isDown(combination.key)) {
        mKeysDownBefore.append(combination.key);
        mReleaseTimer.start();
    }
    const QVector<quint16> states = modifierStates(combination);
    QVector<xcb_void_cookie_t> requests;
    for (const xcb_window_t root : std::as_const(mRoots)) {
        for (const quint16 state : states)
            requests.append(xcb_grab_key_checked(mConnection, false, root, state,
                                                 static_cast<xcb_keycode_t>(combination.key),
                                                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    bool granted = isSupported();
    for (const xcb_void_cookie_t request : std::as_const(requests)) {
        const XcbPointer<xcb_generic_error_t> error(xcb_request_check(mConnection, request));
        granted = granted && !error;
    }
    if (!granted)
        ungrab(combination);
    readEventsLater();
    return granted;
}

void X11KeyGrabber::ungrab(const KeyCombination &combination)
{
    const QVector<quint16> states = modifierStates(combination);
    for (const xcb_window_t root : std::as_const(mRoots)) {
        for (const quint16 state : states)
            xcb_ungrab_key(mConnection, static_cast<xcb_keycode_t>(combination.key), root, state);
    }
    // The reply to any request shows that the server has processed the ones before it.
    const XcbPointer<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(mConnection, xcb_get_input_focus(mConnection), nullptr));
    readEventsLater();
}

bool X11KeyGrabber::isDown(quint32 key) const
{
    const XcbPointer<xcb_query_keymap_reply_t> keymap(
        xcb_query_keymap_reply(mConnection, xcb_query_keymap(mConnection), nullptr));
    return keymap && (keymap->keys[key / 8] >> key % 8 & 1) != 0;
}

void X11KeyGrabber::forgetReleasedKeys()
{
    const auto isReleased = [this](quint32 key) { return !isDown(key); };
    mKeysDownBefore.erase(
        std::remove_if(mKeysDownBefore.begin(), mKeysDownBefore.end(), isReleased),
        mKeysDownBefore.end());
    if (mKeysDownBefore.isEmpty())
        mReleaseTimer.stop();
    readEventsLater();
}

// Waiting for a reply also reads events from the socket, which the notifier then does not report.
void X11KeyGrabber::readEventsLater()
{
    QMetaObject::invokeMethod(
        &mContext, [this] { readEvents(); }, Qt::QueuedConnection);
}

void X11KeyGrabber::readEvents()
{
    bool keyboardChanged = false;
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(mConnection)})
        keyboardChanged |= handleEvent(*event);
    if (!isSupported()) {
        // The connection is broken, and the socket would remain readable.
        mNotifier->setEnabled(false);
        mListener.keyboardChanged();
    } else if (keyboardChanged) {
        mKeyboard.load(mConnection);
        mListener.keyboardChanged();
    }
}

// Returns whether the event reports a new keyboard mapping.
bool X11KeyGrabber::handleEvent(const xcb_generic_event_t &event)
{
    const int type = event.response_type & 0x7f;
    if (type == XCB_KEY_PRESS) {
        handleKeyPress(reinterpret_cast<const xcb_key_press_event_t &>(event));
    } else if (type == XCB_KEY_RELEASE) {
        const auto &release = reinterpret_cast<const xcb_key_release_event_t &>(event);
        if (release.detail == mHeldKey)
            mHeldKey = 0;
        mKeysDownBefore.removeAll(release.detail);
    } else if (type == XCB_MAPPING_NOTIFY) {
        const auto &mapping = reinterpret_cast<const xcb_mapping_notify_event_t &>(event);
        return mapping.request != XCB_MAPPING_POINTER;
    }
    return type == mFirstXkbEvent;
}

void X11KeyGrabber::handleKeyPress(const xcb_key_press_event_t &event)
{
    if (event.detail == mHeldKey || mKeysDownBefore.contains(event.detail))
        return;
    mHeldKey = event.detail;
    // The bits above the eight modifiers are pointer buttons and the keyboard layout.
    mListener.keyPressed(event.detail, event.state & 0xffU);
}
