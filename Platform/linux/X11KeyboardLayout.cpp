// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/X11KeyboardLayout.h"

#include "Platform/linux/DeadKeys.h"
#include "Platform/linux/VirtualKeys.h"
#include "Platform/linux/X11Connection.h"

#include <xkbcommon/xkbcommon-x11.h>

#include <array>
#include <utility>

namespace zt {

namespace {

struct XkbDeleter {
    void operator()(xkb_context *context) const { xkb_context_unref(context); }
    void operator()(xkb_keymap *keymap) const { xkb_keymap_unref(keymap); }
    void operator()(xkb_state *state) const { xkb_state_unref(state); }
};

template <typename T>
using XkbPointer = std::unique_ptr<T, XkbDeleter>;

// The key that chooses a layout's third level is bound to this one by all descriptions in use.
constexpr const char *optionName = "Mod5";

xkb_mod_mask_t maskOf(xkb_keymap *keymap, const char *modifier, bool isOn) {
    const xkb_mod_index_t index = xkb_keymap_mod_get_index(keymap, modifier);
    return isOn && index != XKB_MOD_INVALID ? xkb_mod_mask_t{1} << index : 0;
}

// What the key shows in the state. A dead key shows its accent.
QString shownText(xkb_state *state, xkb_keycode_t key) {
    if (const char16_t accent = accentOfDeadKey(xkb_state_key_get_one_sym(state, key)))
        return QChar(accent);
    std::array<char, 64> utf8 = {};
    const int length = xkb_state_key_get_utf8(state, key, utf8.data(), utf8.size());
    return QString::fromUtf8(utf8.data(), length);
}

} // namespace

class X11KeyboardLayout::Server {
public:
    // Null when there is no server, or none with the keyboard extension.
    static std::unique_ptr<Server> connect() {
        XcbPointer<xcb_connection_t> connection(xcb_connect(nullptr, nullptr));
        XkbPointer<xkb_context> context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES));
        if (!context || xcb_connection_has_error(connection.get()) != 0 ||
            xkb_x11_setup_xkb_extension(
                connection.get(), XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr) == 0)
            return nullptr;
        xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
        return std::unique_ptr<Server>(new Server(std::move(connection), std::move(context)));
    }

    bool isConnected() const { return xcb_connection_has_error(m_connection.get()) == 0; }

    std::optional<QString> textForKey(const VirtualKey &key, const Modifiers &modifiers) const {
        const std::int32_t device = xkb_x11_get_core_keyboard_device_id(m_connection.get());
        if (device < 0)
            return std::nullopt;
        const XkbPointer<xkb_keymap> keymap(xkb_x11_keymap_new_from_device(
            m_context.get(), m_connection.get(), device, XKB_KEYMAP_COMPILE_NO_FLAGS));
        if (!keymap)
            return std::nullopt;
        if (!key.layoutName)
            return key.fixedUnit == 0 ? QString() : QString(QChar(key.fixedUnit));
        const xkb_keycode_t place = xkb_keymap_key_by_name(keymap.get(), key.layoutName);
        if (place == XKB_KEYCODE_INVALID)
            return std::nullopt;
        const XkbPointer<xkb_state> state = stateWith(keymap.get(), device, key, modifiers);
        return state ? std::optional(shownText(state.get(), place)) : std::nullopt;
    }

private:
    Server(XcbPointer<xcb_connection_t> connection, XkbPointer<xkb_context> context)
        : m_connection(std::move(connection))
        , m_context(std::move(context)) {}

    // The state with the layout that is chosen now, but these modifiers and no others.
    XkbPointer<xkb_state> stateWith(xkb_keymap *keymap, std::int32_t device, const VirtualKey &key,
                                    const Modifiers &modifiers) const {
        const XkbPointer<xkb_state> current(
            xkb_x11_state_new_from_device(keymap, m_connection.get(), device));
        XkbPointer<xkb_state> state(xkb_state_new(keymap));
        if (!current || !state)
            return nullptr;
        const xkb_mod_mask_t held = maskOf(keymap, XKB_MOD_NAME_SHIFT, modifiers.shift) |
                                    maskOf(keymap, XKB_MOD_NAME_CTRL, modifiers.control) |
                                    maskOf(keymap, optionName, modifiers.option);
        // The keypad has nothing but digits on the reference platform.
        const xkb_mod_mask_t locked = maskOf(keymap, XKB_MOD_NAME_CAPS, modifiers.capsLock) |
                                      maskOf(keymap, XKB_MOD_NAME_NUM, key.isOnKeypad);
        xkb_state_update_mask(
            state.get(), held, 0, locked, 0, 0,
            xkb_state_serialize_layout(current.get(), XKB_STATE_LAYOUT_EFFECTIVE));
        return state;
    }

    XcbPointer<xcb_connection_t> m_connection;
    XkbPointer<xkb_context> m_context;
};

X11KeyboardLayout::X11KeyboardLayout() = default;

X11KeyboardLayout::~X11KeyboardLayout() = default;

std::optional<QString> X11KeyboardLayout::textForKey(std::uint16_t keyCode,
                                                     const Modifiers &modifiers) const {
    const std::optional<VirtualKey> key = virtualKey(keyCode);
    if (!key)
        return std::nullopt;
    const std::scoped_lock lock(m_mutex);
    if (!m_server || !m_server->isConnected())
        m_server = Server::connect();
    return m_server ? m_server->textForKey(*key, modifiers) : std::nullopt;
}

} // namespace zt
