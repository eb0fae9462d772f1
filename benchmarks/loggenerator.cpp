#include "benchmarks/loggenerator.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>
#include <string_view>
#include <vector>

#include "platform/text.h"

namespace quirn {

namespace {

class Dice {
public:
    explicit Dice(uint64_t seed) : state_(seed) {}

    uint64_t Next() {
        uint64_t z = state_ += 0x9E3779B97F4A7C15u;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9u;
        z = (z ^ z >> 27) * 0x94D049BB133111EBu;
        return z ^ z >> 31;
    }
    size_t Below(size_t limit) { return static_cast<size_t>((Next() >> 32) * limit >> 32); }
    bool Percent(double percent) { return static_cast<double>(Next() >> 11) < percent / 100 * 9007199254740992.0; }
    double Unit() { return static_cast<double>(Next() >> 11) / 9007199254740992.0; }

private:
    uint64_t state_;
};

constexpr const char* kSyllables[] = {"ka",  "ro",  "mi",    "ven", "tor", "la",    "shi", "dun", "rex",   "al",
                                      "fin", "gor", "nee",   "pol", "qua", "sty",   "ul",  "wen", "yar",   "zi",
                                      "bo",  "cas", "\xE9r", "hul", "jin", "\xF6m", "tam", "orl", "\xE5k", "pim"};
constexpr const char* kWords[] = {"gg",
                                  "lag",
                                  "again",
                                  "who",
                                  "has",
                                  "the",
                                  "flag",
                                  "nice",
                                  "shot",
                                  "one",
                                  "more",
                                  "round",
                                  "cover",
                                  "me",
                                  "please",
                                  "brb",
                                  "tea",
                                  "no",
                                  "bombs",
                                  "in",
                                  "here",
                                  "moving",
                                  "to",
                                  "top",
                                  "left",
                                  "anyone",
                                  "for",
                                  "east",
                                  "base",
                                  "that",
                                  "rock",
                                  "came",
                                  "out",
                                  "of",
                                  "where",
                                  "\xE7"
                                  "a va?",
                                  "nein,",
                                  "links!",
                                  ":)",
                                  "wait",
                                  "what",
                                  "score",
                                  "is",
                                  "it",
                                  "tonight",
                                  "team",
                                  "2",
                                  "3;",
                                  "(back)",
                                  "sm\xF6r",
                                  "ok",
                                  "really",
                                  "nobody",
                                  "saw",
                                  "me,",
                                  "I",
                                  "was",
                                  "there",
                                  "first"};
constexpr const char* kSystemTexts[] = {"Welcome to the zone",         "Player entered arena",  "Ball is in play",
                                        "Your file has been recorded", "Score: red 12, blue 9", "Reset at 20:00"};

template <size_t n>
std::string_view OneOf(const char* const (&texts)[n], Dice& dice) {
    return texts[dice.Below(n)];
}

std::vector<std::string> MakeNames(size_t count, Dice& dice) {
    std::vector<std::string> names;
    std::set<std::string, LessNoCase> known;
    while (names.size() < count) {
        std::string name;
        const size_t syllables = 2 + dice.Below(4);
        for (size_t i = 0; i < syllables; ++i) name += OneOf(kSyllables, dice);
        name[0] = FoldCase(name[0]);
        if (dice.Percent(8)) name += "-" + std::to_string(dice.Below(100));
        else if (dice.Percent(6)) name += "(" + std::to_string(dice.Below(99)) + ")";
        else if (dice.Percent(6)) name += " " + std::string(OneOf(kSyllables, dice));
        if (known.insert(name).second) names.push_back(name);
    }
    return names;
}

class Generator {
public:
    explicit Generator(const LogShape& shape)
        : shape_(shape), dice_(shape.seed), names_(MakeNames(shape.players, dice_)) {
        // The n-th player speaks n^-0.9 times as often as the first.
        double sum = 0;
        for (size_t i = 0; i < names_.size(); ++i)
            weights_.push_back(sum += std::pow(static_cast<double>(i + 1), -0.9));
    }

    std::string Make() {
        std::string log;
        log.reserve(shape_.bytes + 4096);
        size_t tagged = 0;  // lines that still get a tag
        size_t number = 0;
        while (log.size() < shape_.bytes) {
            if (tagged == 0 && dice_.Percent(0.02)) tagged = 50 + dice_.Below(400);
            if (tagged > 0) {
                --tagged;
                const std::string digits = std::to_string(++number);
                log += "{" + std::string(6 - std::min<size_t>(6, digits.size()), '0') + digits + "} ";
            }
            AppendLine(log);
            log += dice_.Percent(0.5) ? "\n" : "\r\n";
        }
        return log;
    }

private:
    std::string Name() {
        const auto at = std::lower_bound(weights_.begin(), weights_.end(), dice_.Unit() * weights_.back());
        std::string name = names_[std::min(static_cast<size_t>(at - weights_.begin()), names_.size() - 1)];
        if (dice_.Percent(2)) name = FoldCase(name);
        return name;
    }

    void AppendMessage(std::string& log) {
        const size_t words = dice_.Percent(0.05) ? 200 + dice_.Below(400) : 4 + dice_.Below(14);
        for (size_t i = 0; i < words; ++i) {
            if (i > 0) log += ' ';
            log += OneOf(kWords, dice_);
        }
        if (dice_.Percent(2)) log += " > look";
    }

    void AppendSpeech(std::string& log, const std::string& start, const std::string& end) {
        log += start + Name() + end;
        AppendMessage(log);
    }

    void AppendLine(std::string& log) {
        const double kind = dice_.Unit() * 100;
        const std::string channel(1, static_cast<char>('1' + dice_.Below(4)));
        if (kind < 43) AppendSpeech(log, "  ", "> ");
        else if (kind < 52) AppendSpeech(log, "P ", "> ");
        else if (kind < 54.5) AppendSpeech(log, "P :", ":> ");
        else if (kind < 64) AppendSpeech(log, "T ", "> ");
        else if (kind < 67) AppendSpeech(log, "E ", "> ");
        else if (kind < 73) AppendSpeech(log, "C " + channel + ":", "> ");
        else if (kind < 78) AppendSpeech(log, "C ", "> " + channel + ";");
        else if (kind < 80) AppendSpeech(log, "C ", "> ");
        else if (kind < 83) AppendSpeech(log, "  (", ")> ");
        else if (kind < 94.5)
            log += "  " + Name() + "(" + std::to_string(1 + dice_.Below(99)) + ")(" +
                   std::to_string(1 + dice_.Below(500)) + ") killed by: " + Name();
        else if (kind < 97) log.append("  ").append(OneOf(kSystemTexts, dice_));
        else if (kind < 98) AppendSpeech(log, "Xx", "> ");
        else if (kind < 99) log.append("Xx ").append(OneOf(kSystemTexts, dice_));
        else if (kind < 99.9) log.append(dice_.Below(3), ' ');
        else log += "[~ Filtered by QUIRN v1.61 ~]";
    }

    const LogShape& shape_;
    Dice dice_;
    std::vector<std::string> names_;
    std::vector<double> weights_;
};

}  // namespace

std::string GenerateLog(const LogShape& shape) {
    return Generator(shape).Make();
}

}  // namespace quirn
