// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Key-to-screen latency of a window, seen from outside the program: a key is
// sent through the X server as if typed, and the time runs until the server
// reports the first drawing into the window. Nothing inside the program under
// test is trusted, so a bare Qt window and the game are measured alike.
//
//   keylatency [-n COUNT] [-p PAUSE_MS] [-t TIMEOUT_MS]
//              [-r EVERY:KEY[,KEY...]] [-w RESET_PAUSE_MS] WINDOW KEY...
//
// WINDOW is a window id (decimal, or hex with 0x), as xdotool prints it.
// KEYs are keysym names ("a", "Return", "F2") typed in turn, round and round,
// until COUNT keys were measured. With -r, after every EVERY measured keys
// the listed keys are typed unmeasured, each followed by RESET_PAUSE_MS: the
// game uses this to start a new phrase before a lost game stops repainting.
//
// Each key: wait PAUSE_MS, throw away all drawing reported so far (a lamp
// that fades 400 ms after the last letter is not this letter's paint), read
// the clock, send press and release, and wait for the first damage. A key
// that brings no damage within TIMEOUT_MS is counted apart, not as a time.
#define _POSIX_C_SOURCE 200809L

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <X11/keysym.h>

#include <errno.h>
#include <poll.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

enum { kMaxKeys = 256, kMaxResetKeys = 16 };

struct Options {
    int count;
    int pauseMs;
    int timeoutMs;
    int resetEvery;
    int resetPauseMs;
    int resetKeyCount;
    const char* resetKeys[kMaxResetKeys];
    Window window;
    int keyCount;
    const char* keys[kMaxKeys];
};

static void usage(void) {
    fprintf(stderr,
            "usage: keylatency [-n COUNT] [-p PAUSE_MS] [-t TIMEOUT_MS]\n"
            "                  [-r EVERY:KEY[,KEY...]] [-w RESET_PAUSE_MS] WINDOW KEY...\n");
    exit(2);
}

// A whole non-negative number, or the usage and out: a typo in the script
// must not turn into a silent zero.
static int wholeNumber(const char* text) {
    char* end = NULL;
    errno = 0;
    const long value = strtol(text, &end, 10);
    if (errno != 0 || end == text || *end != '\0' || value < 0 || value > 1000000) {
        fprintf(stderr, "keylatency: not a number: %s\n", text);
        usage();
    }
    return (int)value;
}

static void parseReset(struct Options* o, char* text) {
    char* colon = strchr(text, ':');
    if (!colon) {
        usage();
    }
    *colon = '\0';
    o->resetEvery = wholeNumber(text);
    for (char* key = strtok(colon + 1, ","); key; key = strtok(NULL, ",")) {
        if (o->resetKeyCount == kMaxResetKeys) {
            usage();
        }
        o->resetKeys[o->resetKeyCount++] = key;
    }
    if (o->resetEvery == 0 || o->resetKeyCount == 0) {
        usage();
    }
}

static struct Options parseOptions(int argc, char** argv) {
    struct Options o = {.count = 50, .pauseMs = 700, .timeoutMs = 1000, .resetPauseMs = 1000};
    int i = 1;
    for (; i < argc && argv[i][0] == '-' && argv[i][1] != '\0'; i += 2) {
        if (i + 1 >= argc || argv[i][2] != '\0') {
            usage();
        }
        switch (argv[i][1]) {
        case 'n':
            o.count = wholeNumber(argv[i + 1]);
            break;
        case 'p':
            o.pauseMs = wholeNumber(argv[i + 1]);
            break;
        case 't':
            o.timeoutMs = wholeNumber(argv[i + 1]);
            break;
        case 'r':
            parseReset(&o, argv[i + 1]);
            break;
        case 'w':
            o.resetPauseMs = wholeNumber(argv[i + 1]);
            break;
        default:
            usage();
        }
    }
    if (argc - i < 2 || argc - i - 1 > kMaxKeys || o.count == 0) {
        usage();
    }
    char* end = NULL;
    o.window = (Window)strtoul(argv[i], &end, 0);
    if (end == argv[i] || *end != '\0' || o.window == 0) {
        fprintf(stderr, "keylatency: not a window id: %s\n", argv[i]);
        usage();
    }
    for (++i; i < argc; ++i) {
        o.keys[o.keyCount++] = argv[i];
    }
    return o;
}

static double nowMs(void) {
    struct timespec t;
    clock_gettime(CLOCK_MONOTONIC, &t);
    return (double)t.tv_sec * 1e3 + (double)t.tv_nsec / 1e6;
}

static void sleepMs(int ms) {
    struct timespec t = {.tv_sec = ms / 1000, .tv_nsec = (long)(ms % 1000) * 1000000L};
    while (nanosleep(&t, &t) != 0 && errno == EINTR) {
    }
}

static KeyCode keycodeOf(Display* display, const char* name) {
    const KeySym sym = XStringToKeysym(name);
    const KeyCode code = sym == NoSymbol ? 0 : XKeysymToKeycode(display, sym);
    if (code == 0) {
        fprintf(stderr, "keylatency: no key on this keyboard types %s\n", name);
        exit(2);
    }
    return code;
}

