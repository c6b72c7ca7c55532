// The operator's identifier at the nets directory.
#pragma once

#include <string>

#include "platform/settings_store.h"

namespace corvane {

// 32 hexadecimal digits from the system's source of randomness.
std::string randomKey();

// Tells the directory which confirmations are this operator's. Made at random when it is first needed, and kept.
std::string operatorKey(SettingsStore& settings);

// What tells the directory whose confirmations to show: "?key=0123456789abcdef0123456789abcdef". Nothing for a text
// that is no such key, the empty one of who has never confirmed anything above all.
std::string keyQuery(const std::string& key);

}  // namespace corvane
