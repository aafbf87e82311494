// What functions return that can fail.
#pragma once

#include <optional>
#include <string>
#include <utility>

namespace Simulator {

/// Reason for a failure, as text for the user; nothing on success.
using Failure = std::optional<std::string>;

/// Returned instead of a value: the reason why there is none.
struct Refusal {
    std::string reason;
};

/// A value, or the reason why there is none.
template <class Value>
class [[nodiscard]] Result {
public:
    Result(Value value) : m_value(std::move(value)) {}
    Result(Refusal refusal) : m_reason(std::move(refusal.reason)) {}

    explicit operator bool() const { return m_value.has_value(); }
    /// The value; requires that there is one.
    const Value& operator*() const { return *m_value; }
    const Value* operator->() const { return &*m_value; }
    /// Empty if there is a value.
    const std::string& Reason() const { return m_reason; }

private:
    std::optional<Value> m_value;
    std::string m_reason;
};

} // namespace Simulator
