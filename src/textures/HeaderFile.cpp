#include "textures/HeaderFile.h"

namespace textures
{

namespace
{

const QString lineEnd = QStringLiteral("\r\n");

QString quotedPiece(const QString &text)
{
    QString piece = text;
    piece.replace(u'"', u'#');
    return u'"' + piece + u'"';
}

// Reads the items of the file in order, as Input # reads a Write # file.
class ItemReader
{
public:
    explicit ItemReader(const QString &text)
        : m_text(text)
    {
    }

    std::optional<qint64> number()
    {
        skipSpace();
        qsizetype end = m_pos;
        while (end < m_text.size() && m_text[end] != u'\r' && m_text[end] != u'\n'
               && m_text[end] != u',') {
            ++end;
        }
        const QString item = m_text.mid(m_pos, end - m_pos).trimmed();
        m_pos = end < m_text.size() && m_text[end] == u',' ? end + 1 : end;
        bool ok = false;
        const qint64 value = item.toLongLong(&ok);
        return ok ? std::optional<qint64>(value) : std::nullopt;
    }

    std::optional<QString> quoted()
    {
        skipSpace();
        if (m_pos >= m_text.size() || m_text[m_pos] != u'"') {
            return std::nullopt;
        }
        const qsizetype close = m_text.indexOf(u'"', m_pos + 1);
        if (close < 0) {
            return std::nullopt;
        }
        QString item = m_text.mid(m_pos + 1, close - m_pos - 1);
        m_pos = close + 1;
        if (m_pos < m_text.size() && m_text[m_pos] == u',') {
            ++m_pos;
        }
        return item;
    }

    bool atEnd()
    {
        skipSpace();
        return m_pos >= m_text.size();
    }

private:
    void skipSpace()
    {
        while (m_pos < m_text.size() && m_text[m_pos].isSpace()) {
            ++m_pos;
        }
    }

    const QString &m_text;
    qsizetype m_pos = 0;
};

} // namespace

QString headerFileText(const HeaderFile &header)
{
    QString text = QString::number(header.sizes.size()) + lineEnd;
    for (const QString &piece : header.pieces) {
        text += quotedPiece(piece) + lineEnd;
    }
    for (const qint64 size : header.sizes) {
        text += QString::number(size) + lineEnd;
    }
    text += u'"' + header.originalPath + u'"' + lineEnd;
    return text;
}

std::optional<HeaderFile> parseHeaderFile(const QString &text)
{
    ItemReader reader(text);
    const std::optional<qint64> count = reader.number();
    if (!count || *count < 1 || *count > 16) {
        return std::nullopt;
    }
    HeaderFile header;
    for (qint64 i = 0; i <= *count; ++i) {
        std::optional<QString> piece = reader.quoted();
        if (!piece) {
            return std::nullopt;
        }
        header.pieces.append(piece->replace(u'#', u'"'));
    }
    for (qint64 i = 0; i < *count; ++i) {
        const std::optional<qint64> size = reader.number();
        if (!size || *size <= 0) {
            return std::nullopt;
        }
        header.sizes.append(*size);
    }
    const std::optional<QString> path = reader.quoted();
    if (!path || path->isEmpty() || !reader.atEnd()) {
        return std::nullopt;
    }
    header.originalPath = *path;
    return header;
}

} // namespace textures
