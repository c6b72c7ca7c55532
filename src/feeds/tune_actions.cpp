// Tuning to a row of a list, and confirming a check-in to a net.
#include <memory>
#include <nlohmann/json.hpp>
#include <utility>

#include "app/operator_key.h"
#include "controller/serial_port_demo_controller.h"
#include "feeds/feed_table.h"
#include "feeds/single_precision.h"
#include "feeds/tune_command.h"
#include "wire/utf8.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr float kilohertz = 1'000.0F;
constexpr float megahertz = 1'000'000.0F;
constexpr std::size_t longestName = 200;  // characters that are spoken
constexpr auto recordingTime = 2s;        // what the directory is given to note a confirmation

// The row of a button, or nullptr when the list has been refreshed since, or the row has fewer fields.
const FeedRow* rowOf(const FeedList& list, const Button& sender, std::size_t fields) {
    const auto row = static_cast<std::size_t>(sender.tag());
    return row < list.size() && list[row].fields.size() >= fields ? &list[row] : nullptr;
}

}  // namespace

void SerialPortDemoController::goPotaTune(Button& sender) {
    const FeedRow* spot = rowOf(feeds.vqPotaArray, sender, 5);
    const auto frequency = spot ? hertz((*spot)[1], kilohertz) : std::nullopt;
    if (!frequency) return;
    link.cmd = tuneCommandForSpot(*frequency, (*spot)[2], ModeWords::spots, radio.vqAorB);
    sendCommand(link.cmd);
    speak(utf8Prefix((*spot)[4], longestName));
}

void SerialPortDemoController::goSotaTune(Button& sender) {
    const FeedRow* spot = rowOf(feeds.vqSotaArray, sender, 7);
    const auto frequency = spot ? hertz((*spot)[2], megahertz) : std::nullopt;
    if (!frequency) return;
    tuneTo(tuneCommandForSpot(*frequency, (*spot)[3], ModeWords::spots, radio.vqAorB), (*spot)[6]);
}

void SerialPortDemoController::goNetLoggerTune(Button& sender) {
    if (const FeedRow* net = rowOf(feeds.vqNetLoggerArray, sender, 2))
        tuneTo(tuneCommandForNetLogger((*net)[1], radio.vqAorB), (*net)[0]);
}

void SerialPortDemoController::goNetsTune(Button& sender) {
    const FeedRow* net = rowOf(feeds.vqNetsArray, sender, 4);
    const auto frequency = net ? hertz((*net)[1], megahertz) : std::nullopt;
    if (!frequency) return;
    tuneTo(tuneCommandForSpot(*frequency, (*net)[3], ModeWords::nets, radio.vqAorB), (*net)[0]);
}

void SerialPortDemoController::goMWTune(Button& sender) {
    const FeedRow* station = rowOf(feeds.vqMWArray, sender, 2);
    const auto frequency = station ? hertz((*station)[1], kilohertz) : std::nullopt;
    if (!frequency) return;
    const std::string command = tuneCommandForStation(*frequency, radio.vqAorB);
    platform_.log.line(std::to_string(*frequency));
    platform_.log.line(command);
    tuneTo(command, (*station)[0]);
}

void SerialPortDemoController::tuneTo(std::string command, const std::string& name) {
    link.cmd = std::move(command);
    writeString(link.cmd);
    speak(utf8Prefix(name, longestName));
}

void SerialPortDemoController::goNetsConfirm(Button& sender) {
    const FeedRow* net = rowOf(feeds.vqNetsArray, sender, 7);
    if (!net) return;
    postConfirmation((*net)[6], 1, {});
    speak("thank you for confirming " + std::string(utf8Prefix((*net)[0], longestName)));
    later(recordingTime, [this] { fetchNets(); });
}

// The directory is asked as soon as it has noted the change, and the change is announced once the list shows it.
void SerialPortDemoController::goNetsUnconfirm(Button& sender) {
    const FeedRow* net = rowOf(feeds.vqNetsArray, sender, 7);
    if (!net) return;
    postConfirmation((*net)[6], 0, [this] {
        fetchList(Feed::nets, [this] { speak("your confirmation of this net has been retracted"); });
    });
}

// Whether it arrived shows in the list that is fetched next.
void SerialPortDemoController::postConfirmation(const std::string& net, int action, std::function<void()> then) {
    const nlohmann::json body{{"key", operatorKey()}, {"net_id", net}, {"action", action}};
    HttpRequest request;
    request.method = "POST";
    request.url = hosts_.directory + "/netconf.php";
    request.timeout = 30s;
    request.ignoreCaches = true;
    request.contentType = "Application/json";
    request.body = body.dump();
    const auto once = std::make_shared<std::function<void()>>(std::move(then));
    const auto end = [once] {
        if (const auto task = std::exchange(*once, {})) task();
    };
    platform_.http.send(request, [end, alive = std::weak_ptr(alive_)](const HttpResponse&) {
        return [end, alive] {
            if (!alive.expired()) end();
        };
    });
    later(recordingTime, end);  // a directory that does not answer holds up nothing
}

// Made at random when it is first needed, and kept: it tells the directory which confirmations are this operator's.
std::string SerialPortDemoController::operatorKey() {
    std::string key = userDefaults.text("operator").value_or("");
    if (key.empty()) {
        key = randomKey();
        userDefaults.setText("operator", key);
    }
    return key;
}

}  // namespace corvane
