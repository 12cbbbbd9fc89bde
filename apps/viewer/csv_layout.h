// What a text file is like beside its values, as reading it has found out.
#pragma once

#include "text_decoder.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace vornix::viewer {

struct CsvLayout {
    TextEncoding encoding = TextEncoding::Utf8;
    char16_t separator = u','; // 0: every line is one field
    std::size_t markerLength = 0; // UTF-16 units of a first line that names the separator, without its line break
    bool hasHeader = false;
    std::u16string lineBreak = {}; // behind the first row; empty when it is not known
    std::uint64_t print = 0; // of the whole file's bytes
};

} // namespace vornix::viewer
