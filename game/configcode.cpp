#include "game/configcode.h"

#include "platform/text.h"

namespace quirn {

namespace {

// 32 symbols and a spare one, whose value 32 has no bit in the lowest five. D, N, O and U are missing on purpose: they
// are too easily taken for others.
constexpr std::string_view kAlphabet = "0123456789ABCEFGHIJKLMPQRSTVWXYZ!";
constexpr size_t kRows = 11;
constexpr size_t kColumns = 5;
constexpr size_t kCodeLength = 14;  // with its two dashes

static_assert(kAlphabet.size() == 33);

constexpr bool HasCell(const SettingRow& box) {
    return box.cell[0] != 'x';
}
constexpr size_t RowOf(const SettingRow& box) {
    return static_cast<size_t>(box.cell[0] - 'A');
}
constexpr size_t ColumnOf(const SettingRow& box) {
    return static_cast<size_t>(box.cell[1] - '1');
}

constexpr bool EveryCellIsUsedOnceButA5() {
    std::array<int, kRows * kColumns> uses{};
    for (const SettingRow* box : setting::kAdvancedSwitches)
        if (HasCell(*box)) ++uses.at(RowOf(*box) * kColumns + ColumnOf(*box));
    for (size_t i = 0; i < uses.size(); ++i)
        if (uses[i] != (i == kColumns - 1 ? 0 : 1)) return false;
    return true;
}
static_assert(EveryCellIsUsedOnceButA5() && kSwitchesInCode == kRows * kColumns - 1);

int ValueOf(char symbol) {
    const size_t found = kAlphabet.find(FoldCase(symbol));
    return found == std::string_view::npos ? 0 : static_cast<int>(found);
}

}  // namespace

std::string AdvancedTag(const SettingRow& row) {
    return std::string(row.cell) + ":" + row.name;
}

std::string EncodeConfigCode(const AdvancedStates& states) {
    std::array<size_t, kRows> rows{};
    for (size_t i = 0; i < states.size(); ++i) {
        const SettingRow& box = *setting::kAdvancedSwitches[i];
        if (HasCell(box) && states[i] != 0) rows[RowOf(box)] += size_t{1} << ColumnOf(box);
    }
    std::string code;
    for (const size_t row : rows) {
        code += kAlphabet[row];
        if (code.size() == 4 || code.size() == 9) code += '-';
    }
    return code + '0';
}

void DecodeConfigCode(std::string_view Code, AdvancedStates& states) {
    std::string bits;
    for (size_t i = 0; i < kCodeLength; ++i) {
        const char symbol = i < Code.size() ? Code[i] : '0';
        if (symbol != '-') bits += ToBinary8(ValueOf(symbol)).substr(8 - kColumns);
    }
    for (size_t i = 0; i < states.size(); ++i) {
        const SettingRow& box = *setting::kAdvancedSwitches[i];
        if (!HasCell(box)) continue;
        const size_t at = RowOf(box) * kColumns + (kColumns - 1 - ColumnOf(box));
        states[i] = at < bits.size() && bits[at] == '1' ? 1 : 0;  // a text of dashes has fewer bits
    }
}

size_t CountChanges(std::string_view code, const AdvancedStates& states) {
    AdvancedStates after = states;
    DecodeConfigCode(code, after);
    size_t changes = 0;
    for (size_t i = 0; i < states.size(); ++i)
        if ((states[i] != 0) != (after[i] != 0)) ++changes;
    return changes;
}

std::string AcceptedConfigCode(std::string_view text) {
    return std::string(text.substr(0, kCodeLength - 1)) + '0';
}

std::string ToBinary8(int Value) {
    if (Value > 255) return "ERROR";
    std::string digits;
    for (int bit = 128; bit > 0; bit /= 2) digits += (Value & bit) != 0 ? '1' : '0';
    return digits;
}

}  // namespace quirn
