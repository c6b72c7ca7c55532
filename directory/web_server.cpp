#include "web_server.h"

#include <microhttpd.h>
#include <netdb.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>

namespace corvane::directory {

namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr std::size_t longestBody = std::size_t{16} * 1024;
constexpr unsigned mostConnections = 800;  // a process may have 1024 files open
constexpr unsigned idleSeconds = 10;
constexpr std::chrono::seconds sendingTime{1};  // for the last answers
constexpr std::chrono::milliseconds watchingTime{100};

std::string header(MHD_Connection* connection, const char* name) {
    const char* const value = MHD_lookup_connection_value(connection, MHD_HEADER_KIND, name);
    return value ? value : "";
}

std::string peer(MHD_Connection* connection) {
    const auto* const info = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CLIENT_ADDRESS);
    std::array<char, NI_MAXHOST> text{};
    const socklen_t size = info->client_addr->sa_family == AF_INET6 ? sizeof(sockaddr_in6) : sizeof(sockaddr_in);
    getnameinfo(info->client_addr, size, text.data(), text.size(), nullptr, 0, NI_NUMERICHOST);
    return text.data();
}

// The proxy's own entry; the client can forge those before it.
std::string lastForwarded(const std::string& addresses) {
    const std::size_t comma = addresses.rfind(',');
    const std::size_t start = addresses.find_first_not_of(' ', comma == std::string::npos ? 0 : comma + 1);
    return start == std::string::npos ? "" : addresses.substr(start);
}

std::size_t announcedLength(MHD_Connection* connection) {
    const std::string text = header(connection, MHD_HTTP_HEADER_CONTENT_LENGTH);
    std::size_t length = 0;
    std::from_chars(text.data(), text.data() + text.size(), length);
    return length;
}

Answer tooLong() { return textAnswer(413, "A body may have 16 KiB at most."); }

using AddressList = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

AddressList socketAddress(const std::string& address, int port) {
    addrinfo wanted{};
    wanted.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (getaddrinfo(address.c_str(), std::to_string(port).c_str(), &wanted, &found) != 0)
        throw std::runtime_error("\"" + address + "\" is not an address.");
    return {found, freeaddrinfo};
}

}  // namespace

// A request in progress. `reply` is written before the connection is resumed, and read after.
struct WebServer::Exchange {
    WebRequest request;
    SteadyClock::time_point start = SteadyClock::now();
    bool begun = false;
    bool admitted = false;
    std::optional<Answer> reply;
    int status = 0;
    std::size_t size = 0;
};

WebServer::WebServer(const Options& options, WebSite& site, Log& log) : options_(options), site_(site), log_(log) {
    const AddressList address = socketAddress(options.address, options.port);
    const unsigned family = address->ai_family == AF_INET6 ? unsigned{MHD_USE_IPv6} : 0U;
    const auto handler = [](void* self, MHD_Connection* connection, const char* path, const char* method, const char*,
                            const char* data, std::size_t* size, void** exchange) {
        return static_cast<MHD_Result>(
            static_cast<WebServer*>(self)->take(connection, path, method, data, size, exchange));
    };
    const auto onEnd = [](void* self, MHD_Connection* connection, void** exchange, MHD_RequestTerminationCode how) {
        static_cast<WebServer*>(self)->end(connection, static_cast<Exchange*>(*exchange),
                                           how == MHD_REQUEST_TERMINATED_COMPLETED_OK);
    };
    const auto onConnection = [](void* self, MHD_Connection* connection, void**, MHD_ConnectionNotificationCode what) {
        OpenConnections& connections = static_cast<WebServer*>(self)->connections_;
        if (what == MHD_CONNECTION_NOTIFY_CLOSED) return connections.closed(connection);
        const auto* const info = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD);
        connections.opened(connection, info->connect_fd, SteadyClock::now());
    };
    daemon_ = MHD_start_daemon(
        MHD_USE_EPOLL_INTERNAL_THREAD | MHD_ALLOW_SUSPEND_RESUME | MHD_USE_ITC | family, 0, nullptr, nullptr,
        static_cast<MHD_AccessHandlerCallback>(handler), this,                                        //
        MHD_OPTION_SOCK_ADDR, address->ai_addr,                                                       //
        MHD_OPTION_THREAD_POOL_SIZE, std::max(2U, std::thread::hardware_concurrency()),               //
        MHD_OPTION_CONNECTION_LIMIT, mostConnections,                                                 //
        MHD_OPTION_PER_IP_CONNECTION_LIMIT, options.behindProxy ? 0U : options.connectionsAnAddress,  //
        MHD_OPTION_CONNECTION_TIMEOUT, idleSeconds,                                                   //
        MHD_OPTION_NOTIFY_COMPLETED, static_cast<MHD_RequestCompletedCallback>(onEnd), this,          //
        MHD_OPTION_NOTIFY_CONNECTION, static_cast<MHD_NotifyConnectionCallback>(onConnection), this,  //
        MHD_OPTION_END);
    if (!daemon_)
        throw std::runtime_error("Port " + std::to_string(options.port) + " of " + options.address +
                                 " is taken, or may not be used.");
    watch_ = std::thread([this] { watch(); });
}

WebServer::~WebServer() {
    stop();
    {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
    }
    changed_.notify_all();
    watch_.join();
    MHD_stop_daemon(daemon_);
}

