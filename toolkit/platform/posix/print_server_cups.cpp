#include <cups/cups.h>
#include <cups/http.h>
#include <cups/ipp.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "toolkit/platform/posix/print_server.h"

namespace {
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds to_list{900};
constexpr milliseconds to_ask{3'000};
// The server may have a slow disk; it does not wait for the device.
constexpr milliseconds to_take_data{10'000};

struct Delete_Message {
    void operator()(ipp_t* message) const { ippDelete(message); }
};
using Message = std::unique_ptr<ipp_t, Delete_Message>;

struct Close_Connection {
    void operator()(http_t* http) const { httpClose(http); }
};

// A connection that waits no longer than to a moment. That holds for a server that falls silent at any point,
// for looking up its name it does not.
class Connection {
public:
    Connection(const PX_Print_Server& server, milliseconds limit) {
        allow(limit);
        const std::string host = server.host.empty() ? cupsServer() : server.host;
        const int port = server.port > 0 ? server.port : ippPort();
        m_http.reset(httpConnect2(host.c_str(), port, nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                  static_cast<int>(limit.count()), nullptr));
        if (!m_http && is_late())
            throw PX_Print_Time_Out();
        if (!m_http)
            throw PX_Print_Error("The print server " + host + " is not there.");
        httpSetTimeout(m_http.get(), 0.05, goes_on, this);
        // A queue that wants a password is one that refuses: there may be nobody to type it.
        cupsSetPasswordCB2(
            [](const char*, http_t*, const char*, const char*, void*) -> const char* { return nullptr; },
            nullptr);
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    http_t* get() const { return m_http.get(); }
    void allow(milliseconds limit) { m_end = Clock::now() + limit; }

    // The answer, also one that refuses: the status is then cupsLastError().
    Message exchange(Message request, const char* resource) {
        Message answer(cupsDoRequest(m_http.get(), request.release(), resource));
        if (!answer)
            fail();
        return answer;
    }
    // For the reason that CUPS tells.
    [[noreturn]] void fail() const {
        if (is_late())
            throw PX_Print_Time_Out();
        const char* const text = cupsLastErrorString();
        throw PX_Print_Error(text && *text ? text : "The print server ended the connection.");
    }

private:
    bool is_late() const { return Clock::now() >= m_end; }
    static int goes_on(http_t*, void* self) { return !static_cast<const Connection*>(self)->is_late(); }

    Clock::time_point m_end;
    std::unique_ptr<http_t, Close_Connection> m_http;
};

bool is_refusal(ipp_status_t status) {
    return status < IPP_STATUS_OK || status > IPP_STATUS_OK_EVENTS_COMPLETE;
}

std::string path_of(const std::string& queue) {
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0, "/printers/%s",
                     queue.c_str());
    return std::strstr(uri, "/printers/");
}

Message request_for(ipp_op_t operation, const std::string& path = {}) {
    Message request(ippNewRequest(operation));
    if (!path.empty())
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                     ("ipp://localhost" + path).c_str());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

void want(const Message& request, const char* const* names, std::size_t count) {
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(count), nullptr, names);
}

constexpr const char* queue_attributes[] = {"printer-name",      "printer-make-and-model", "device-uri",
                                            "printer-info",      "printer-location",       "printer-type",
                                            "printer-is-shared", "queued-job-count"};

void read_attribute(PX_Print_Queue& queue, ipp_attribute_t* attribute) {
    static const struct {
        const char* name;
        std::string PX_Print_Queue::*text;
    } texts[] = {{"printer-name", &PX_Print_Queue::name},
                 {"printer-make-and-model", &PX_Print_Queue::make_and_model},
                 {"device-uri", &PX_Print_Queue::device_uri},
                 {"printer-info", &PX_Print_Queue::description},
                 {"printer-location", &PX_Print_Queue::location}};
    const std::string_view name = ippGetName(attribute);
    for (const auto& row : texts)
        if (const char* text = name == row.name ? ippGetString(attribute, 0, nullptr) : nullptr)
            queue.*row.text = text;
    if (name == "printer-type")
        queue.is_remote = ippGetInteger(attribute, 0) & (CUPS_PRINTER_REMOTE | CUPS_PRINTER_DISCOVERED);
    else if (name == "printer-is-shared")
        queue.is_shared = ippGetBoolean(attribute, 0);
    else if (name == "queued-job-count")
        queue.jobs = ippGetInteger(attribute, 0);
}

// What the device of a queue tells of the machine that serves it. A queue there is one that it shares.
void find_share(PX_Print_Queue& queue) {
    char scheme[HTTP_MAX_URI], user[HTTP_MAX_URI], host[HTTP_MAX_URI], resource[HTTP_MAX_URI];
    int port = 0;
    queue.share_name = queue.name;
    if (!queue.is_remote || httpSeparateURI(HTTP_URI_CODING_ALL, queue.device_uri.c_str(), scheme,
                                            sizeof scheme, user, sizeof user, host, sizeof host, &port,
                                            resource, sizeof resource) < HTTP_URI_STATUS_OK)
        return;
    queue.device_host = host;
    constexpr std::string_view folder = "/printers/";
    if (const std::string_view path = resource; path.starts_with(folder)) {
        queue.share_name = path.substr(folder.size());
        queue.is_shared = true;
    }
}

// A name of at most 255 bytes, without half a character at its end and without control characters.
std::string as_name(std::string text) {
    constexpr std::size_t most = 255;
    if (text.size() > most) {
        std::size_t end = most;
        while (end > 0 && (text[end] & 0xC0) == 0x80)
            --end;
        text.resize(end);
    }
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
    return text;
}

class Cups_Job : public PX_Print_Job {
public:
    Cups_Job(const PX_Print_Server& server, const std::string& queue, const std::string& title)
        : m_server(server), m_queue(queue), m_connection(std::in_place, server, to_take_data) {
        const std::string name = as_name(title);
        create(name);
        if (cupsStartDocument(m_connection->get(), m_queue.c_str(), m_number,
                              name.empty() ? nullptr : name.c_str(), CUPS_FORMAT_RAW,
                              1) != HTTP_STATUS_CONTINUE)
            give_up();
    }
    ~Cups_Job() override {
        if (m_connection)
            abandon();
    }

    int number() const override { return m_number; }

    void write(const char* bytes, std::size_t size) override {
        if (!m_connection)
            throw PX_Print_Error("The job has ended before its document.");
        // The limit is for a piece: a server that takes its time, but takes, is not given up.
        constexpr std::size_t piece = 65'536;
        for (std::size_t at = 0; at < size; at += piece) {
            m_connection->allow(to_take_data);
            m_has_data = true;
            if (cupsWriteRequestData(m_connection->get(), bytes + at, std::min(piece, size - at)) !=
                HTTP_STATUS_CONTINUE)
                give_up();
        }
    }

    void finish() override {
        if (m_is_broken)
            throw PX_Print_Error("The document was lost on its way.");
        if (!m_connection)
            return;
        if (!m_has_data) {
            cancel();
            return;
        }
        m_connection->allow(to_take_data);
        if (is_refusal(cupsFinishDocument(m_connection->get(), m_queue.c_str())) ||
            httpGetStatus(m_connection->get()) != HTTP_STATUS_OK)
            give_up();
        m_connection.reset();
    }

    void cancel() override {
        if (!m_connection)
            return;
        px_cancel_print_job(m_server, m_queue, m_number);
        m_connection.reset();
    }

private:
    void create(const std::string& name) {
        const std::string path = path_of(m_queue);
        Message request = request_for(IPP_OP_CREATE_JOB, path);
        if (!name.empty())
            ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, name.c_str());
        const Message answer = m_connection->exchange(std::move(request), path.c_str());
        ipp_attribute_t* const number = ippFindAttribute(answer.get(), "job-id", IPP_TAG_INTEGER);
        if (is_refusal(cupsLastError()) || !number)
            m_connection->fail();
        m_number = ippGetInteger(number, 0);
    }

    [[noreturn]] void give_up() {
        try {
            m_connection->fail();
        } catch (...) {
            m_is_broken = true;
            abandon();
            throw;
        }
    }

    // The server would keep a job without a document for a quarter of an hour.
    void abandon() {
        m_connection.reset();
        try {
            px_cancel_print_job(m_server, m_queue, m_number);
        } catch (const std::exception&) {
        }
    }

    PX_Print_Server m_server;
    std::string m_queue;
    int m_number = 0;
    bool m_has_data = false;
    bool m_is_broken = false;
    std::optional<Connection> m_connection;  // as long as the document is open
};
}  // namespace

