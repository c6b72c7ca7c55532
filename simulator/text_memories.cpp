#include "simulator/text_memories.h"

#include "simulator/decimal_field.h"

namespace simulator {

const std::string* TextMemories::find(TextFamily family, int number) const {
    if (number < 1 || number > perFamily) return nullptr;
    return &texts_[static_cast<std::size_t>(family)][static_cast<std::size_t>(number - 1)];
}

bool TextMemories::store(TextFamily family, int number, std::string_view text) {
    if (number < 1 || number > perFamily) return false;
    if (text.ends_with('}')) text.remove_suffix(1);
    if (text.size() > textLength || !isPrintable(text)) return false;
    texts_[static_cast<std::size_t>(family)][static_cast<std::size_t>(number - 1)] = text;
    return true;
}

}  // namespace simulator