// The library aborts the process if a request waits in it when it stops.
void WebServer::stop() {
    stopping_ = true;
    waiting_->close();
    std::unique_lock lock(mutex_);
    changed_.wait_for(lock, sendingTime, [this] { return admitted_ == 0; });
}

void WebServer::watch() {
    std::unique_lock lock(mutex_);
    while (!stopped_) {
        changed_.wait_for(lock, watchingTime);
        lock.unlock();
        const auto now = SteadyClock::now();
        waiting_->answerLate(now);
        connections_.closeLate(now);
        lock.lock();
    }
}

int WebServer::port() const { return MHD_get_daemon_info(daemon_, MHD_DAEMON_INFO_BIND_PORT)->port; }

// Called once with the head, then for each piece of the body, then for the answer, and again after each wait for it.
int WebServer::take(MHD_Connection* connection, const char* path, const char* method, const char* data,
                    std::size_t* size, void** exchange) {
    if (!*exchange) *exchange = new Exchange;
    Exchange& one = *static_cast<Exchange*>(*exchange);
    if (!one.begun) {
        one.request.method = std::string_view(method) == MHD_HTTP_METHOD_HEAD ? MHD_HTTP_METHOD_GET : method;
        one.request.path = path;
        return begin(connection, one);
    }
    if (*size == 0) return finish(connection, one);
    if (!one.reply && one.request.body.size() + *size > longestBody) one.reply = tooLong();
    if (!one.reply) one.request.body.append(data, *size);
    *size = 0;
    return MHD_YES;
}

// The library closes the connection of a request that is answered before its end, so most answers wait for that.
int WebServer::begin(MHD_Connection* connection, Exchange& exchange) {
    exchange.begun = true;
    exchange.request.address = options_.behindProxy ? lastForwarded(header(connection, "X-Forwarded-For")) : "";
    if (exchange.request.address.empty()) exchange.request.address = peer(connection);
    const char* key = nullptr;
    std::size_t size = 0;
    if (MHD_lookup_connection_value_n(connection, MHD_GET_ARGUMENT_KIND, "key", 3, &key, &size) == MHD_YES && key)
        exchange.request.key.assign(key, size);
    exchange.reply = answerToHead(connection, exchange);
    const bool bodyIsTooLong = announcedLength(connection) > longestBody;
    return bodyIsTooLong ? send(connection, exchange, exchange.reply.value_or(tooLong())) : int{MHD_YES};
}

std::optional<Answer> WebServer::answerToHead(MHD_Connection*, Exchange& exchange) {
    if (stopping_) return stoppingAnswer();
    exchange.admitted = true;
    {
        const std::lock_guard lock(mutex_);
        ++admitted_;
    }
    return site_.answerAtOnce(exchange.request);
}

int WebServer::finish(MHD_Connection* connection, Exchange& exchange) {
    if (exchange.reply) return send(connection, exchange, *exchange.reply);
    MHD_suspend_connection(connection);
    Reply reply = waiting_->enter(SteadyClock::now() + options_.patience, site_.lateText(exchange.request),
                                  [connection, &exchange](Answer answer) {
                                      exchange.reply = std::move(answer);
                                      MHD_resume_connection(connection);
                                  });
    site_.answer(exchange.request, std::move(reply));
    return MHD_YES;
}

int WebServer::send(MHD_Connection* connection, Exchange& exchange, const Answer& answer) const {
    static const auto nothing = std::make_shared<const std::string>();
    auto* const body = new std::shared_ptr<const std::string>(answer.body ? answer.body : nothing);
    // The library promises not to write to the body, although its parameter is not const.
    MHD_Response* const response = MHD_create_response_from_buffer_with_free_callback_cls(
        (*body)->size(), const_cast<char*>((*body)->data()),
        [](void* shared) { delete static_cast<std::shared_ptr<const std::string>*>(shared); }, body);
    const auto add = [response](const char* name, const std::string& value) {
        MHD_add_response_header(response, name, value.c_str());
    };
    add(MHD_HTTP_HEADER_CONTENT_TYPE, std::string(answer.contentType));
    add(MHD_HTTP_HEADER_CACHE_CONTROL, "no-cache");
    add("X-Content-Type-Options", "nosniff");
    add("Content-Security-Policy", "default-src 'self'");
    if (!answer.headerName.empty()) add(answer.headerName.c_str(), answer.headerValue);
    if (stopping_) add(MHD_HTTP_HEADER_CONNECTION, "close");
    exchange.status = answer.status;
    exchange.size = (*body)->size();
    const MHD_Result queued = MHD_queue_response(connection, static_cast<unsigned>(answer.status), response);
    MHD_destroy_response(response);
    return queued;
}

void WebServer::end(MHD_Connection* connection, Exchange* exchange, bool sent) {
    if (!exchange) return;
    const std::unique_ptr<Exchange> one(exchange);
    const auto now = SteadyClock::now();
    connections_.answered(connection, now);
    const std::chrono::duration<double, std::milli> took = now - one->start;
    log_.line("request", {{"address", one->request.address},
                          {"method", one->request.method},
                          {"path", one->request.path},
                          {"status", one->status},
                          {"bytes", one->size},
                          {"ms", std::round(took.count() * 100) / 100},
                          {"sent", sent}});
    if (!one->admitted) return;
    {
        const std::lock_guard lock(mutex_);
        --admitted_;
    }
    if (stopping_) changed_.notify_all();
}

}  // namespace corvane::directory
