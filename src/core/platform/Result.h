#pragma once
// A value or a numbered error, returned across library boundaries; window logic raises it as a
// Failure with orRaise().

#include "core/platform/Failure.h"

#include <QString>

#include <optional>
#include <utility>

namespace platform
{

struct Error {
    int number = 0;
    QString description;
};

template <typename T> class [[nodiscard]] Result
{
public:
    Result(T value)
        : m_value(std::move(value))
    {
    }

    Result(Error error)
        : m_error(std::move(error))
    {
    }

    bool ok() const { return m_value.has_value(); }

    explicit operator bool() const { return ok(); }

    const T &value() const & { return *m_value; }

    T &&value() && { return std::move(*m_value); }

    T valueOr(T fallback) const { return m_value ? *m_value : std::move(fallback); }

    const Error &error() const { return m_error; }

    T orRaise() &&
    {
        if (!m_value) {
            throw Failure(m_error.number, m_error.description);
        }
        return std::move(*m_value);
    }

private:
    std::optional<T> m_value;
    Error m_error;
};

template <> class [[nodiscard]] Result<void>
{
public:
    Result() = default;

    Result(Error error)
        : m_failed(true)
        , m_error(std::move(error))
    {
    }

    bool ok() const { return !m_failed; }

    explicit operator bool() const { return ok(); }

    const Error &error() const { return m_error; }

    void orRaise() const
    {
        if (m_failed) {
            throw Failure(m_error.number, m_error.description);
        }
    }

private:
    bool m_failed = false;
    Error m_error;
};

} // namespace platform
