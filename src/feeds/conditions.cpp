#include "feeds/conditions.h"

#include <array>
#include <string_view>
#include <utility>

#include "feeds/band_conditions.h"
#include "feeds/clock_time.h"

namespace corvane {

namespace {

constexpr std::string_view path = "/solarxml.php";

Color conditionColor(std::string_view value) {
    if (value == "Good") return Color::green;
    return value == "Fair" ? Color::orange : Color::red;
}

void showValue(TextField& field, std::string_view text, Color color) {
    field.setStringValue(text);
    field.setTextColor(color);
}

}  // namespace

Conditions::Conditions(Display& display, HttpClient& http, Scheduler& scheduler, const ServiceHosts& hosts)
    : display_(display), hosts_(hosts), tasks_(scheduler), refresh_(http, tasks_) {}

void Conditions::fetch(RefreshEnd end) {
    HttpRequest request;
    request.url = std::string(hosts_.solarData).append(path);
    display_.bandStatusField.setStringValue("Refreshing\u2026");
    const auto read = [this](const HttpResponse& response) -> HttpClient::Rest {
        return [this, conditions = decodeBandConditions(response.body), problem = response.problem]() mutable {
            show(conditions);
            if (problem.empty() && conditions == BandConditions{}) problem = "unreadable: no band conditions";
            display_.bandStatusField.setStringValue(clockTime(tasks_.now()) + (problem.empty() ? "" : ": " + problem));
        };
    };
    refresh_.start(request, read, std::move(end));
}

void Conditions::show(const BandConditions& conditions) {
    const std::array fields{&display_.day8040Field,   &display_.day3020Field,   &display_.day1715Field,
                            &display_.day1210Field,   &display_.night8040Field, &display_.night3020Field,
                            &display_.night1715Field, &display_.night1210Field};
    display_.bandBox.setTitle("Band Conditions - " + conditions.heading);
    showValue(display_.solarFluxField, conditions.solarFlux, Color::green);
    for (std::size_t i = 0; i < fields.size(); ++i)
        showValue(*fields[i], conditions.bands[i], conditionColor(conditions.bands[i]));
    const bool quiet = conditions.signalNoise == "S0-S1" || conditions.signalNoise == "S1-S2";
    showValue(display_.signalNoiseField, conditions.signalNoise, quiet ? Color::green : Color::red);
    const bool closed = conditions.magicBand == "Band Closed";
    showValue(display_.magicBandField, closed ? "Closed" : "Open", closed ? Color::red : Color::green);
}

}  // namespace corvane