std::vector<PX_Print_Queue> px_print_queues(const PX_Print_Server& server) {
    Message request = request_for(IPP_OP_CUPS_GET_PRINTERS);
    want(request, queue_attributes, std::size(queue_attributes));
    Connection connection(server, to_list);
    const Message answer = connection.exchange(std::move(request), "/");
    // A server without queues has "not found" them.
    if (is_refusal(cupsLastError()) && cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND)
        connection.fail();

    std::vector<PX_Print_Queue> queues;
    bool in_queue = false;
    for (ipp_attribute_t* attribute = ippFirstAttribute(answer.get()); attribute;
         attribute = ippNextAttribute(answer.get())) {
        const bool of_queue = ippGetGroupTag(attribute) == IPP_TAG_PRINTER;
        if (of_queue && !in_queue)
            queues.emplace_back();
        in_queue = of_queue;
        if (in_queue)
            read_attribute(queues.back(), attribute);
    }
    std::for_each(queues.begin(), queues.end(), find_share);
    return queues;
}

void px_find_print_queue(const PX_Print_Server& server, const std::string& queue) {
    Message request = request_for(IPP_OP_GET_PRINTER_ATTRIBUTES, path_of(queue));
    want(request, queue_attributes, 1);
    Connection connection(server, to_ask);
    connection.exchange(std::move(request), "/");
    if (is_refusal(cupsLastError()))
        connection.fail();
}

std::unique_ptr<PX_Print_Job> px_start_print_job(const PX_Print_Server& server, const std::string& queue,
                                                 const std::string& title) {
    return std::make_unique<Cups_Job>(server, queue, title);
}

void px_cancel_print_job(const PX_Print_Server& server, const std::string& queue, int job) {
    Connection connection(server, to_ask);
    if (is_refusal(cupsCancelJob2(connection.get(), queue.c_str(), job, 0)))
        connection.fail();
}
