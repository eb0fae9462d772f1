#include "logedit/logparser.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "logedit/logscan.h"
#include "logedit/sse2.h"
#include "platform/text.h"

namespace quirn {

namespace {

// What the first character of a prefix says when the second is a space; 0 for the first characters of lines that need a
// closer look.
constexpr std::array<uint16_t, 256> MakePrefixTable() {
    std::array<uint16_t, 256> table{};
    table.fill(kUnknown);
    table[' '] = kPublic;
    table['P'] = kPrivate;
    table['T'] = kTeam;
    table['E'] = kFreq;
    table['C'] = kChannel1;
    table['['] = table['{'] = 0;
    return table;
}
constexpr std::array<uint16_t, 256> kPrefixes = MakePrefixTable();

// One of two without a branch, which the compiler would not always do by itself.
template <class T>
inline T Select(bool first, T a, T b) {
    return static_cast<T>(b ^ ((a ^ b) & -static_cast<T>(first)));
}
inline const char* Select(bool first, const char* a, const char* b) {
    return b + ((a - b) & -static_cast<ptrdiff_t>(first));
}

// Whether kKilledBy stands here. Looks at 16 bytes.
inline bool IsKill(const char* at) {
    static constexpr char kText[17] = ") killed by: ";
    static_assert(kKilledBy == kText);
    constexpr int kAll = (1 << kKilledBy.size()) - 1;
    return (_mm_movemask_epi8(_mm_cmpeq_epi8(sse2::Load(at), sse2::Load(kText))) & kAll) == kAll;
}

// "1", anything else and no digit at all are channel 1.
inline uint32_t ChannelType(char digit) {
    const auto channel = static_cast<unsigned char>(digit - '1');
    return kChannel1 << (channel < 4 ? channel : 0);
}

// Behind the line-number tag at the start of a line: behind the first "} ", or behind the brace alone when there is
// none, on purpose.
size_t TagLength(std::string_view line) {
    const size_t end = line.find("} ");
    return end == std::string_view::npos ? 1 : end + 2;
}

}  // namespace

// What is kept of a line.
struct LogParser::Line {
    std::string_view text;
    uint32_t type;
    bool named;
    std::string_view name;
};

LogParser::LogParser(ParsedLog& log, size_t size)
    : log_(log),
      ready_(log.Allocate(size)),
      table_(log.players_),
      window_(std::make_unique_for_overwrite<ScanWindow>()),
      block_(log.blocks_[0].get()) {
    static_assert(ParsedLog::kMargin >= kScanReadsOn && ParsedLog::kMargin >= kKeyBytes);
    window_->pendingCount = 0;
}

LogParser::~LogParser() = default;

bool LogParser::Advance(size_t available) {
    while (start_ < available) {
        if (searched_ <= start_) {
            if (!ParseWindow(std::min(available, start_ + kWindowBytes))) return false;
            continue;
        }
        // No line end so far: a very long line, or one that is not all there yet.
        const char* text = Buffer();
        const void* found =
            searched_ < available ? std::memchr(text + searched_, '\n', available - searched_) : nullptr;
        if (found == nullptr) {
            searched_ = available;
            return true;
        }
        const auto lineEnd = static_cast<size_t>(static_cast<const char*>(found) - text);
        const bool withReturn = lineEnd > start_ && text[lineEnd - 1] == '\r';
        if (!ParseAlone(lineEnd - withReturn, lineEnd + 1)) return false;
    }
    return true;
}

bool LogParser::Finish(size_t available) {
    log_.textSize_ = available;
    std::memset(Buffer() + available, '\n', ParsedLog::kMargin);
    if (!Advance(available)) return false;
    if (start_ < available && !ParseAlone(available, available)) return false;
    Count(available);
    return true;
}

// end: of the text, where a line end stands.
void LogParser::Count(size_t end) {
    const size_t kept = (log_.blocks_.size() - 1) * kLinesPerBlock + slot_;
    // The first element stays what it was before the file when no line was kept.
    if (kept == 0) block_->begin[0] = static_cast<uint32_t>(end);
    log_.lineCount_ = std::max<size_t>(kept, 1);
    log_.longestLine_ = longest_;
}

bool LogParser::Grow(size_t size) {
    if (size >= kLogSizeLimit) return false;
    std::unique_ptr<char[]> old = std::move(log_.text_);
    const size_t oldSize = log_.textSize_;
    if (!log_.Allocate(size)) {
        log_.text_ = std::move(old);
        return false;
    }
    std::memcpy(Buffer(), old.get() + ParsedLog::kMargin, oldSize);
    for (std::string_view& name : log_.players_) name = {log_.text_.get() + (name.data() - old.get()), name.size()};
    return true;
}

void LogParser::Publish() {
    Count(log_.textSize_);
}

// Parses the whole lines from start_ on up to end; without any, searched_ says so.
bool LogParser::ParseWindow(size_t end) {
    ScanWindow& window = *window_;
    const char* const text = Buffer() + start_;
    window.Scan(text, end - start_);
    if (window.placeCount == 0) {
        searched_ = end;
        return true;
    }
    const uint16_t* const places = window.places;
    size_t begin = 0;
    for (size_t i = 0; i < window.placeCount;) {
        // A usual line has one mark, or none: the kinds of line come in no order that a processor could guess, so it is
        // parsed nearly without a branch.
        const size_t first = places[i];
        const bool hasMark = text[first] != '\n';
        size_t lineFeed = places[i + hasMark];
        i += size_t{1} + hasMark;
        bool unusual = false;
        for (; text[lineFeed] != '\n'; lineFeed = places[i++])
            unusual |= (text[first] == ')') | (text[lineFeed] == ')');

        const size_t next = lineFeed + 1;
        const bool withReturn = (text[static_cast<ptrdiff_t>(lineFeed) - 1] == '\r') & (lineFeed > begin);
        const char* const whole = text + begin;
        const char* const lineEnd = text + lineFeed - withReturn;
        const size_t directlyNext = withReturn ? start_ + next : SIZE_MAX;
        consumed_ += static_cast<size_t>(lineEnd - whole) + 2;
        begin = next;
        const char* line = whole;
        if (*line == '{') [[unlikely]]
            line += TagLength({whole, lineEnd});

        // A few bytes behind a short line may be looked at; what they say is not used.
        const bool hasSpeaker = text[first] == '>';
        const bool isKill = IsKill(text + first);
        const char* const arrow = Select(hasSpeaker, text + first, line + 3);
        const char* name = line + 2;
        const uint32_t prefix = kPrefixes[static_cast<unsigned char>(*line)];
        const bool spaces = (*name == ' ') | (hasSpeaker & (arrow[-1] == ' '));
        const bool squad = hasSpeaker & (*name == '(');
        const char* const nameEnd = arrow - squad;
        name += squad;
        unusual |= (prefix == 0) | (lineEnd - line < 3) | spaces | (name >= nameEnd) | (text + first < line + 2);
        if (unusual) [[unlikely]] {
            ParseUnusual({whole, lineEnd}, directlyNext);
            continue;
        }
        name += ptrdiff_t{2} * ((name[1] == ':') & (nameEnd - name > 1));
        const bool named = hasSpeaker & ((*name != ':') | (name == nameEnd));

        const char digit = Select(line[3] == ':', line[2], Select(arrow[3] == ';', arrow[2], '1'));
        uint32_t type = Select(line[1] == ' ', prefix, uint32_t{kUnknown});
        type = Select(type == kChannel1, ChannelType(digit), type);
        type = Select(hasSpeaker, type, uint32_t{kSystem});
        type = Select(isKill, uint32_t{kKill}, type);
        type = Select(squad, uint32_t{kSquad}, type);

        window.pending[window.pendingCount] = {name, static_cast<uint32_t>(nameEnd - name),
                                               Keep(line, static_cast<size_t>(lineEnd - line), type, directlyNext)};
        window.pendingCount += named;
    }
    start_ += begin;
    return NumberPlayers();
}

// Parses the line from start_ on by itself.
bool LogParser::ParseAlone(size_t lineEnd, size_t next) {
    const std::string_view whole(Buffer() + start_, lineEnd - start_);
    consumed_ += whole.size() + 2;
    ParseUnusual(whole, next == lineEnd + 2 ? next : SIZE_MAX);
    start_ = next;
    return NumberPlayers();
}

void LogParser::ParseUnusual(std::string_view whole, size_t directlyNext) {
    Line line;
    if (!Decode(whole, line)) return;
    int32_t* const info = Keep(line.text.data(), line.text.size(), line.type, directlyNext);
    if (!line.named) return;
    window_->pending[window_->pendingCount++] = {line.name.data(), static_cast<uint32_t>(line.name.size()), info};
}

// Any line, step by step. False when nothing is kept of it.
bool LogParser::Decode(std::string_view whole, Line& line) const {
    if (Trim(whole).empty() || whole.starts_with("[~")) return false;
    line.text = whole;
    if (whole.starts_with('{')) line.text.remove_prefix(TagLength(whole));
    const std::string_view prefix = line.text.substr(0, 2);
    const std::string_view rest = line.text.substr(prefix.size());
    const size_t arrow = rest.find("> ");
    const bool hasSpeaker = arrow != std::string_view::npos;

    line.type = kUnknown;
    if (prefix.size() == 2 && prefix[1] == ' ' && prefix[0] != '[' && prefix[0] != '{')
        line.type = kPrefixes[static_cast<unsigned char>(prefix[0])];
    if (line.type == kChannel1) {
        const std::string_view trimmed = Trim(rest);
        if (trimmed.size() > 1 && trimmed[1] == ':') line.type = ChannelType(trimmed[0]);
        else if (hasSpeaker && arrow + 3 < rest.size() && rest[arrow + 3] == ';')
            line.type = ChannelType(rest[arrow + 2]);
    }
    const bool kill = rest.find(kKilledBy) != std::string_view::npos;
    if (kill) line.type = kKill;
    line.named = false;
    if (!hasSpeaker) {
        if (!kill) line.type = kSystem;
        return true;
    }
    std::string_view name = Trim(rest.substr(0, arrow));
    if (name.empty()) name = rest.substr(0, 0);
    if (name.starts_with('(')) {
        // Of a lone "(" nothing is left.
        name = name.size() > 1 ? name.substr(1, name.size() - 2) : name.substr(1);
        line.type = kSquad;
    }
    if (name.size() > 1 && name[1] == ':') name.remove_prefix(2);
    line.named = !name.starts_with(':');
    line.name = name;
    return true;
}

// The info word of the kept line, still without its player.
inline int32_t* LogParser::Keep(const char* begin, size_t length, uint32_t type, size_t directlyNext) {
    if (slot_ == kLinesPerBlock) [[unlikely]]
        AddBlock();
    const auto offset = static_cast<size_t>(begin - Buffer());
    *lastBegin_ |= static_cast<uint32_t>(offset == directlyNext_) << 31;
    lastBegin_ = &block_->begin[slot_];
    *lastBegin_ = static_cast<uint32_t>(offset);
    directlyNext_ = directlyNext;
    longest_ = std::max(longest_, length);
    int32_t* const info = &block_->info[slot_++];
    *info = static_cast<int32_t>(type);
    return info;
}

void LogParser::AddBlock() {
    log_.AddBlock();
    block_ = log_.blocks_.back().get();
    slot_ = 0;
}

bool LogParser::NumberPlayers() {
    return table_.Number({window_->pending, std::exchange(window_->pendingCount, 0)});
}

}  // namespace quirn
