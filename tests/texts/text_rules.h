#pragma once
// How the window uses a text decides what the text may hold. Each check
// returns an empty string when the text is fit, otherwise one sentence that
// says what is wrong with it. Texts are wide (UTF-32), as the window reads
// them.
#include <string>

namespace texts {

// One blank between words at most, none at either end, no tab, line break,
// invisible or non-breaking space, no control character.
std::wstring WhitespaceProblem(const std::wstring& text);

// The quota line: the window deletes every "1$" and "2$" and formats the
// rest with the used size first and the total second, then, where the
// decimal comma is used, turns every '.' of the result into ','.
std::wstring UsedOfTotalProblem(const std::wstring& text);

// A text formatted with exactly one wide string argument, "%s".
std::wstring SingleStringPlaceholderProblem(const std::wstring& text);

// A unit after a count: the window deletes "%d" and writes the digits
// itself, directly followed by what is left. So "%d" stands first, once,
// and what follows it names the unit, after one blank at most.
std::wstring UnitProblem(const std::wstring& text);

// A title that the window follows with a blank and a value.
std::wstring TitleProblem(const std::wstring& text);

// A text shown as it stands: a '%' in it would be shown literally.
std::wstring PlainTextProblem(const std::wstring& text);

// The extra legend padding: empty, or a small whole number in text form.
std::wstring LegendOffsetProblem(const std::wstring& text);

} // namespace texts
