#include "core/platform/Failure.h"

namespace platform
{

QString standardDescription(int number)
{
    switch (number) {
    case InvalidArgument:
        return QStringLiteral("Invalid procedure call or argument");
    case Overflow:
        return QStringLiteral("Overflow");
    case SubscriptOutOfRange:
        return QStringLiteral("Subscript out of range");
    case TypeMismatch:
        return QStringLiteral("Type mismatch");
    case FileNotFound:
        return QStringLiteral("File not found");
    case FileAlreadyOpen:
        return QStringLiteral("File already open");
    case 68:
        return QStringLiteral("Device unavailable");
    case FileAlreadyExists:
        return QStringLiteral("File already exists");
    case PermissionDenied:
        return QStringLiteral("Permission denied");
    case PathFileAccess:
        return QStringLiteral("Path/File access error");
    case PathNotFound:
        return QStringLiteral("Path not found");
    case UnsupportedValueType:
        return QStringLiteral("Unsupported value type");
    default:
        return QStringLiteral("Application-defined or object-defined error");
    }
}

} // namespace platform
