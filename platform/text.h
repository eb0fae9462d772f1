#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Texts are bytes in the ANSI code page 1252, as the game reads and writes them. Every byte value survives.
namespace quirn {

// Upper case by code page 1252: a-z, the accented letters, and the pairs outside Latin-1 (0x9A/0x8A and so on).
// Bytes without an upper-case form in the page (0xDF, 0xAA ...) stay as they are.
char FoldCase(char c);
std::string FoldCase(std::string_view text);

bool EqualNoCase(std::string_view a, std::string_view b);

// Orders texts by their folded bytes; usable as a map's comparison.
struct LessNoCase {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
};

// Without the spaces (0x20 only) at both ends.
std::string_view Trim(std::string_view text);

// A text as a menu or a button is given it to show it letter for letter: a lone "&" would name an access key.
std::string DoubleAmpersands(std::string_view text);

// The decimal number at the start of a text, after spaces and tabs: sign, digits, point, digits, exponent.
// 0 when there is none. The point is "." whatever the system's language.
double Val(std::string_view text);

// Val cut to a signed 32-bit whole number; nothing when it does not fit one.
std::optional<int> ToInteger(std::string_view text);

// Lines of a text file: ended by CR LF or a lone LF; a last line without an end counts, an empty rest does not.
std::vector<std::string_view> SplitLines(std::string_view text);

}  // namespace quirn
