#pragma once
// The Windows-1252 code page as a lossless codec: every byte has a character and back, so a file
// read and written without an edit keeps its bytes.

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace platform
{

class Cp1252
{
public:
    static QString decode(QByteArrayView bytes);
    // A character outside the code page becomes '?', as Windows writes it.
    static QByteArray encode(QStringView text);
};

} // namespace platform
