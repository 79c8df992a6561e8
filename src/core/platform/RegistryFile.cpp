#include "core/platform/RegistryFile.h"

#include "core/platform/Utf16Le.h"

#include <QFile>

#include <cctype>

namespace platform
{

namespace
{

Error unsupported()
{
    return {UnsupportedValueType, standardDescription(UnsupportedValueType)};
}

QString normalisedKey(QString key)
{
    while (key.startsWith(u'\\')) {
        key.remove(0, 1);
    }
    while (key.endsWith(u'\\')) {
        key.chop(1);
    }
    return key;
}

// "01,02,ff" with blanks and joined continuations; false on a character that is no hex pair.
bool hexBytes(const QString &text, QByteArray &bytes)
{
    for (const QString &part : text.split(u',', Qt::SkipEmptyParts)) {
        const QString pair = part.trimmed();
        if (pair.isEmpty()) {
            continue;
        }
        bool ok = false;
        const uint byte = pair.toUInt(&ok, 16);
        if (!ok || pair.size() > 2) {
            return false;
        }
        bytes.append(static_cast<char>(byte));
    }
    return true;
}

// Text as the query gives it: the stored characters with their end NUL(s) taken off.
QString dropTail(QString text, qsizetype count)
{
    text.chop(std::min(count, text.size()));
    return text;
}

Result<QVariant> decodeHex(int type, const QString &hexText)
{
    QByteArray bytes;
    if (!hexBytes(hexText, bytes)) {
        return unsupported();
    }
    switch (type) {
    case 1:
    case 2:
        return QVariant(dropTail(Utf16Le::decode(bytes), 1));
    case 3:
        return QVariant(bytes);
    case 4: {
        if (bytes.size() != 4) {
            return unsupported();
        }
        quint32 v = 0;
        for (int i = 3; i >= 0; --i) {
            v = (v << 8) | static_cast<unsigned char>(bytes[i]);
        }
        return QVariant(static_cast<qint32>(v));
    }
    case 7:
        return QVariant(dropTail(Utf16Le::decode(bytes), 2));
    default:
        return unsupported();
    }
}

} // namespace

RegistryFile RegistryFile::load(const QString &hostPath)
{
    QFile file(hostPath);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return fromText(QString::fromUtf8(file.readAll()));
}

RegistryFile RegistryFile::fromText(const QString &text)
{
    RegistryFile file;
    QString pending;
    for (QString line : text.split(u'\n')) {
        if (line.endsWith(u'\r')) {
            line.chop(1);
        }
        // Hex data runs on over lines ending in a backslash.
        if (!pending.isEmpty()) {
            line = pending + line.trimmed();
            pending.clear();
        }
        const qsizetype eq = line.indexOf(u'=');
        const bool hexData = eq > 0 && line.mid(eq + 1).startsWith(u"hex");
        if (hexData && line.endsWith(u'\\')) {
            pending = line.chopped(1);
            continue;
        }
        file.m_lines << line;
    }
    if (!pending.isEmpty()) {
        file.m_lines << pending;
    }
    return file;
}

std::optional<QStringList> RegistryFile::keyLines(const QString &key) const
{
    const QString wanted = normalisedKey(key);
    qsizetype i = 0;
    for (; i < m_lines.size(); ++i) {
        const QString &line = m_lines[i];
        if (!line.startsWith(u'[')) {
            continue;
        }
        const qsizetype close = line.lastIndexOf(u']');
        if (close < 1) {
            continue;
        }
        QString name = line.mid(1, close - 1);
        // Key names escape a backslash as "\\"; the same unescaping as quoted text, to the end.
        name = normalisedKey(unescape(name + u'"', 0));
        if (name.compare(wanted, Qt::CaseInsensitive) == 0) {
            break;
        }
    }
    if (i == m_lines.size()) {
        return std::nullopt;
    }
    QStringList lines;
    for (++i; i < m_lines.size() && !m_lines[i].startsWith(u'['); ++i) {
        if (m_lines[i].startsWith(u'"') || m_lines[i].startsWith(u'@')) {
            lines << m_lines[i];
        }
    }
    return lines;
}

Result<QVariant> RegistryFile::value(const QStringList &keyLines, const QString &name)
{
    for (const QString &line : keyLines) {
        QString lineName;
        qsizetype after = 0;
        if (line.startsWith(u'@')) {
            after = 1;
        } else {
            lineName = unescape(line, 1, &after);
        }
        if (after >= line.size() || line[after] != u'=') {
            continue;
        }
        if (lineName.compare(name, Qt::CaseInsensitive) == 0) {
            return decode(line.mid(after + 1));
        }
    }
    return unsupported();
}

Result<QVariant> RegistryFile::decode(const QString &data)
{
    if (data.startsWith(u'"')) {
        return QVariant(unescape(data, 1));
    }
    if (data.startsWith(u"str(")) {
        const qsizetype close = data.indexOf(QStringLiteral("):\""));
        bool ok = false;
        const int type = close > 4 ? data.mid(4, close - 4).toInt(&ok) : 0;
        if (!ok) {
            return unsupported();
        }
        const QString text = unescape(data, close + 3);
        if (type == 1 || type == 2) {
            return QVariant(text);
        }
        if (type == 7) {
            // Stored with one more NUL after the text; the query's length is two short of it all.
            return QVariant(dropTail(text + QChar(u'\0'), 2));
        }
        return unsupported();
    }
    if (data.startsWith(u"dword:")) {
        bool ok = false;
        const quint32 v = data.mid(6).trimmed().toUInt(&ok, 16);
        if (!ok) {
            return unsupported();
        }
        return QVariant(static_cast<qint32>(v));
    }
    if (data.startsWith(u"hex:")) {
        return decodeHex(3, data.mid(4));
    }
    if (data.startsWith(u"hex(")) {
        const qsizetype close = data.indexOf(QStringLiteral("):"));
        bool ok = false;
        const int type = close > 4 ? data.mid(4, close - 4).toInt(&ok, 16) : 0;
        if (!ok) {
            return unsupported();
        }
        return decodeHex(type, data.mid(close + 2));
    }
    return unsupported();
}

QString RegistryFile::unescape(const QString &text, qsizetype start, qsizetype *end)
{
    QString out;
    qsizetype i = start;
    while (i < text.size() && text[i] != u'"') {
        if (text[i] != u'\\' || i + 1 >= text.size()) {
            out += text[i++];
            continue;
        }
        const QChar e = text[i + 1];
        i += 2;
        if (e == u'n') {
            out += u'\n';
        } else if (e == u'r') {
            out += u'\r';
        } else if (e == u't') {
            out += u'\t';
        } else if (e == u'0') {
            out += QChar(u'\0');
        } else if (e == u'x') {
            qsizetype n = 0;
            uint code = 0;
            while (n < 4 && i < text.size() && isxdigit(text[i].toLatin1())) {
                code = code * 16 + static_cast<uint>(QString(text[i]).toUInt(nullptr, 16));
                ++i;
                ++n;
            }
            out += n > 0 ? QChar(static_cast<char16_t>(code)) : QChar(u'x');
        } else {
            out += e; // \\ and \" and anything else stand for the character itself
        }
    }
    if (end) {
        *end = i < text.size() ? i + 1 : i;
    }
    return out;
}

} // namespace platform
