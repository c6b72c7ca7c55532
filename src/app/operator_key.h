// The operator's identifier at the nets directory.
#pragma once

#include <string>

#include "platform/settings_store.h"

namespace corvane {

// A key is 32 hexadecimal digits in lower case: "0123456789abcdef0123456789abcdef". It tells the directory which
// confirmations are this operator's. Who knows it can change them: it stands in no address and no log.

// The key in the settings; empty for an operator who has never confirmed a net, and for a damaged key.
std::string keptOperatorKey(const SettingsStore& settings);

// The same, for a request that needs one: in place of none, or of a damaged one, a key is made at random and kept.
std::string operatorKey(SettingsStore& settings);

}  // namespace corvane
