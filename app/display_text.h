// Text from a service or a file, made safe to print on a terminal. A device
// name is whatever the phone calls itself: a control character could move
// the cursor or recolour the terminal, and a bidirectional override could
// make a line read differently from what it holds.
#pragma once

#include <string>

namespace app {

// Escapes, in C style, the backslash itself, C0 and C1 control characters
// and DEL ("\x1B", "\u0085"), the bidirectional marks, embeddings,
// overrides and isolates and the line and paragraph separators ("\u202E"),
// and bytes that are not UTF-8 ("\xFF"). Everything else, other scripts
// included, stays as it is.
std::string EscapeForTerminal(const std::string& text);

} // namespace app
