/* Waits for a top-level window with the given title to be mapped and prints the wall-clock time
 * of that moment in milliseconds since the epoch.
 *   nx_map_watch TITLE
 * It prints "ready" once it listens, so a caller can start the program to watch after it. It
 * sleeps in the X connection meanwhile: unlike polling with a search tool, it takes no CPU from
 * the program whose start-up is measured. */
#define _POSIX_C_SOURCE 200809L
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

static int titleIs(Display* display, Window window, const char* title)
{
    Atom type;
    int format;
    unsigned long count, after;
    unsigned char* value = NULL;
    Atom netName = XInternAtom(display, "_NET_WM_NAME", False);
    Atom utf8 = XInternAtom(display, "UTF8_STRING", False);
    int same = 0;
    if (XGetWindowProperty(display, window, netName, 0, 256, False, utf8, &type, &format, &count,
                           &after, &value) == Success &&
        value != NULL) {
        same = strcmp((const char*)value, title) == 0;
        XFree(value);
        return same;
    }
    char* name = NULL;
    if (XFetchName(display, window, &name) && name != NULL) {
        same = strcmp(name, title) == 0;
        XFree(name);
    }
    return same;
}

static int ignoreErrors(Display* display, XErrorEvent* error)
{
    (void)display;
    (void)error;
    return 0;
}

int main(int argc, char* argv[])
{
    if (argc != 2) {
        fprintf(stderr, "usage: nx_map_watch TITLE\n");
        return 2;
    }
    Display* display = XOpenDisplay(NULL);
    if (display == NULL) {
        fprintf(stderr, "nx_map_watch: cannot open the display\n");
        return 2;
    }
    /* A window may be gone by the time its title is read. */
    XSetErrorHandler(ignoreErrors);
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    XSync(display, False);
    printf("ready\n");
    fflush(stdout);
    for (;;) {
        XEvent event;
        XNextEvent(display, &event);
        if (event.type != MapNotify)
            continue;
        struct timespec now;
        clock_gettime(CLOCK_REALTIME, &now);
        if (!titleIs(display, event.xmap.window, argv[1]))
            continue;
        printf("%lld\n", (long long)now.tv_sec * 1000 + now.tv_nsec / 1000000);
        XCloseDisplay(display);
        return 0;
    }
}
