#pragma once

#include <QString>
#include <QVariantMap>
#include <utility>
#include <variant>

// Why something failed. `localizedDescription` is a sentence for people; `userInfo` holds what a developer
// needs (path, SQLite code, statement), possibly nothing.
struct NSError
{
    QString localizedDescription;
    QVariantMap userInfo;

    // "description, {key = value; ...}": the tail of the "Unresolved error " message.
    [[nodiscard]] QString debugText() const;
};

// A value or the reason for its absence. Reading the wrong side is a programming error (terminates).
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value)
        : state(std::move(value))
    {
    }
    Result(NSError error)
        : state(std::move(error))
    {
    }

    [[nodiscard]] bool ok() const { return state.index() == 0; }
    explicit operator bool() const { return ok(); }
    [[nodiscard]] const T& value() const& { return std::get<0>(state); }
    // By value, so that looping over the value of a temporary is safe.
    [[nodiscard]] T value() && { return std::get<0>(std::move(state)); }
    [[nodiscard]] const NSError& error() const { return std::get<1>(state); }

private:
    std::variant<T, NSError> state;
};

// The sentence for people; empty where there is no problem.
template <typename T>
[[nodiscard]] QString problemOf(const Result<T>& outcome)
{
    return outcome ? QString() : outcome.error().localizedDescription;
}

// The outcome of something that yields nothing but success.
using Status = Result<std::monostate>;

inline Status success()
{
    return std::monostate{};
}
