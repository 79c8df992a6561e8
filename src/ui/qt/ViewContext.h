#pragma once
// What every rendered control needs from outside its window: the host (for the run-time error
// box) and the mapping of the program's Windows paths to the disk (for pictures).

#include <QString>

#include <functional>

namespace ui
{
class Host;
}

namespace uiqt
{

using PathMapping = std::function<QString(const QString &)>;

struct ViewContext {
    ui::Host &host;
    PathMapping toHost;
};

} // namespace uiqt
