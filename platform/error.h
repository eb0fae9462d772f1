#pragma once

#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace quirn {

// The classic run-time error numbers that players know from the "Error # ..." box.
enum class ErrorNumber {
    Overflow = 6,
    OutOfMemory = 7,
    InternalError = 51,
    FileNotFound = 53,
    DeviceIo = 57,
    DiskFull = 61,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
};

// An error is a value that a routine returns. Only the library throws (memory ran out): a routine that needs much of it
// returns that as an error too, and CallHandler shows the rest.
struct RuntimeError {
    int number = 0;
    std::string source;       // who raised it, the program's title
    std::string description;  // one line, no full stop
};

RuntimeError MakeError(ErrorNumber number);

// True when there is no such file, or not even its folder.
bool IsMissingFile(const RuntimeError& error);

// The result of a routine that gives back nothing else: empty when all went well.
//     if (Failure failure = WriteWholeFile(path, bytes)) return failure;
using Failure = std::optional<RuntimeError>;

// The value of a routine, or why there is none.
template <class T>
class Result {
public:
    Result(T value) : content_(std::move(value)) {}
    Result(RuntimeError error) : content_(std::move(error)) {}
    Result(ErrorNumber number) : content_(MakeError(number)) {}

    bool Failed() const { return content_.index() == 1; }
    const T& Value() const { return std::get<0>(content_); }
    T&& Take() { return std::get<0>(std::move(content_)); }
    const RuntimeError& Error() const { return std::get<1>(content_); }

private:
    std::variant<T, RuntimeError> content_;
};

}  // namespace quirn
