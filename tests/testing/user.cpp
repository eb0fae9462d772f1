// The test user: looks at other processes' windows and acts on them from outside, as a player would.
//
// Reads one command per line from standard input, words separated by tabs and percent-encoded, and answers each with
// one line of JSON. Texts in the answers hold one character U+0000..U+00FF per byte. The commands are the tables at
// the ends of the files user_*.cpp.
#include "tests/testing/user.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace user {

std::string Quoted(const std::string& bytes) {
    std::string out = "\"";
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 32 || byte > 126 || c == '"' || c == '\\') {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(byte));
            out += escape.data();
        } else {
            out += c;
        }
    }
    return out + '"';
}

std::string Member(const char* name, const std::string& json) {
    return Quoted(name) + ":" + json;
}
std::string Member(const char* name, long long number) {
    return Member(name, std::to_string(number));
}
std::string Flag(const char* name, bool value) {
    return Member(name, value ? "true" : "false");
}

std::string List(const std::vector<std::string>& items) {
    std::string out = "[";
    for (const auto& item : items) out += (out.size() > 1 ? "," : "") + item;
    return out + "]";
}

std::string Done(const std::string& members) {
    return "{" + members + "}";
}
std::string Error(const std::string& text) {
    return "{" + Member("error", Quoted(text)) + "}";
}

std::string Word(const Words& words, size_t index) {
    return index < words.size() ? words[index] : std::string();
}
long long Number(const Words& words, size_t index) {
    return std::atoll(Word(words, index).c_str());
}
HWND Window(const Words& words, size_t index) {
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(Number(words, index)));
}
namespace {

Words SplitLine(const std::string& line) {
    Words words(1);
    for (size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '\t') words.emplace_back();
        else if (line[i] == '%' && i + 2 < line.size()) {
            words.back() += static_cast<char>(std::strtol(line.substr(i + 1, 2).c_str(), nullptr, 16));
            i += 2;
        } else if (line[i] != '\r' && line[i] != '\n') words.back() += line[i];
    }
    return words;
}

}  // namespace

}  // namespace user

int main() {
    using namespace user;
    Commands commands;
    for (Commands part : {LookingCommands(), ActingCommands(), FileCommands()}) commands.merge(part);
    std::string line;
    for (int c = std::getchar(); c != EOF; c = std::getchar()) {
        line += static_cast<char>(c);
        if (c != '\n') continue;
        const Words words = SplitLine(line);
        line.clear();
        const auto command = commands.find(words[0]);
        std::puts((command == commands.end() ? Error("no such command") : command->second(words)).c_str());
        std::fflush(stdout);
    }
    return 0;
}
