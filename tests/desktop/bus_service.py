"""A service on the session bus, for what a desktop would provide."""

import os
import threading

from gi.repository import Gio, GLib


class BusService:
    """On a thread of its own, as the script waits for the program meanwhile. `handle(bus, sender, method, arguments)`
    gives the answer as a variant."""

    def __init__(self, name, path, description, handle, properties):
        self.name, self.path, self.handle, self.properties = name, path, handle, properties
        self.interface = Gio.DBusNodeInfo.new_for_xml(description).interfaces[0]
        self.is_there = threading.Event()
        threading.Thread(target=self.serve, daemon=True).start()
        if not self.is_there.wait(30):
            raise SystemExit(f"{name} did not begin")

    def serve(self):
        context = GLib.MainContext()
        context.push_thread_default()
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self.bus = Gio.DBusConnection.new_for_address_sync(os.environ["DBUS_SESSION_BUS_ADDRESS"], flags)
        self.bus.register_object(self.path, self.interface, self.call, lambda *a: self.properties[a[4]], None)
        Gio.bus_own_name_on_connection(
            self.bus, self.name, Gio.BusNameOwnerFlags.NONE, lambda *_: self.is_there.set())
        GLib.MainLoop(context).run()

    def call(self, bus, sender, _path, _interface, method, arguments, invocation):
        invocation.return_value(self.handle(bus, sender, method, arguments.unpack()))
