#include <iostream>

#include "examples/drivers/ppd/definition.h"
#include "examples/plot_host/host.h"

int main(int count, char** words) {
    return plot_host::run(count, words, open_ppd_device, std::cout, std::cerr);
}
