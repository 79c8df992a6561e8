#pragma once
// An edited .dds put back into the text of the game texture it was made from: its picture data
// is written as hexadecimal text into the kept pieces, after checks that it still fits them.

#include "core/platform/Result.h"
#include "textures/HeaderFile.h"

#include <QByteArrayView>
#include <QString>

namespace textures
{

// The texture's XML, ready for the converter. The error's text is the message for the user: a
// file that is no complete .dds, or one whose format, size or data length differ from the
// texture's. ddsPath only names the file in those messages.
platform::Result<QString>
importDds(const HeaderFile &header, QByteArrayView dds, const QString &ddsPath);

// The level text alone, by the program's line rule: groups of eight bytes as upper-case hex, a
// blank after each group and a line feed after every fourth. A level is tested against its size
// only at a line's end, so it is written in whole lines of 32 bytes; the data's end stops it
// after any group. Bytes past the data read as zero.
QString spliceLevels(const HeaderFile &header, QByteArrayView dds);

} // namespace textures
