// The operator's identifier at the nets directory.
#pragma once

#include <string>

#include "platform/settings_store.h"

namespace corvane {

// 32 hexadecimal digits from the system's source of randomness.
std::string randomKey();

// Tells the directory which confirmations are this operator's. It is made at random when first needed, and kept.
std::string operatorKey(SettingsStore& settings);

// Tells the directory whose confirmations to show: "?key=0123456789abcdef0123456789abcdef". Empty for a text that is
// not a key, above all for the empty text of an operator who has never confirmed a net.
std::string keyQuery(const std::string& key);

}  // namespace corvane
