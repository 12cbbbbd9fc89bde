// A file, or a table of a database, as a person changes and saves it, and what the database holds then.
#pragma once

#include "document.h"

#include <optional>
#include <string>
#include <vector>

namespace vornix::viewer {

Document Opened(const std::string& path, const std::optional<std::string>& table = {});
// "saved", or what stands in the way.
std::string MessageOfSave(Document& document);
// A new last row with these texts; an empty one is not given.
int Add(Document& document, const std::vector<std::u16string>& texts);
// The rows of a query, as SQL writes their values: 'a'|1|NULL.
std::vector<std::string> Rows(const std::string& path, const std::string& sql);

} // namespace vornix::viewer
