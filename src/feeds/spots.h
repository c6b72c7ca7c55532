// The lists of activator spots.
#pragma once

#include <chrono>
#include <string_view>

#include "feeds/feed_row.h"

namespace corvane {

using Instant = std::chrono::system_clock::time_point;

// Parks on the air, newest spot first; spots whose comment says QRT are left out. Row: activator, frequency (kHz),
// mode, comment, park, age (minutes), latitude, longitude, location, reference. A spot whose time cannot be read has no
// age and stands last.
DecodedFeed decodePotaSpots(std::string_view body, Instant now);

// Summits on the air between 2 and 70 MHz in the order of the service. Row: activator, activator's name, frequency
// (MHz), mode, comment, summit code, summit, height, points, age (minutes).
DecodedFeed decodeSotaSpots(std::string_view body, Instant now);

}  // namespace corvane
