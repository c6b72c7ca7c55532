#include "display/table_view.h"

#include <algorithm>
#include <numeric>

#include "wire/decimal_number.h"

namespace corvane {

namespace {

// "14285.0" in kilohertz gives "14.285 MHz"; a text that is no number stays.
std::string spokenFrequency(std::string text, double inOneMegahertz) {
    const double megahertz = numberOrZero(text) / inOneMegahertz;
    if (megahertz <= 0) return text;
    std::string digits = withDecimals(megahertz, 6);
    digits.resize(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.') digits.pop_back();
    return digits + " MHz";
}

std::string told(std::string text, TableColumn::Tells tells) {
    switch (tells) {
        case TableColumn::Tells::hertz:
            return spokenFrequency(std::move(text), 1'000'000);
        case TableColumn::Tells::kilohertz:
            return spokenFrequency(std::move(text), 1'000);
        case TableColumn::Tells::megahertz:
            return spokenFrequency(std::move(text), 1);
        default:
            return text;
    }
}

}  // namespace

std::vector<int> TableViewDataSource::rowOrder(const TableView& table) const {
    std::vector<int> rows(static_cast<std::size_t>(numberOfRows(table)));
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

TableView::TableView(const Outlet& outlet, std::span<const TableColumn> columns)
    : Control(outlet), columns_(columns), controls_(columns.size()), prototypes_(columns.size()) {}

int TableView::columnWithIdentifier(std::string_view identifier) const {
    const auto found = std::ranges::find(columns_, identifier, &TableColumn::identifier);
    return found == columns_.end() ? -1 : static_cast<int>(found - columns_.begin());
}

TableView::CellControl& TableView::controlOf(std::string_view column) {
    return controls_.at(static_cast<std::size_t>(columnWithIdentifier(column)));
}

const Control* TableView::cellControl(int column) const {
    const CellControl& control = controlOf(column);
    if (control.button) return control.button;
    if (control.popUp) return control.popUp;
    return control.field;
}

TableCell TableView::view(int row, int column) const {
    if (const Button* button = controlOf(column).button)
        return ButtonCell{button->title(), std::string(button->outlet().label), row};
    return source_ ? source_->viewFor(*this, row, column) : TableCell{};
}

int TableView::tellingColumn() const {
    const auto telling = [](const TableColumn& column) { return column.tells != TableColumn::Tells::nothing; };
    const auto found = std::ranges::find_if(columns_, telling);
    return found == columns_.end() ? 0 : static_cast<int>(found - columns_.begin());
}

std::string TableView::spokenRow(int row) const {
    std::string spoken;
    for (int column = 0; column < static_cast<int>(columns_.size()); ++column) {
        const auto tells = columns_[static_cast<std::size_t>(column)].tells;
        const std::string text = tells == TableColumn::Tells::nothing ? std::string() : told(cell(row, column), tells);
        if (!text.empty()) spoken.append(spoken.empty() ? "" : ", ").append(text);
    }
    return spoken;
}

std::string TableView::spokenPress(int row, int column) const {
    const Button* button = controlOf(column).button;
    if (!button) return {};
    const std::string_view label = button->outlet().label;
    const std::size_t place = label.find("this ");  // "Tune to this spot"
    const bool named = place != std::string_view::npos;
    return std::string(label.substr(0, place)).append(named ? "" : ", ").append(spokenRow(row));
}

std::string TableView::spokenCell(int row, int column) const {
    if (isButton(column)) return spokenPress(row, column) + ", button";
    const TableCell shown = view(row, column);
    return std::holds_alternative<HandleCell>(shown) ? spokenRow(row) : spokenTextOf(shown);
}

bool TableView::exists(int row, int column) const {
    return row >= 0 && row < rows() && column >= 0 && column < static_cast<int>(columns_.size());
}

void TableView::put(const Control& control, CellPlace place) {
    used_ = &control;
    place_ = place;
}

std::optional<CellPlace> TableView::placeOf(const Control& control) const {
    return used_ == &control ? std::optional(place_) : std::nullopt;
}

void TableView::pressCell(int row, int column) {
    if (!exists(row, column)) return;
    if (Button* button = controlOf(column).button) {
        put(*button, {row, column});
        button->setTag(row);
        return button->performClick();
    }
    const TableCell cell = view(row, column);
    if (const auto* link = std::get_if<LinkCell>(&cell)) source_->openLink(link->address);
}

void TableView::chooseInCell(int row, int column, int entry) {
    PopUpButton* popUp = exists(row, column) ? controlOf(column).popUp : nullptr;
    if (!popUp || entry < 0 || entry >= popUp->titles().size()) return;
    put(*popUp, {row, column});
    popUp->choose(entry);
}

void TableView::editCell(int row, int column, std::string_view replacement) {
    TextField* field = exists(row, column) ? controlOf(column).field : nullptr;
    if (!field) return;
    put(*field, {row, column});
    field->setStringValue(replacement);
    field->performReturn();
}

void TableView::setSortDescriptorPrototype(int column, std::optional<SortDescriptor> prototype) {
    auto& present = prototypes_[static_cast<std::size_t>(column)];
    if (!prototype && present && sortedBy_ && sortedBy_->key == present->key) assign(sortedBy_, {});
    assign(present, std::move(prototype));
}

const std::optional<TableView::SortDescriptor>& TableView::sortDescriptorPrototype(int column) const {
    return prototypes_[static_cast<std::size_t>(column)];
}

SortDirection TableView::sortDirection(int column) const {
    const auto& prototype = sortDescriptorPrototype(column);
    if (!prototype || !sortedBy_ || sortedBy_->key != prototype->key) return SortDirection::unknown;
    return sortedBy_->ascending ? SortDirection::ascending : SortDirection::descending;
}

// What is pressed first sees the direction as it was.
void TableView::pressHeader(int column) {
    if (!source_ || column < 0 || column >= static_cast<int>(columns_.size())) return;
    const SortDirection before = sortDirection(column);
    if (!source_->mouseDownInHeader(*this, column)) return;
    if (auto next = sortDescriptorPrototype(column)) {
        next->ascending = before != SortDirection::ascending;
        assign(sortedBy_, std::move(next));
    }
}

}  // namespace corvane
