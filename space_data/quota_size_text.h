#pragma once
// The quota line's own size texts. They differ from the list's size helpers
// (binary steps up to GB only, ".00" dropped) and are kept apart from them so
// that a change to one display cannot silently change the other.
#include <string>

// "%.2f %s" over B, KB, MB, GB with at most three divisions by 1024, then the
// first ".00" removed: 2048 bytes read "2 KB", 1536 bytes "1.50 KB", and a
// terabyte stays in gigabytes ("1024 GB"). The decimal point is not localised.
std::string FormatQuotaSize(double bytes);

// Removes the first ".00" of `text`, if any.
void EraseFirstZeroFraction(std::string& text);
