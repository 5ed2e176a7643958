"""Stands in for the desktop's portal of settings, on the session bus."""

import os

from gi.repository import Gio, GLib

GROUP, KEY = "org.freedesktop.appearance", "color-scheme"
NO_PREFERENCE, DARK, LIGHT = 0, 1, 2
INTERFACE = """<node><interface name="org.freedesktop.portal.Settings">
    <method name="Read"><arg direction="in" type="s"/><arg direction="in" type="s"/>
        <arg direction="out" type="v"/></method>
    <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>"""
PATH = "/org/freedesktop/portal/desktop"


class Portal:
    """Answers while the main loop runs."""

    def __init__(self, scheme):
        self._scheme = scheme
        self._bus = Gio.DBusConnection.new_for_address_sync(
            os.environ["DBUS_SESSION_BUS_ADDRESS"],
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        self._interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        self._bus.register_object(PATH, self._interface, self._answer, None, None)
        self._name = Gio.bus_own_name_on_connection(
            self._bus, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE, None, None)

    def _answer(self, _bus, _sender, _path, _interface, _method, asked, call):
        assert asked.unpack() == (GROUP, KEY)
        scheme = GLib.Variant("v", GLib.Variant("u", self._scheme))
        call.return_value(GLib.Variant("(v)", (scheme,)))

    def change(self, scheme):
        self._scheme = scheme
        self._bus.emit_signal(None, PATH, self._interface.name, "SettingChanged",
                              GLib.Variant("(ssv)", (GROUP, KEY, GLib.Variant("u", scheme))))

    def close(self):
        Gio.bus_unown_name(self._name)
        self._bus.close_sync(None)
