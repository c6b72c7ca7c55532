#include "web_server.h"

#include <microhttpd.h>
#include <netdb.h>
#include <strings.h>
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

// The lines of a request's head with this name.
std::vector<std::string> headers(MHD_Connection* connection, std::string_view name) {
    struct Search {
        std::string_view name;
        std::vector<std::string> found;
    } search{name, {}};
    const auto take = [](void* cls, MHD_ValueKind, const char* key, const char* value) {
        auto& one = *static_cast<Search*>(cls);
        if (std::string_view(key).size() == one.name.size() && strcasecmp(key, one.name.data()) == 0)
            one.found.emplace_back(value ? value : "");
        return MHD_YES;
    };
    MHD_get_connection_values(connection, MHD_HEADER_KIND, static_cast<MHD_KeyValueIterator>(take), &search);
    return std::move(search.found);
}

Address peer(MHD_Connection* connection) {
    return Address(*MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CLIENT_ADDRESS)->client_addr);
}

// A proxy and this server could disagree where such a request ends, or for whom it is.
bool isUnclear(MHD_Connection* connection, std::string_view version) {
    const auto hasBlank = [](void* cls, MHD_ValueKind, const char* key, const char*) {
        bool& found = *static_cast<bool*>(cls);
        found = found || std::string_view(key).find_first_of(" \t") != std::string_view::npos;
        return MHD_YES;
    };
    bool blankBeforeColon = false;
    MHD_get_connection_values(connection, MHD_HEADER_KIND, static_cast<MHD_KeyValueIterator>(hasBlank),
                              &blankBeforeColon);
    const std::size_t lengths = headers(connection, MHD_HTTP_HEADER_CONTENT_LENGTH).size();
    const std::size_t encodings = headers(connection, MHD_HTTP_HEADER_TRANSFER_ENCODING).size();
    const std::size_t hosts = headers(connection, MHD_HTTP_HEADER_HOST).size();
    return blankBeforeColon || lengths + encodings > 1 || hosts > 1 || (hosts == 0 && version == MHD_HTTP_VERSION_1_1);
}

std::size_t announcedLength(MHD_Connection* connection) {
    std::size_t length = 0;
    for (const std::string& text : headers(connection, MHD_HTTP_HEADER_CONTENT_LENGTH))
        std::from_chars(text.data(), text.data() + text.size(), length);
    return length;
}

// Older programs send the key in the query.
std::string keyOf(MHD_Connection* connection) {
    constexpr std::string_view scheme = "bearer ";
    for (const std::string& sent : headers(connection, MHD_HTTP_HEADER_AUTHORIZATION))
        if (strncasecmp(sent.c_str(), scheme.data(), scheme.size()) == 0) return sent.substr(scheme.size());
    const char* key = nullptr;
    std::size_t size = 0;
    const bool asked =
        MHD_lookup_connection_value_n(connection, MHD_GET_ARGUMENT_KIND, "key", 3, &key, &size) == MHD_YES && key;
    return asked ? std::string(key, size) : std::string();
}

Answer tooLong() { return textAnswer(413, "A body may have 16 KiB at most."); }

using AddressList = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

// Of a name with several addresses an IPv4 one, if there is any.
AddressList socketAddresses(const std::string& address, int port) {
    addrinfo wanted{};
    wanted.ai_flags = AI_PASSIVE | AI_NUMERICSERV;
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    const int error = getaddrinfo(address.c_str(), std::to_string(port).c_str(), &wanted, &found);
    if (error != 0) throw std::runtime_error("\"" + address + "\" is not an address: " + gai_strerror(error) + ".");
    return {found, freeaddrinfo};
}

const addrinfo& preferred(const AddressList& addresses) {
    for (const addrinfo* one = addresses.get(); one; one = one->ai_next)
        if (one->ai_family == AF_INET) return *one;
    return *addresses;
}

}  // namespace

// A request in progress. `reply` is written before the connection is resumed, and read after.
struct WebServer::Exchange {
    explicit Exchange(const Address& peer) : request{{}, {}, {}, peer, {}} {}

    WebRequest request;
    SteadyClock::time_point start = SteadyClock::now();
    bool begun = false;
    bool admitted = false;
    std::optional<Answer> reply;
    int status = 0;
    std::size_t size = 0;
};

WebServer::WebServer(const Options& options, WebSite& site, Log& log) : options_(options), site_(site), log_(log) {
    const AddressList addresses = socketAddresses(options.address, options.port);
    const addrinfo& address = preferred(addresses);
    const unsigned family = address.ai_family == AF_INET6 ? unsigned{MHD_USE_DUAL_STACK} : 0U;
    const auto handler = [](void* self, MHD_Connection* connection, const char* path, const char* method,
                            const char* version, const char* data, std::size_t* size, void** exchange) {
        return static_cast<MHD_Result>(
            static_cast<WebServer*>(self)->take(connection, path, method, version, data, size, exchange));
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
        static_cast<MHD_AccessHandlerCallback>(handler), this,                                            //
        MHD_OPTION_SOCK_ADDR, address.ai_addr,                                                            //
        MHD_OPTION_THREAD_POOL_SIZE, std::max(2U, std::thread::hardware_concurrency()),                   //
        MHD_OPTION_CONNECTION_LIMIT, mostConnections,                                                     //
        MHD_OPTION_PER_IP_CONNECTION_LIMIT, options.proxies.empty() ? options.connectionsAnAddress : 0U,  //
        MHD_OPTION_CONNECTION_TIMEOUT, idleSeconds,                                                       //
        MHD_OPTION_NOTIFY_COMPLETED, static_cast<MHD_RequestCompletedCallback>(onEnd), this,              //
        MHD_OPTION_NOTIFY_CONNECTION, static_cast<MHD_NotifyConnectionCallback>(onConnection), this,      //
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
int WebServer::take(MHD_Connection* connection, const char* path, const char* method, const char* version,
                    const char* data, std::size_t* size, void** exchange) {
    if (!*exchange) *exchange = new Exchange(peer(connection));
    Exchange& one = *static_cast<Exchange*>(*exchange);
    if (!one.begun) {
        one.request.method = std::string_view(method) == MHD_HTTP_METHOD_HEAD ? MHD_HTTP_METHOD_GET : method;
        one.request.path = path;
        return begin(connection, one, version);
    }
    if (*size == 0) return finish(connection, one);
    if (!one.reply && one.request.body.size() + *size > longestBody) one.reply = tooLong();
    if (!one.reply) one.request.body.append(data, *size);
    *size = 0;
    return MHD_YES;
}

// The library closes the connection of a request that is answered before its end, so most answers wait for that.
int WebServer::begin(MHD_Connection* connection, Exchange& exchange, std::string_view version) {
    exchange.begun = true;
    exchange.request.address =
        clientOf(exchange.request.address, headers(connection, "X-Forwarded-For"), options_.proxies);
    exchange.request.key = keyOf(connection);
    if (isUnclear(connection, version))
        return send(connection, exchange, textAnswer(400, "The head of this request is not clear."), true);
    exchange.reply = answerToHead(exchange);
    const bool bodyIsTooLong = announcedLength(connection) > longestBody;
    return bodyIsTooLong ? send(connection, exchange, exchange.reply.value_or(tooLong())) : int{MHD_YES};
}

std::optional<Answer> WebServer::answerToHead(Exchange& exchange) {
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

int WebServer::send(MHD_Connection* connection, Exchange& exchange, const Answer& answer, bool closes) const {
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
    if (closes || stopping_) add(MHD_HTTP_HEADER_CONNECTION, "close");
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
    log_.line("request", {{"address", one->request.address.text()},
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
