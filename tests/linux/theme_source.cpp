// Stands in for a desktop that gives programs the name of its theme. Reads names, one a line, shows
// each, and then says "ready".

#include <QtEndian>

#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <xcb/xcb.h>

namespace {

xcb_atom_t atom(xcb_connection_t *display, std::string_view name)
{
    const auto asked = xcb_intern_atom(display, 0, static_cast<uint16_t>(name.size()), name.data());
    xcb_intern_atom_reply_t *reply = xcb_intern_atom_reply(display, asked, nullptr);
    const xcb_atom_t found = reply->atom;
    std::free(reply);
    return found;
}

template <typename Number>
std::string little(Number number)
{
    std::string bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

std::string padded(std::string text)
{
    text.resize((text.size() + 3) / 4 * 4);
    return text;
}

std::string text(const std::string &name, const std::string &value)
{
    return std::string("\1\0", 2) + little(static_cast<uint16_t>(name.size())) + padded(name) +
           little(uint32_t(0)) + little(static_cast<uint32_t>(value.size())) + padded(value);
}

/// In the format of XSETTINGS, with settings of each type before the theme.
std::string settings(const std::string &theme)
{
    const std::string number = std::string("\0\0", 2) + little(uint16_t(7)) + padded("Xft/DPI") +
                               little(uint32_t(0)) + little(uint32_t(98304));
    const std::string colour = std::string("\2\0", 2) + little(uint16_t(5)) + padded("Net/A") +
                               little(uint32_t(0)) + std::string(8, '\x7F');
    return std::string(4, '\0') + little(uint32_t(0)) + little(uint32_t(4)) + number + colour +
           text("Gtk/FontName", "Sans 10") + text("Net/ThemeName", theme);
}

} // namespace

int main()
{
    xcb_connection_t *display = xcb_connect(nullptr, nullptr);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const xcb_window_t window = xcb_generate_id(display);
    xcb_create_window(display, 0, window, root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0, 0,
                      nullptr);
    xcb_set_selection_owner(display, window, atom(display, "_XSETTINGS_S0"), XCB_CURRENT_TIME);
    for (std::string theme; std::getline(std::cin, theme);) {
        const std::string shown = settings(theme);
        const xcb_atom_t property = atom(display, "_XSETTINGS_SETTINGS");
        xcb_change_property(display, XCB_PROP_MODE_REPLACE, window, property, property, 8,
                            static_cast<uint32_t>(shown.size()), shown.data());
        atom(display, "_XSETTINGS_S0"); // waits until that is done
        std::cout << "ready" << std::endl;
    }
    xcb_disconnect(display);
}
