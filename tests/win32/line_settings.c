#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <termios.h>

/* A pseudo terminal keeps 8 data bits and no parity bit, whatever it is set to. So the programs of this machine
   that are run with this module in them write down what they set a line to: a line for each time, the control
   modes in octal. */
int tcsetattr(int fd, int when, const struct termios* settings) {
    int (*const set)(int, int, const struct termios*) =
        (int (*)(int, int, const struct termios*))dlsym(RTLD_NEXT, "tcsetattr");
    const char* const name = getenv("MVN_TEST_LINE_SETTINGS");
    FILE* const file = name ? fopen(name, "a") : NULL;
    if (file) {
        fprintf(file, "%o\n", settings->c_cflag);
        fclose(file);
    }
    return set(fd, when, settings);
}
