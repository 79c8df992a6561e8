#include "xml/CollectionFailures.h"

#include "core/platform/Failure.h"

namespace xml
{

void outOfRange()
{
    platform::raise(platform::SubscriptOutOfRange);
}

void noSuchKey()
{
    platform::raise(platform::InvalidArgument);
}

void keyInUse()
{
    throw platform::Failure(
        457, QStringLiteral("This key is already associated with an element of this collection"));
}

} // namespace xml
