#include "feeds/json_records.h"

#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>

namespace corvane {

namespace {

using Json = nlohmann::json;

// Deeper than any record; what lies below is dropped as it is read, so that a body of brackets fills no memory.
constexpr int deepest = 8;

class ParsedRecord final : public JsonRecord {
public:
    explicit ParsedRecord(const Json& record) : record_(record) {
        if (!record.is_object()) problem_ = "is no object";
    }

    std::string text(std::string_view name) override {
        const Json* field = find(name);
        if (field && field->is_string()) return field->get_ref<const std::string&>();
        return fail("text", name), std::string();
    }
    std::optional<std::string> optionalText(std::string_view name) override {
        const Json* field = find(name);
        if (!field || field->is_null()) return std::nullopt;
        return text(name);
    }
    std::optional<float> optionalNumber(std::string_view name) override {
        const Json* field = find(name);
        if (!field || field->is_null()) return std::nullopt;
        const double number = field->is_number() ? field->get<double>() : INFINITY;
        if (std::abs(number) <= std::numeric_limits<float>::max()) return static_cast<float>(number);
        fail("number", name);
        return std::nullopt;
    }

    const std::string& problem() const { return problem_; }

private:
    const Json* find(std::string_view name) const {
        if (!record_.is_object()) return nullptr;
        const auto field = record_.find(name);
        return field == record_.end() ? nullptr : &*field;
    }
    void fail(std::string_view kind, std::string_view name) {
        if (problem_.empty()) problem_ = "has no " + std::string(kind) + " \"" + std::string(name) + '"';
    }

    const Json& record_;
    std::string problem_;
};

}  // namespace

DecodedFeed decodeRecords(std::string_view body, const std::function<std::optional<FeedRow>(JsonRecord&)>& makeRow) {
    const auto shallow = [](int depth, Json::parse_event_t, const Json&) { return depth < deepest; };
    const Json records = Json::parse(body, shallow, false);
    if (records.is_discarded()) return {{}, "unreadable: not JSON"};
    if (!records.is_array()) return {{}, "unreadable: no list"};
    DecodedFeed decoded;
    for (std::size_t k = 0; k < records.size(); ++k) {
        ParsedRecord record(records[k]);
        auto row = makeRow(record);
        if (!record.problem().empty())
            return {{}, "unreadable: record " + std::to_string(k + 1) + ' ' + record.problem()};
        if (row) decoded.rows.push_back(std::move(*row));
    }
    return decoded;
}

}  // namespace corvane
