// The lists as CSV files, for editing in a spreadsheet or a text editor.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "net.h"

namespace corvane::directory {

// The entries of a file, or its errors.
template <class Entry>
struct CatalogueFile {
    std::vector<Entry> entries;
    std::vector<std::string> problems;  // "line 3: utc \"25:00\": a time like 17:00"

    bool operator==(const CatalogueFile&) const = default;
};

// A file is UTF-8. It begins with a line of its column names, in this order, and has one line per entry. A value with a
// comma stands in double quotes.
//   id,name,frequency_mhz,utc,days,mode,url
//   noon-net,Noon Net,3.940,17:00,Mon-Fri,LSB,https://example.org
//   call_sign,frequency_khz,city,power_kw,url
//   WSM,650,Nashville,50,https://wsmonline.com
// Every bad value and every repeated id is listed as a problem. If there is any problem, there are no entries.
CatalogueFile<Net> readNets(std::string_view text);
CatalogueFile<Station> readStations(std::string_view text);

// Writes a file that gives the same entries when it is read.
std::string writeNets(std::span<const Net> nets);
std::string writeStations(std::span<const Station> stations);

}  // namespace corvane::directory
