#include <unistd.h>

#include <iostream>

#include "examples/plot_host/find_driver.h"
#include "examples/plot_host/host.h"

int main(int count, char** words) {
    const bool is_terminal = isatty(STDERR_FILENO) != 0;
    return plot_host::run(count, words, plot_host::find_driver, std::cout, std::cerr,
                          {is_terminal && isatty(STDIN_FILENO) != 0, is_terminal});
}
