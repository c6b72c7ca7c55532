#include "display/table_cell.h"

#include <utility>

namespace corvane {

namespace {

struct Reader {
    std::string operator()(const TextCell& cell) const { return cell.text; }
    std::string operator()(const HandleCell&) const { return {}; }
    std::string operator()(const LinkCell& cell) const { return cell.text; }
    std::string operator()(const ButtonCell& cell) const { return cell.title; }
    std::string operator()(const PopUpCell& cell) const { return cell.entries->at(cell.selection); }
    std::string operator()(const EditableCell& cell) const { return cell.text; }
};

std::string orEmpty(std::string text) {
    const std::size_t last = text.find_last_not_of(' ');
    if (last == std::string::npos || text == "\u2013") return "empty";
    text.resize(last + 1);
    return text;
}

}  // namespace

std::string textOf(const TableCell& cell) { return std::visit(Reader{}, cell); }

std::string textOf(TableCell&& cell) {
    if (auto* text = std::get_if<TextCell>(&cell)) return std::move(text->text);
    if (auto* link = std::get_if<LinkCell>(&cell)) return std::move(link->text);
    return std::visit(Reader{}, cell);
}

std::string spokenTextOf(const TableCell& cell) {
    if (std::holds_alternative<HandleCell>(cell)) return "handle";
    if (const auto* button = std::get_if<ButtonCell>(&cell)) return button->label + ", button";
    const std::string text = orEmpty(textOf(cell));
    if (std::holds_alternative<LinkCell>(cell)) return text + ", link";
    return std::holds_alternative<PopUpCell>(cell) ? text + ", pop-up menu" : text;
}

}  // namespace corvane
