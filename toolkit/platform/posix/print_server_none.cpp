#include "toolkit/platform/posix/print_server.h"

namespace {
[[noreturn]] void fail() {
    throw PX_Print_Error("The toolkit was built without a print server.");
}
}  // namespace

std::vector<PX_Print_Queue> px_print_queues(const PX_Print_Server&) {
    fail();
}

void px_find_print_queue(const PX_Print_Server&, const std::string&) {
    fail();
}

std::unique_ptr<PX_Print_Job> px_start_print_job(const PX_Print_Server&, const std::string&,
                                                 const std::string&) {
    fail();
}

void px_cancel_print_job(const PX_Print_Server&, const std::string&, int) {
    fail();
}
