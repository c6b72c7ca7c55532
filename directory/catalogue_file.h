// The lists as files of comma-separated values, to be edited in a spreadsheet or a text editor.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "net.h"

namespace corvane::directory {

// What a file holds, or what is wrong with it.
template <class Entry>
struct CatalogueFile {
    std::vector<Entry> entries;
    std::vector<std::string> problems;  // "line 3: utc \"25:00\": a time like 17:00"

    bool operator==(const CatalogueFile&) const = default;
};

// A file begins with a line of its column names, in this order; then a line an entry, UTF-8, values with a comma in
// double quotes.
//   id,name,frequency_mhz,utc,days,mode,url
//   noon-net,Noon Net,3.940,17:00,Mon-Fri,LSB,https://example.org
//   call_sign,frequency_khz,city,power_kw,url
//   WSM,650,Nashville,50,https://wsmonline.com
// Every bad value is listed, and no id may come twice. With any problem there are no entries.
CatalogueFile<Net> readNets(std::string_view text);
CatalogueFile<Station> readStations(std::string_view text);

// What gives the same entries when it is read.
std::string writeNets(std::span<const Net> nets);
std::string writeStations(std::span<const Station> stations);

}  // namespace corvane::directory
