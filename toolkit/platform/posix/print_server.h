#pragma once

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

// What the posix platform asks of the machine's print server: through CUPS, or of nobody where the toolkit
// was built without it. Texts are UTF-8; a failure is a PX_Print_Error.

class PX_Print_Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class PX_Print_Time_Out : public PX_Print_Error {
public:
    PX_Print_Time_Out() : PX_Print_Error("The print server does not answer.") {}
};

// An empty host and port 0: the ones that the machine is set up for.
struct PX_Print_Server {
    std::string host;
    int port = 0;
};

struct PX_Print_Queue {
    std::string name;
    std::string make_and_model;
    std::string device_uri;
    std::string description;
    std::string location;
    std::string device_host;  // of a queue that another machine prints
    std::string share_name;   // there, or else here
    int jobs = 0;
    bool is_remote = false;
    bool is_shared = false;
};

// A document on its way into a queue. One that is neither finished nor cancelled is cancelled at the end.
class PX_Print_Job {
public:
    virtual ~PX_Print_Job() = default;
    virtual int number() const = 0;
    // After a failure no more bytes are taken.
    virtual void write(const char* bytes, std::size_t size) = 0;
    // A job without a byte is cancelled, and so is one that the server does not take; only the latter is a
    // failure. After a failure of writing it fails; after a cancelling there is nothing left to do.
    virtual void finish() = 0;
    virtual void cancel() = 0;
};

// Within a second, come what may; a PX_Print_Time_Out where that is over.
std::vector<PX_Print_Queue> px_print_queues(const PX_Print_Server& server);

// Fails for a queue that the server does not know.
void px_find_print_queue(const PX_Print_Server& server, const std::string& queue);

std::unique_ptr<PX_Print_Job> px_start_print_job(const PX_Print_Server& server, const std::string& queue,
                                                 const std::string& title);

void px_cancel_print_job(const PX_Print_Server& server, const std::string& queue, int job);
