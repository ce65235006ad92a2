// The names the window gives the twelve categories, read from the text
// resources (Res/lang/<language>.json) in the host configuration's language.
//
// The program reads the JSON itself rather than through the toolkit's
// CResourceManager: that class lives in spacemgm_toolkit, which brings
// cairo, pango and librsvg with it, which the support library and the
// tests that share it do not need.
// The keys are those of the window's row templates, so both show the same
// names; a key the language lacks falls back to en-US, as in the toolkit.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "space_data/cloud_space_types.h"

namespace app {

// The twelve categories in the order of the window's row templates.
const std::vector<CloudSpaceType>& AllCategories();

// The text key of a category's name.
const char* CategoryTextKey(CloudSpaceType type);

// The name of a category as the log lines spell it ("CloudBackUp" for 5).
std::string CategoryName(CloudSpaceType type);

class CategoryTexts
{
public:
    // Reads <resourceRoot>/Res/lang/<language>.json and en-US.json. A file
    // that is missing or not a JSON object gives no texts; the names then
    // fall back to CategoryName.
    CategoryTexts(const std::string& resourceRoot, const std::string& language);

    std::string NameOf(CloudSpaceType type) const;

    // A row's count as the window's list shows it: the digits, then the
    // unit of the language's plural form with its "%d" deleted ("2 devices",
    // "3621 записей"). The cloud backup row counts devices, every other row
    // records, as the window's rows do.
    std::string CountText(CloudSpaceType type, const std::string& count) const;

private:
    std::string Text(const std::string& key) const;

    std::string language_;
    std::map<std::string, std::string> texts_;
    std::map<std::string, std::string> fallback_;
};

// The folder holding Res/: $SPACEMGM_RESOURCE_ROOT, or the source tree the
// program was built from.
std::string ResourceRoot();

} // namespace app
