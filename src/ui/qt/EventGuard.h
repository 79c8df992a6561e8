#pragma once
// The boundary between the window system and the program's handlers: a failure that no trap of
// a handler caught is shown as the run-time error box and the program goes on.

#include <QString>

#include <functional>

namespace ui
{
class Host;
}

namespace uiqt
{

// "Run-time error '5':" with the description on the next line.
QString runtimeErrorText(int number, const QString &description);

// Runs a step that may reach a handler; gives false when a failure escaped it.
bool runGuarded(ui::Host &host, const std::function<void()> &step);

} // namespace uiqt
