#pragma once
// The run-time failure that window logic raises and the handlers' traps catch: a number and a text,
// as the program's messages show them.

#include <QString>

#include <exception>
#include <string>

namespace platform
{

// The failure numbers the traps of the windows test for.
enum FailureNumber : int {
    InvalidArgument = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    FileAlreadyExists = 58,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    UnsupportedValueType = 1001,
};

class Failure : public std::exception
{
public:
    Failure(int number, QString description)
        : m_number(number)
        , m_description(std::move(description))
        , m_what(m_description.toStdString())
    {
    }

    int number() const { return m_number; }

    const QString &description() const { return m_description; }

    const char *what() const noexcept override { return m_what.c_str(); }

private:
    int m_number;
    QString m_description;
    std::string m_what;
};

// The standard description of a failure number, as the messages of the traps print it.
QString standardDescription(int number);

[[noreturn]] inline void raise(int number, const QString &description = {})
{
    throw Failure(number, description.isEmpty() ? standardDescription(number) : description);
}

} // namespace platform