static void typeKey(Display* display, KeyCode code) {
    XTestFakeKeyEvent(display, code, True, CurrentTime);
    XTestFakeKeyEvent(display, code, False, CurrentTime);
    XFlush(display);
}

// Every damage reported up to now, thrown away. The round trip makes sure the
// server has sent all it had: what arrives after it was drawn after it.
static void drainDamage(Display* display) {
    XSync(display, False);
    XEvent event;
    while (XEventsQueued(display, QueuedAlready) > 0) {
        XNextEvent(display, &event);
    }
}

// Waits until the next damage report, or until the deadline; true when one
// came. Other events (there are none we asked for) are skipped.
static int awaitDamage(Display* display, int damageEvent, double deadline) {
    const int fd = ConnectionNumber(display);
    for (;;) {
        while (XEventsQueued(display, QueuedAfterReading) > 0) {
            XEvent event;
            XNextEvent(display, &event);
            if (event.type == damageEvent + XDamageNotify) {
                return 1;
            }
        }
        const double left = deadline - nowMs();
        if (left <= 0) {
            return 0;
        }
        struct pollfd p = {.fd = fd, .events = POLLIN};
        if (poll(&p, 1, (int)left + 1) < 0 && errno != EINTR) {
            perror("keylatency: poll");
            exit(1);
        }
    }
}

// How many more reports trickle in over the next milliseconds: one paint of
// Qt's may reach the server as several images.
static int countDamage(Display* display, int damageEvent, int ms) {
    int reports = 0;
    const double deadline = nowMs() + ms;
    while (awaitDamage(display, damageEvent, deadline)) {
        ++reports;
    }
    return reports;
}

static int compareTimes(const void* a, const void* b) {
    const double x = *(const double*)a;
    const double y = *(const double*)b;
    return (x > y) - (x < y);
}

int main(int argc, char** argv) {
    struct Options o = parseOptions(argc, argv);
    Display* display = XOpenDisplay(NULL);
    if (!display) {
        fprintf(stderr, "keylatency: cannot open the display\n");
        return 1;
    }
    int damageEvent = 0;
    int damageError = 0;
    int major = 0;
    int minor = 0;
    int xtestEvent = 0;
    int xtestError = 0;
    if (!XDamageQueryExtension(display, &damageEvent, &damageError) ||
        !XTestQueryExtension(display, &xtestEvent, &xtestError, &major, &minor)) {
        fprintf(stderr, "keylatency: the X server lacks DAMAGE or XTEST\n");
        return 1;
    }
    KeyCode keys[kMaxKeys];
    for (int k = 0; k < o.keyCount; ++k) {
        keys[k] = keycodeOf(display, o.keys[k]);
    }
    KeyCode resetKeys[kMaxResetKeys];
    for (int k = 0; k < o.resetKeyCount; ++k) {
        resetKeys[k] = keycodeOf(display, o.resetKeys[k]);
    }

    // Raw rectangles: every drawing is reported, with no state to reset
    // between keys, so throwing the reports away is all a drain needs.
    const Damage damage = XDamageCreate(display, o.window, XDamageReportRawRectangles);
    // Without a window manager nobody gives the window the keyboard.
    XSetInputFocus(display, o.window, RevertToPointerRoot, CurrentTime);
    XSync(display, False);

    double* times = calloc((size_t)o.count, sizeof *times);
    if (!times) {
        return 1;
    }
    int painted = 0;
    int unpainted = 0;
    long reports = 0;
    for (int n = 0; n < o.count; ++n) {
        if (o.resetEvery > 0 && n > 0 && n % o.resetEvery == 0) {
            for (int k = 0; k < o.resetKeyCount; ++k) {
                typeKey(display, resetKeys[k]);
                sleepMs(o.resetPauseMs);
            }
        }
        sleepMs(o.pauseMs);
        drainDamage(display);
        const char* name = o.keys[n % o.keyCount];
        const double sent = nowMs();
        typeKey(display, keys[n % o.keyCount]);
        if (!awaitDamage(display, damageEvent, sent + o.timeoutMs)) {
            ++unpainted;
            printf("key %2d %-8s no repaint within %d ms\n", n + 1, name, o.timeoutMs);
            continue;
        }
        const double latency = nowMs() - sent;
        times[painted++] = latency;
        const int more = countDamage(display, damageEvent, 50);
        reports += 1 + more;
        printf("key %2d %-8s %7.2f ms  (%d damage reports within 50 ms)\n", n + 1, name, latency,
               1 + more);
        fflush(stdout);
    }
    XDamageDestroy(display, damage);
    XCloseDisplay(display);

    if (painted > 0) {
        qsort(times, (size_t)painted, sizeof *times, compareTimes);
        const double median =
            painted % 2 ? times[painted / 2] : (times[painted / 2 - 1] + times[painted / 2]) / 2;
        printf("median %.1f ms, worst %.1f ms over %d keys\n", median, times[painted - 1], painted);
        printf("damage reports per painted key: %.1f\n", (double)reports / painted);
    }
    printf("no repaint: %d of %d keys\n", unpainted, o.count);
    free(times);
    return painted > 0 ? 0 : 1;
}
