#include "platform/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace quirn {

namespace {

constexpr std::array<char, 256> MakeFoldTable() {
    std::array<char, 256> table{};
    for (unsigned i = 0; i < 256; ++i) {
        unsigned upper = i;
        if ((i >= 'a' && i <= 'z') || (i >= 0xE0 && i <= 0xFE && i != 0xF7)) upper = i - 0x20;
        else if (i == 0x9A || i == 0x9C || i == 0x9E) upper = i - 0x10;  // s caron, oe, z caron
        else if (i == 0xFF) upper = 0x9F;                                // y diaeresis
        table[i] = static_cast<char>(upper);
    }
    return table;
}

constexpr std::array<char, 256> kFold = MakeFoldTable();

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

char FoldCase(char c) {
    return kFold[static_cast<unsigned char>(c)];
}

std::string FoldCase(std::string_view text) {
    std::string folded(text);
    for (char& c : folded) c = FoldCase(c);
    return folded;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return FoldCase(x) == FoldCase(y); });
}

bool LessNoCase::operator()(std::string_view a, std::string_view b) const {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return static_cast<unsigned char>(FoldCase(x)) < static_cast<unsigned char>(FoldCase(y));
    });
}

std::string_view Trim(std::string_view text) {
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string DoubleAmpersands(std::string_view text) {
    std::string shown;
    for (const char c : text) shown.append(c == '&' ? 2 : 1, c);
    return shown;
}

double Val(std::string_view text) {
    size_t at = text.find_first_not_of(" \t");
    if (at == std::string_view::npos) return 0;
    const bool negative = text[at] == '-';
    if (negative || text[at] == '+') ++at;
    // from_chars also reads "inf" and "nan", which are no numbers here.
    if (at >= text.size() || !(IsDigit(text[at]) || text[at] == '.')) return 0;
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data() + at, end, value);
    // Too large, or too small to tell from 0: strtod says which.
    if (error == std::errc::result_out_of_range) value = std::strtod(std::string(text.substr(at)).c_str(), nullptr);
    return negative ? -value : value;
}

std::optional<int> ToInteger(std::string_view text) {
    const double value = std::trunc(Val(text));
    if (!(value >= -2147483648.0 && value <= 2147483647.0)) return std::nullopt;
    return static_cast<int>(value);
}

std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

}  // namespace quirn
