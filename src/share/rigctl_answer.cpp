#include "share/rigctl_answer.h"

#include "share/rigctl_commands.h"

namespace corvane {

void RigctlAnswer::appendTo(std::string& text, const RigctlRequest& request) const {
    const bool extended = request.extended != '\0' && request.command && !bare;
    const char separator = extended ? request.extended : '\n';
    if (extended) {
        text.append(request.command->name).append(":");
        for (const std::string_view word : request.arguments()) text.append(" ").append(word);
        text += separator;
    }
    if (error == RigctlError::none) {
        for (const Line& line : lines) {
            const bool named = !line.key.empty() && (extended || (bare && request.extended != '\0'));
            if (named) text.append(line.key).append(": ");
            text.append(line.value) += separator;
        }
    }
    if (extended || status || error != RigctlError::none) {
        text.append(error == RigctlError::none ? "RPRT " : "RPRT -").append(std::to_string(static_cast<int>(error)));
        text += '\n';
    }
}

}  // namespace corvane
