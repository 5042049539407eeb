#!/usr/bin/python3
"""Runs the real panel under Xvfb with an AT-SPI bus and drives it the way a screen reader does:
reads names, roles and states, and presses controls through their actions.

Usage (inside dbus-run-session): atspi_panel.py PANEL_BINARY
Exit status 77 means the accessibility tools are missing (CTest reports the test as skipped).
"""
import os
import shutil
import subprocess
import sys
import tempfile
import time

SKIP = 77
LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
REGISTRY = "/usr/libexec/at-spi2-registryd"


def wait_for(what, predicate, timeout=60.0):
    deadline = time.monotonic() + timeout
    while time.monotonic() < deadline:
        value = predicate()
        if value:
            return value
        time.sleep(0.2)
    raise AssertionError("timed out waiting for " + what)


def bus_address():
    result = subprocess.run(
        ["dbus-send", "--session", "--print-reply=literal", "--dest=org.a11y.Bus",
         "/org/a11y/bus", "org.a11y.Bus.GetAddress"],
        capture_output=True, text=True)
    return result.stdout.strip() if result.returncode == 0 else None


def find(node, predicate, depth=0):
    if node is None or depth > 40:
        return None
    try:
        if predicate(node):
            return node
        for i in range(node.childCount):
            found = find(node.getChildAtIndex(i), predicate, depth + 1)
            if found is not None:
                return found
    except Exception:
        return None
    return None


def main():
    panel = sys.argv[1]
    missing = [t for t in ("Xvfb", "xprop", "dbus-send") if not shutil.which(t)]
    missing += [p for p in (LAUNCHER, REGISTRY) if not os.path.exists(p)]
    try:
        import pyatspi
    except ImportError:
        missing.append("python3-pyatspi")
    if missing:
        print("SKIP: not installed: " + ", ".join(missing))
        return SKIP

    home = tempfile.mkdtemp(prefix="nx-atspi-")
    os.environ.update({"HOME": home, "XDG_CONFIG_HOME": os.path.join(home, ".config"),
                       "XDG_DATA_HOME": os.path.join(home, ".local", "share"),
                       "XDG_RUNTIME_DIR": home, "QT_QPA_PLATFORM": "xcb",
                       "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_ACCESSIBILITY": "1",
                       "NO_AT_BRIDGE": "0"})
    started = []
    try:
        # The server picks a free display itself. Without -noreset it drops the root property
        # that carries the bus address.
        server = subprocess.Popen(["Xvfb", "-displayfd", "1", "-noreset", "-nolisten", "tcp",
                                   "-screen", "0", "1280x1024x24"], stdout=subprocess.PIPE,
                                  stderr=subprocess.DEVNULL)
        started.append(server)
        os.environ["DISPLAY"] = ":" + server.stdout.readline().decode().strip()
        started.append(subprocess.Popen([LAUNCHER], stderr=subprocess.DEVNULL))
        address = wait_for("org.a11y.Bus", bus_address)
        subprocess.run(["xprop", "-root", "-f", "AT_SPI_BUS", "8s", "-set", "AT_SPI_BUS",
                        address], check=True)
        started.append(subprocess.Popen([REGISTRY], stderr=subprocess.DEVNULL))
        time.sleep(0.5)
        started.append(subprocess.Popen([panel], stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL))

        desktop = pyatspi.Registry.getDesktop(0)
        app = wait_for("the panel on the accessibility bus", lambda: next(
            (a for a in desktop if a is not None and a.name == "norvalex-rgb"), None), 90)

        def named(name, roles):
            return lambda n: n.name == name and n.getRole() in roles

        # No window of the panel but its frame is showing.
        showing = [app.getChildAtIndex(i) for i in range(app.childCount)]
        showing = [w for w in showing if w is not None and
                   w.getState().contains(pyatspi.STATE_SHOWING)]
        assert len(showing) == 1, [w.name for w in showing]
        assert showing[0].name != "NORVALEX", "the controller's window is exposed"

        tab_roles = (pyatspi.ROLE_PAGE_TAB,)
        settings = wait_for("the Settings tab", lambda: find(app, named("Settings", tab_roles)))
        settings.queryAction().doAction(0)
        switch_roles = (pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_TOGGLE_BUTTON)
        auto_update = wait_for("the Auto Update switch", lambda: find(
            app, lambda n: named("Auto Update", switch_roles)(n) and
            n.getState().contains(pyatspi.STATE_SHOWING)))

        was_checked = auto_update.getState().contains(pyatspi.STATE_CHECKED)
        auto_update.queryAction().doAction(0)
        wait_for("the switch to change", lambda: auto_update.getState().contains(
            pyatspi.STATE_CHECKED) != was_checked, 20)

        find(app, named("Information", tab_roles)).queryAction().doAction(0)
        wait_for("the load gauge", lambda: find(
            app, lambda n: n.name == "Load" and n.getRole() == pyatspi.ROLE_PROGRESS_BAR and
            n.getState().contains(pyatspi.STATE_SHOWING)))
        print("PASS")
        return 0
    finally:
        for process in reversed(started):
            process.terminate()
            try:
                process.wait(timeout=10)
            except subprocess.TimeoutExpired:
                process.kill()
        # The panel started the control service detached, holding its lock in our runtime
        # directory.
        try:
            with open(os.path.join(home, "norvalex-mutex-NORVALEX_Control.exe.lock")) as lock:
                os.kill(int(lock.readline()), 15)
        except (OSError, ValueError):
            pass
        shutil.rmtree(home, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
