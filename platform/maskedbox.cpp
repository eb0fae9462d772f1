#include <algorithm>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/native.h"

// The rules of masked typing.
namespace quirn {

namespace {

constexpr char kPrompt = '_';

bool IsPlace(char maskCharacter) {
    return maskCharacter == '9' || maskCharacter == '&';
}

bool Accepts(char maskCharacter, char character) {
    return maskCharacter == '9' ? character >= '0' && character <= '9' : static_cast<unsigned char>(character) >= ' ';
}

}  // namespace

MaskedBox::MaskedBox(Parent parent, const Bounds& place, const std::string& mask)
    : Control(parent, native::kMaskedBox, place, {}), mask_(mask) {
    text_ = EmptyText();
}

bool MaskedBox::IsDigitsOnly() const {
    return mask_.find_first_not_of('9') == std::string::npos;
}

std::string MaskedBox::EmptyText() const {
    if (IsDigitsOnly()) return {};
    std::string text = mask_;
    std::replace_if(text.begin(), text.end(), IsPlace, kPrompt);
    return text;
}

void MaskedBox::Clear() {
    SetText(EmptyText());
}

bool MaskedBox::IsFixed(size_t at) const {
    return at < mask_.size() && !IsPlace(mask_[at]);
}

// The first place of the mask at or after a position; the mask's end when there is none.
size_t MaskedBox::NextPlace(size_t at) const {
    while (at < mask_.size() && !IsPlace(mask_[at])) ++at;
    return std::min(at, mask_.size());
}

// Empties the places of a range of the text. False when they were empty.
bool MaskedBox::Empty(size_t from, size_t to) {
    const std::string before = text_;
    to = std::min(to, text_.size());
    if (from >= to) return false;
    if (IsDigitsOnly()) {
        text_.erase(from, to - from);
    } else {
        for (size_t i = from; i < to; ++i)
            if (i >= mask_.size() || IsPlace(mask_[i])) text_[i] = kPrompt;
    }
    return text_ != before;
}

// Puts a character at or after the caret and moves the caret behind it. False when nothing has changed.
bool MaskedBox::Put(char character, size_t& caret) {
    if (IsDigitsOnly()) {
        if (!Accepts('9', character) || text_.size() >= mask_.size()) return false;
        caret = std::min(caret, text_.size());
        text_.insert(text_.begin() + static_cast<std::string::difference_type>(caret++), character);
        return true;
    }
    // A text is often typed or pasted as it is shown: a fixed character is there already.
    if (IsFixed(caret) && mask_[caret] == character) {
        ++caret;
        return false;
    }
    if (caret > 0 && IsFixed(caret - 1) && mask_[caret - 1] == character) return false;
    const size_t at = NextPlace(caret);
    if (at >= mask_.size() || !Accepts(mask_[at], character)) return false;
    // A text that was set need not be as long as the mask.
    const std::string empty = EmptyText();
    if (text_.size() < empty.size()) text_ += empty.substr(text_.size());
    caret = NextPlace(at + 1);
    if (text_[at] == character) return false;
    text_[at] = character;
    return true;
}

size_t MaskedBox::UserTypes(char character, size_t caret, size_t selectionEnd) {
    if (onKeyPress && character != kDelete) {
        bool swallowed = false;
        CallHandler([&] { swallowed = onKeyPress(character); });
        if (swallowed) return caret;
    }
    const bool erases = character == kBackspace || character == kDelete;
    if (selectionEnd > caret) {
        // A character that the mask refuses leaves what is selected as it is.
        if (!erases && IsDigitsOnly() && (character < '0' || character > '9')) return caret;
        caret = UserClears(caret, selectionEnd);
        if (erases) return caret;
    }
    bool changed = false;
    if (character == kBackspace) {
        size_t at = std::min(caret, text_.size());
        if (at == 0) return caret;
        --at;
        if (!IsDigitsOnly())
            while (at > 0 && at < mask_.size() && !IsPlace(mask_[at])) --at;
        changed = Empty(at, at + 1);
        caret = at;
    } else if (character == kDelete) {
        const size_t at = IsDigitsOnly() ? caret : NextPlace(caret);
        changed = Empty(at, at + 1);
    } else {
        changed = Put(character, caret);
    }
    if (changed) {
        Changed(Aspect::Text);
        CallHandler(onChange);
    }
    return caret;
}

size_t MaskedBox::UserPastes(std::string_view text, size_t caret, size_t selectionEnd) {
    if (onPaste) {
        bool taken = false;
        CallHandler([&] { taken = onPaste(std::string(text)); });
        if (taken) return caret;
    }
    if (selectionEnd > caret) caret = UserClears(caret, selectionEnd);
    bool changed = false;
    for (const char character : text) {
        const bool blank = static_cast<unsigned char>(character) <= ' ';
        if (!blank && Put(character, caret)) changed = true;
    }
    if (changed) {
        Changed(Aspect::Text);
        CallHandler(onChange);
    }
    return caret;
}

size_t MaskedBox::UserClears(size_t from, size_t to) {
    if (Empty(from, to)) {
        Changed(Aspect::Text);
        CallHandler(onChange);
    }
    return from;
}

bool MaskedBox::KeepsKey(int key, bool) const {
    return key == kKeyDelete;
}

void MaskedBox::UserEdits(const std::string& text) {
    if (text == text_) return;
    text_ = text;
    Changed(Aspect::Text);
    CallHandler(onChange);
}

}  // namespace quirn
