#pragma once
// The text keys of the space window, written out by hand from what the
// window shows, so that a language file is checked even where the window's
// code does not name a key literally (the plural keys) and before its code
// and skins exist.
#include <set>
#include <string>
#include <vector>

namespace texts {

inline const std::string kUsedOfTotalKey = "IDS_MAIN_PAGE_PanCapacity_HasUsed";
inline const std::string kBackupDetailKey = "IDS_SPACEMANAGEMENT_DELETEBACKUP_DETAIL";
inline const std::string kLegendOffsetKey = "IDS_SPACEMANAGEMENT_TYPEINFO_OFFSET";

// Every key the window or its skins read as it stands.
const std::vector<std::string>& WindowTextKeys();

// The base keys of the unit texts: the window reads one of their plural
// forms, chosen by PluralKey from the language and the count.
const std::vector<std::string>& PluralBaseKeys();

// The keys whose text the window follows with a blank and a value.
const std::vector<std::string>& TitleKeys();

// Every plural key PluralKey can make of `base` for `language`.
std::set<std::string> PluralFormsFor(const std::string& language, const std::string& base);

// The keys a language file must hold for the window: WindowTextKeys, every
// plural form of PluralBaseKeys, and `scanned` (the keys found in the
// window's code and skins), where a plural base stands for its forms.
std::set<std::string> RequiredKeys(const std::string& language, const std::set<std::string>& scanned);

} // namespace texts
