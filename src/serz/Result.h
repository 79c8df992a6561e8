#pragma once
// A value or the Error that prevented it; the converter reports bad input this way and never
// throws.

#include "serz/Error.h"

#include <cassert>
#include <utility>
#include <variant>

namespace serz
{

template <typename T> class [[nodiscard]] Result
{
public:
    Result(T value)
        : m_data(std::move(value))
    {
    }

    Result(Error error)
        : m_data(std::move(error))
    {
    }

    [[nodiscard]] bool ok() const { return m_data.index() == 0; }

    explicit operator bool() const { return ok(); }

    [[nodiscard]] T &value()
    {
        assert(ok());
        return std::get<0>(m_data);
    }

    [[nodiscard]] const T &value() const
    {
        assert(ok());
        return std::get<0>(m_data);
    }

    [[nodiscard]] const Error &error() const
    {
        assert(!ok());
        return std::get<1>(m_data);
    }

private:
    std::variant<T, Error> m_data;
};

// Success carries nothing.
struct Done {
};

} // namespace serz
