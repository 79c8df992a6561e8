#include "textures/DdsImport.h"

#include "textures/DdsHeader.h"
#include "textures/TextureFormat.h"
#include "textures/TextureText.h"

#include <numeric>

namespace textures
{

namespace
{

platform::Error refusal(const QString &message)
{
    return platform::Error{platform::InvalidArgument, message};
}

QString mismatch(const QString &ddsPath,
                 const QString &reason,
                 const TextureFormat &format,
                 qsizetype levels)
{
    return QStringLiteral("The file ") + ddsPath
        + QStringLiteral(" does not fit the texture it was made from (") + reason
        + QStringLiteral("), cannot process further.\r\nIt must be saved with the following "
                         "format:-\r\n1. .DDS\r\n2. ")
        + format.shown + QStringLiteral("\r\n3. Number of Mip-Maps - ") + QString::number(levels);
}

// Why an edited file does not fit; empty when it does.
QString misfit(const DdsHeaderInfo &info,
               const HeaderFile &header,
               const TextureFormat &format,
               qsizetype dataLength)
{
    const QString &head = header.pieces.first();
    const int width = elementNumber(head, QStringLiteral("Width"));
    const int height = elementNumber(head, QStringLiteral("Height"));
    if (!headerMatchesFormat(info, format)) {
        return QStringLiteral("it is not saved as ") + format.shown;
    }
    if (info.width != width || info.height != height) {
        return QStringLiteral("it is %1x%2, the texture %3x%4")
            .arg(info.width)
            .arg(info.height)
            .arg(width)
            .arg(height);
    }
    const qint64 needed = std::accumulate(header.sizes.begin(), header.sizes.end(), qint64(0));
    if (dataLength != needed) {
        return QStringLiteral("it holds %1 bytes of picture data, the texture %2")
            .arg(dataLength)
            .arg(needed);
    }
    return {};
}

} // namespace

namespace
{

// Eight bytes as upper-case hexadecimal from pos on; bytes past the data read as zero.
void writeGroup(QString &text, QByteArrayView dds, qsizetype &pos)
{
    static const char16_t digits[] = u"0123456789ABCDEF";
    for (int i = 0; i < 8; ++i, ++pos) {
        const quint8 byte = pos < dds.size() ? quint8(dds[pos]) : 0;
        text += QChar(digits[byte >> 4]);
        text += QChar(digits[byte & 0x0F]);
    }
}

// One level in whole lines of four groups, tested against its size only at a line's end.
void writeLevel(QString &text, QByteArrayView dds, qsizetype &pos, qint64 size)
{
    qint64 written = 0;
    bool ended = false;
    while (!ended) {
        for (int group = 0; group < 4 && !ended; ++group) {
            writeGroup(text, dds, pos);
            written += 8;
            ended = pos >= dds.size();
            if (!ended) {
                text += group == 3 ? u'\n' : u' ';
            }
        }
        ended = ended || written >= size;
    }
}

} // namespace

QString spliceLevels(const HeaderFile &header, QByteArrayView dds)
{
    qint64 total = 0;
    for (const qint64 size : header.sizes) {
        total += size + 32;
    }
    QString text;
    text.reserve(qsizetype(total * 9 / 4) + 64);
    qsizetype pos = ddsHeaderSize;
    for (qsizetype level = 0; level < header.sizes.size(); ++level) {
        text += header.pieces[level];
        writeLevel(text, dds, pos, header.sizes[level]);
    }
    text += header.pieces.last();
    return text;
}

platform::Result<QString>
importDds(const HeaderFile &header, QByteArrayView dds, const QString &ddsPath)
{
    const std::optional<DdsHeaderInfo> info = readDdsHeader(dds);
    if (!info) {
        return refusal(QStringLiteral("The file ") + ddsPath
                       + QStringLiteral(" is not a complete .dds file, cannot process further."));
    }
    const QString formatName = formatText(header.pieces.first());
    const TextureFormat *format = findTextureFormat(formatName);
    if (format == nullptr) {
        return refusal(QStringLiteral("The header file of ") + ddsPath
                       + QStringLiteral(" names a texture format that cannot be converted: ")
                       + formatName);
    }
    const QString reason = misfit(*info, header, *format, dds.size() - ddsHeaderSize);
    if (!reason.isEmpty()) {
        return refusal(mismatch(ddsPath, reason, *format, header.sizes.size()));
    }
    QString xml = spliceLevels(header, dds);
    xml.replace(QStringLiteral("\n</d:blob"), QStringLiteral("</d:blob"));
    return xml;
}

} // namespace textures
