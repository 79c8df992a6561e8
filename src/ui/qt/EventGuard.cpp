#include "ui/qt/EventGuard.h"

#include "core/platform/Failure.h"
#include "ui/Host.h"

#include <exception>

using namespace Qt::StringLiterals;

namespace uiqt
{

namespace
{

// What the runtime calls a fault of its own; a bug that is no numbered failure shows as this.
constexpr int InternalError = 51;

} // namespace

QString runtimeErrorText(int number, const QString &description)
{
    return u"Run-time error '"_s + QString::number(number) + u"':\n"_s + description;
}

bool runGuarded(ui::Host &host, const std::function<void()> &step)
{
    // An exception must never unwind through the window system's event loop.
    try {
        step();
        return true;
    } catch (const platform::Failure &failure) {
        host.msgBox(runtimeErrorText(failure.number(), failure.description()),
                    ui::Buttons::OK,
                    ui::Icon::Critical,
                    host.appTitle());
    } catch (const std::exception &error) {
        host.msgBox(runtimeErrorText(InternalError,
                                     u"Internal error: "_s + QString::fromUtf8(error.what())),
                    ui::Buttons::OK,
                    ui::Icon::Critical,
                    host.appTitle());
    }
    return false;
}

} // namespace uiqt
