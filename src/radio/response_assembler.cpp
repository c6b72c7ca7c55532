#include "radio/response_assembler.h"

#include <utility>

namespace corvane {

void ResponseAssembler::feed(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t end = bytes.find(';');
        const bool whole = end != std::string_view::npos;
        const std::string_view piece = bytes.substr(0, whole ? end + 1 : bytes.size());
        bytes.remove_prefix(piece.size());
        if (skipping_ || tail_.size() + piece.size() > limit) {
            tail_.clear();
            skipping_ = !whole;
        } else if (!whole) {
            tail_ += piece;
        } else if (tail_.empty()) {
            deliver_(piece);
        } else {
            tail_ += piece;
            deliver_(std::exchange(tail_, {}));
        }
    }
}

void ResponseAssembler::expire() {
    skipping_ = false;
    if (!tail_.empty()) deliver_(std::exchange(tail_, {}));
}

void ResponseAssembler::clear() {
    tail_.clear();
    skipping_ = false;
}

}  // namespace corvane
