#pragma once
// The four traps a handler may have, as small helpers so that a handler reads as its steps:
// pass over every failure and go on; pass over listed numbers; report and go on or end; end
// silently. Only the program's numbered failures are trapped; anything else is a bug and passes.

#include "core/platform/Failure.h"
#include "ui/Host.h"

#include <QString>

#include <algorithm>
#include <initializer_list>

namespace core
{

// Runs one statement; a failure is passed over and the caller goes on with the next statement.
template <typename F> void resumeNext(F &&statement)
{
    try {
        statement();
    } catch (const platform::Failure &) {
    }
}

// Runs one statement; failures of the listed numbers are passed over, others go on up.
template <typename F> void passOver(std::initializer_list<int> numbers, F &&statement)
{
    try {
        statement();
    } catch (const platform::Failure &failure) {
        if (std::find(numbers.begin(), numbers.end(), failure.number()) == numbers.end()) {
            throw;
        }
    }
}

// Runs a handler body; a failure ends it without a word.
template <typename F> void silently(F &&body)
{
    try {
        body();
    } catch (const platform::Failure &) {
    }
}

// Runs a handler body; a failure ends it and is shown as "Error <number> occurred in <where>"
// with the exclamation icon, which is how most handlers report.
template <typename F> void trapped(ui::Host &host, const QString &where, F &&body)
{
    try {
        body();
    } catch (const platform::Failure &failure) {
        host.msgBox(QStringLiteral("Error ") + QString::number(failure.number())
                        + QStringLiteral(" occurred in ") + where,
                    ui::Buttons::OK,
                    ui::Icon::Exclamation,
                    host.appTitle());
    }
}

// Runs a handler body; a failure is given to report, which shows the handler's own message.
template <typename F, typename R> void trappedWith(F &&body, R &&report)
{
    try {
        body();
    } catch (const platform::Failure &failure) {
        report(failure);
    }
}

} // namespace core
