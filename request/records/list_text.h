#pragma once

#include <string>
#include <vector>

// The NSP file service takes its lists ("paths", "files", "fields") as JSON
// text built by hand: `["a","b"]`. Starting from the current `text`, an empty
// text gets "[", each item is appended in double quotes (with a "," unless the
// text is exactly "["), then "]" closes it. An empty list gives "[]".
// Items are not escaped, so a quote inside an item breaks the text, and a
// second call on finished text appends after its "]"; callers build once.
void AppendListText(std::string& text, const std::vector<std::string>& items);
