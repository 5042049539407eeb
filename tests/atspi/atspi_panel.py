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


def free_display():
    for number in range(90 + os.getpid() % 300, 700):
        if not os.path.exists("/tmp/.X11-unix/X%d" % number) and not os.path.exists(
                "/tmp/.X%d-lock" % number):
            return ":%d" % number
    raise AssertionError("no free X display")


def bus_address():
    result = subprocess.run(
        ["dbus-send", "--session", "--print-reply=literal", "--dest=org.a11y.Bus",
         "/org/a11y/bus", "org.a11y.Bus.GetAddress"],
        capture_output=True, text=True)
    return result.stdout.strip() if result.returncode == 0 else None


def stop_services_of(home):
    # The panel starts the control service detached; stop the one it started in our home only.
    marker = ("HOME=" + home).encode()
    for entry in os.listdir("/proc"):
        if not entry.isdigit():
            continue
        try:
            with open("/proc/%s/cmdline" % entry, "rb") as f:
                if b"norvalex-control" not in f.read():
                    continue
            with open("/proc/%s/environ" % entry, "rb") as f:
                if marker not in f.read().split(b"\0"):
                    continue
            os.kill(int(entry), 15)
        except (OSError, ValueError):
            continue


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
    for tool in ("Xvfb", "xprop", "dbus-send", "xdotool"):
        if not shutil.which(tool):
            print("SKIP: %s is not installed" % tool)
            return SKIP
    if not (os.path.exists(LAUNCHER) and os.path.exists(REGISTRY)):
        print("SKIP: at-spi2-core is not installed")
        return SKIP
    try:
        import pyatspi  # noqa: F401 (imported after the bus is up below)
    except ImportError:
        print("SKIP: python3-pyatspi is not installed")
        return SKIP

    home = tempfile.mkdtemp(prefix="nx-atspi-")
    env = dict(os.environ)
    env.update({"DISPLAY": free_display(), "HOME": home,
                "XDG_CONFIG_HOME": os.path.join(home, ".config"),
                "XDG_DATA_HOME": os.path.join(home, ".local", "share"),
                "XDG_RUNTIME_DIR": home, "QT_QPA_PLATFORM": "xcb",
                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_ACCESSIBILITY": "1",
                "NO_AT_BRIDGE": "0"})
    os.environ.update(env)
    started = []
    try:
        # Without -noreset the server drops the root property that carries the bus address.
        started.append(subprocess.Popen(["Xvfb", env["DISPLAY"], "-noreset", "-screen", "0",
                                         "1280x1024x24"], env=env, stderr=subprocess.DEVNULL))
        wait_for("the X server", lambda: subprocess.run(
            ["xprop", "-root"], env=env, capture_output=True).returncode == 0)
        started.append(subprocess.Popen([LAUNCHER], env=env, stderr=subprocess.DEVNULL))
        address = wait_for("org.a11y.Bus", bus_address)
        subprocess.run(["xprop", "-root", "-f", "AT_SPI_BUS", "8s", "-set", "AT_SPI_BUS",
                        address], env=env, check=True)
        started.append(subprocess.Popen([REGISTRY], env=env, stderr=subprocess.DEVNULL))
        time.sleep(0.5)
        started.append(subprocess.Popen([panel], env=env, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL, start_new_session=True))

        import pyatspi
        desktop = pyatspi.Registry.getDesktop(0)

        def application():
            for i in range(desktop.childCount):
                app = desktop.getChildAtIndex(i)
                if app is not None and app.name == "norvalex-rgb":
                    return app
            return None

        app = wait_for("the panel on the accessibility bus", application, 90)

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

        # Keyboard alone: Tab reaches the switches, the language button and the window buttons,
        # and Space switches the focused switch.
        def key(name):
            subprocess.run(["xdotool", "key", "--clearmodifiers", name], env=env, check=True)

        frame = subprocess.run(["xdotool", "search", "--name", showing[0].name], env=env,
                               capture_output=True, text=True).stdout.split()
        assert frame, "the frame has no X window"
        subprocess.run(["xdotool", "windowfocus", "--sync", frame[-1]], env=env)

        def focused():
            return find(app, lambda n: n.getState().contains(pyatspi.STATE_FOCUSED) and
                        n.getRole() != pyatspi.ROLE_FRAME)

        reached = []
        for _ in range(40):
            key("Tab")
            time.sleep(0.15)
            node = focused()
            if node is not None:
                reached.append(node.name)
        for expected in ("Auto Update", "Language", "Close", "Minimize"):
            assert expected in reached, (expected, reached)
        # The menu is one tab stop, as a group of tabs is; the arrows move within it.
        menu = ("Information", "Lighting", "Notification", "Settings")
        assert any(name in reached for name in menu), reached
        wait_for("Tab to come to Auto Update", lambda: (key("Tab"), time.sleep(0.1),
                 (focused() or desktop).name == "Auto Update")[-1], 60)
        was_checked = auto_update.getState().contains(pyatspi.STATE_CHECKED)
        key("space")
        wait_for("Space to switch", lambda: auto_update.getState().contains(
            pyatspi.STATE_CHECKED) != was_checked, 20)

        info = find(app, named("Information", tab_roles))
        info.queryAction().doAction(0)
        wait_for("the load gauge", lambda: find(
            app, lambda n: n.name == "Load" and n.getRole() == pyatspi.ROLE_PROGRESS_BAR and
            n.getState().contains(pyatspi.STATE_SHOWING)))
        print("PASS")
        return 0
    finally:
        for process in reversed(started):
            try:
                if process is started[-1]:
                    os.killpg(process.pid, 15)
                else:
                    process.terminate()
                process.wait(timeout=10)
            except Exception:
                process.kill()
        stop_services_of(home)
        shutil.rmtree(home, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
