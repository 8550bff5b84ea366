"""A desktop's bar that shows icons over the session bus, as Wayland's do. It comes in two parts, of which only the
first is there from the beginning: the watcher, and the host, which shows the icons."""

from accessible import wait_for
from bus_service import BusService
from gi.repository import Gio, GLib

NAME = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
INTERFACE = f"""<node>
  <interface name="{NAME}">
    <method name="RegisterStatusNotifierItem"><arg direction="in" type="s"/></method>
    <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
    <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
    <property name="ProtocolVersion" type="i" access="read"/>
    <signal name="StatusNotifierHostRegistered"/>
  </interface>
</node>"""


class StatusNotifier:
    def __init__(self):
        self.items = []
        self.properties = {
            "IsStatusNotifierHostRegistered": GLib.Variant("b", False),
            "RegisteredStatusNotifierItems": GLib.Variant("as", []),
            "ProtocolVersion": GLib.Variant("i", 0),
        }
        self.service = BusService(NAME, "/StatusNotifierWatcher", INTERFACE, self.register, self.properties)

    def begin_host(self):
        self.properties["IsStatusNotifierHostRegistered"] = GLib.Variant("b", True)
        self.service.bus.emit_signal(None, "/StatusNotifierWatcher", NAME, "StatusNotifierHostRegistered", None)

    def register(self, _bus, sender, _method, arguments):
        name = arguments[0]
        self.items.append(sender if name.startswith("/") else name)

    def item(self, name=None):
        """The icon's object on the bus, or one of its properties."""
        service = wait_for("an icon", lambda: self.items)[-1]
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        proxy = Gio.DBusProxy.new_sync(bus, Gio.DBusProxyFlags.NONE, None, service, "/StatusNotifierItem", ITEM)
        return proxy.get_cached_property(name).unpack() if name else proxy

    def press(self):
        self.item().call_sync("Activate", GLib.Variant("(ii)", (0, 0)), Gio.DBusCallFlags.NONE, -1)
