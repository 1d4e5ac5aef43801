#include "support/XClient.h"

#include <QScopedPointer>

#include <xcb/xtest.h>

#include <algorithm>

template<typename T> using XcbPointer = QScopedPointer<T, QScopedPointerPodDeleter>;

XClient::XClient() : mConnection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(mConnection))
        qFatal("no X server");
    mRoot = xcb_setup_roots_iterator(xcb_get_setup(mConnection)).data->root;
}

XClient::~XClient()
{
    xcb_disconnect(mConnection);
}

void XClient::sync() const
{
    const XcbPointer<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(mConnection, xcb_get_input_focus(mConnection), nullptr));
}

xcb_keycode_t XClient::keyOf(xcb_keysym_t symbol) const
{
    const xcb_setup_t *setup = xcb_get_setup(mConnection);
    for (int key = setup->min_keycode; key <= setup->max_keycode; ++key) {
        if (symbolsOf(static_cast<xcb_keycode_t>(key)).contains(symbol))
            return static_cast<xcb_keycode_t>(key);
    }
    return 0;
}

xcb_keycode_t XClient::emptyKey() const
{
    const xcb_setup_t *setup = xcb_get_setup(mConnection);
    for (int key = setup->max_keycode; key >= setup->min_keycode; --key) {
        const auto symbols = symbolsOf(static_cast<xcb_keycode_t>(key));
        if (symbols.count(XCB_NO_SYMBOL) == symbols.size())
            return static_cast<xcb_keycode_t>(key);
    }
    return 0;
}

void XClient::type(const QVector<xcb_keysym_t> &symbols)
{
    for (const xcb_keysym_t symbol : symbols)
        send(keyOf(symbol), true);
    for (auto symbol = symbols.crbegin(); symbol != symbols.crend(); ++symbol)
        send(keyOf(*symbol), false);
}

void XClient::send(xcb_keycode_t key, bool press)
{
    xcb_test_fake_input(mConnection, press ? XCB_KEY_PRESS : XCB_KEY_RELEASE, key, XCB_CURRENT_TIME,
                        mRoot, 0, 0, 0);
    sync();
}

void XClient::setLock(xcb_keysym_t symbol, quint16 mask, bool on)
{
    if (((modifiers() & mask) != 0) != on)
        type({symbol});
}

quint16 XClient::modifiers() const
{
    const XcbPointer<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(mConnection, xcb_query_pointer(mConnection, mRoot), nullptr));
    return reply ? reply->mask & 0xff : 0;
}

bool XClient::grab(xcb_keycode_t key, quint16 modifiers)
{
    const XcbPointer<xcb_generic_error_t> error(xcb_request_check(
        mConnection, xcb_grab_key_checked(mConnection, false, mRoot, modifiers, key,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC)));
    return !error;
}

void XClient::ungrab(xcb_keycode_t key, quint16 modifiers)
{
    xcb_ungrab_key(mConnection, key, mRoot, modifiers);
    sync();
}

bool XClient::canGrab(xcb_keycode_t key, quint16 modifiers)
{
    const bool granted = grab(key, modifiers);
    ungrab(key, modifiers);
    return granted;
}

QVector<xcb_keysym_t> XClient::symbolsOf(xcb_keycode_t key) const
{
    const XcbPointer<xcb_get_keyboard_mapping_reply_t> reply(xcb_get_keyboard_mapping_reply(
        mConnection, xcb_get_keyboard_mapping(mConnection, key, 1), nullptr));
    if (!reply)
        return {};
    QVector<xcb_keysym_t> symbols(reply->keysyms_per_keycode);
    std::copy_n(xcb_get_keyboard_mapping_keysyms(reply.data()), symbols.size(), symbols.begin());
    return symbols;
}

void XClient::setSymbols(xcb_keycode_t key, const QVector<xcb_keysym_t> &symbols)
{
    xcb_change_keyboard_mapping(mConnection, 1, key, static_cast<uint8_t>(symbols.size()),
                                symbols.constData());
    sync();
}

QVector<xcb_keycode_t> XClient::modifierMap() const
{
    const XcbPointer<xcb_get_modifier_mapping_reply_t> reply(xcb_get_modifier_mapping_reply(
        mConnection, xcb_get_modifier_mapping(mConnection), nullptr));
    if (!reply)
        return {};
    QVector<xcb_keycode_t> map(8 * reply->keycodes_per_modifier);
    std::copy_n(xcb_get_modifier_mapping_keycodes(reply.data()), map.size(), map.begin());
    return map;
}

bool XClient::setModifierMap(const QVector<xcb_keycode_t> &map)
{
    const XcbPointer<xcb_set_modifier_mapping_reply_t> reply(xcb_set_modifier_mapping_reply(
        mConnection,
        xcb_set_modifier_mapping(mConnection, static_cast<uint8_t>(map.size() / 8),
                                 map.constData()),
        nullptr));
    return reply && reply->status == XCB_MAPPING_STATUS_SUCCESS;
}

void XClient::takeFocus()
{
    const xcb_window_t window = xcb_generate_id(mConnection);
    xcb_create_window(mConnection, XCB_COPY_FROM_PARENT, window, mRoot, 0, 0, 10, 10, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_map_window(mConnection, window);
    xcb_set_input_focus(mConnection, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    sync();
}
