#include "feeds/json_records.h"

#include <fmt/core.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <variant>

namespace corvane {

namespace {

using Json = nlohmann::json;

using MakeRow = std::function<std::optional<FeedRow>(JsonRecord&)>;

// The fields of the record that is being decoded, as far as rows are made of them; if a field occurs twice, the last
// one counts.
class OpenRecord final : public JsonRecord {
public:
    struct Absent {};
    struct Other {};  // true, false, a list or an object
    using Value = std::variant<Absent, Other, std::nullptr_t, double, std::string>;

    explicit OpenRecord(const MakeRow& makeRow) {
        learning_ = true;
        makeRow(*this);
        learning_ = false;
    }

    void begin() {
        for (Field& field : fields_) field.value = Absent{};
        current_ = fields_.end();
        problem_.clear();
    }
    void name(std::string_view name) {
        current_ = std::ranges::find(fields_, name, &Field::name);
        value(Other{});
    }
    void value(Value value) {
        if (current_ != fields_.end()) current_->value = std::move(value);
    }

    std::string text(std::string_view name) override {
        const auto* text = std::get_if<std::string>(&find(name));
        if (!text) fail("text", name);
        return text ? *text : std::string();
    }
    std::optional<std::string> optionalText(std::string_view name) override {
        return isMissing(find(name)) ? std::nullopt : std::optional(text(name));
    }
    std::optional<float> optionalNumber(std::string_view name) override {
        const Value& value = find(name);
        if (isMissing(value)) return std::nullopt;
        const auto* number = std::get_if<double>(&value);
        if (number && std::abs(*number) <= std::numeric_limits<float>::max()) return static_cast<float>(*number);
        fail("number", name);
        return std::nullopt;
    }

    const std::string& problem() const { return problem_; }

private:
    struct Field {
        std::string name;
        Value value;
    };

    static bool isMissing(const Value& value) {
        return std::holds_alternative<Absent>(value) || std::holds_alternative<std::nullptr_t>(value);
    }
    const Value& find(std::string_view name) {
        static const Value absent;
        const auto field = std::ranges::find(fields_, name, &Field::name);
        if (field != fields_.end()) return field->value;
        if (learning_) fields_.push_back({std::string(name), Absent{}});
        return absent;
    }
    void fail(std::string_view kind, std::string_view name) {
        if (problem_.empty()) problem_ = fmt::format("has no {} \"{}\"", kind, name);
    }

    std::vector<Field> fields_;
    std::vector<Field>::iterator current_;
    bool learning_ = false;
    std::string problem_;
};

// Takes the events of the parser. Only one record is held at a time, so that a large body does not fill the memory.
// Values nested in a record's fields are skipped. An event that returns false ends the parse.
class RecordReader final : public nlohmann::json_sax<Json> {
public:
    explicit RecordReader(const MakeRow& makeRow) : makeRow_(makeRow), record_(makeRow) {}

    DecodedFeed decoded;

    bool null() override { return value(nullptr); }
    bool boolean(bool) override { return value(OpenRecord::Other{}); }
    bool number_integer(number_integer_t number) override { return value(static_cast<double>(number)); }
    bool number_unsigned(number_unsigned_t number) override { return value(static_cast<double>(number)); }
    bool number_float(number_float_t number, const string_t&) override { return value(number); }
    bool string(string_t& text) override { return value(std::move(text)); }
    bool binary(binary_t&) override { return value(OpenRecord::Other{}); }
    bool key(string_t& name) override {
        if (depth_ == insideRecord) record_.name(name);
        return true;
    }
    bool start_array(std::size_t) override {
        if (depth_ == insideList) return noObject();
        ++depth_;
        return true;
    }
    bool end_array() override {
        --depth_;
        return true;
    }
    bool start_object(std::size_t) override {
        if (depth_ == outside) return fail("unreadable: no list");
        if (depth_ == insideList) record_.begin();
        ++depth_;
        return true;
    }
    bool end_object() override {
        if (--depth_ != insideList) return true;
        ++records_;
        auto row = makeRow_(record_);
        if (!record_.problem().empty())
            return fail(fmt::format("unreadable: record {} {}", records_, record_.problem()));
        if (row) decoded.rows.push_back(withinLimits(std::move(*row)));
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return fail("unreadable: not JSON");
    }

private:
    static constexpr int outside = 0, insideList = 1, insideRecord = 2;

    bool value(OpenRecord::Value value) {
        if (depth_ == outside) return fail("unreadable: no list");
        if (depth_ == insideList) return noObject();
        if (depth_ == insideRecord) record_.value(std::move(value));
        return true;
    }
    bool noObject() { return fail(fmt::format("unreadable: record {} is no object", records_ + 1)); }
    bool fail(std::string problem) {
        decoded = {{}, std::move(problem)};
        return false;
    }

    const MakeRow& makeRow_;
    OpenRecord record_;
    int depth_ = outside;
    std::size_t records_ = 0;
};

}  // namespace

DecodedFeed decodeRecords(std::string_view body, const MakeRow& makeRow) {
    RecordReader reader(makeRow);
    Json::sax_parse(body, &reader);
    return std::move(reader.decoded);
}

}  // namespace corvane
