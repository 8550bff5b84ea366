#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <variant>

namespace aerolith {

/// Why an operation failed, as a sentence without a full stop that a person can read.
struct Error
{
    QString description;
};

/// What an operation that can fail returns: its value or the error. Nothing throws across a layer.
template <typename Value>
class Result
{
public:
    Result(Value value) : m_outcome(std::move(value)) {}

    Result(Error error) : m_outcome(std::move(error)) {}

    [[nodiscard]] bool ok() const { return m_outcome.index() == 0; }

    /// Only when ok().
    [[nodiscard]] const Value& value() const { return std::get<0>(m_outcome); }

    /// Only when not ok().
    [[nodiscard]] const Error& error() const { return std::get<1>(m_outcome); }

private:
    std::variant<Value, Error> m_outcome;
};

/// What an operation without a value returns: nothing on success, else the error.
using Failure = std::optional<Error>;

} // namespace aerolith
