#include "xml/SaxReader.h"

#include "core/platform/Cp1252.h"
#include "core/platform/Failure.h"

#include <QHash>

#include <exception>
#include <expat.h>
#include <limits>

namespace xml
{

namespace
{

// The parse as it runs: the text piece being gathered, and names already made into text, since a
// document repeats the same few names many times over.
struct Run {
    SaxContentHandler &handler;
    XML_Parser parser;
    const QByteArray &document;
    QString pending;
    SaxAttributes attributes;
    QHash<QByteArray, QString> names;
    std::exception_ptr failure;

    const QString &name(const char *utf8)
    {
        const QByteArray raw = QByteArray::fromRawData(utf8, qsizetype(qstrlen(utf8)));
        auto it = names.find(raw);
        if (it == names.end()) {
            it = names.insert(QByteArray(utf8), QString::fromUtf8(raw));
        }
        return it.value();
    }

    // Text is handed over in pieces: the reader ends a piece at markup, at a comment, and before
    // and after each reference.
    void flush()
    {
        if (!pending.isEmpty()) {
            handler.characters(pending);
            pending.clear();
        }
    }

    bool atReference() const
    {
        const XML_Index at = XML_GetCurrentByteIndex(parser);
        return at >= 0 && at < document.size() && document.at(qsizetype(at)) == '&';
    }

    // Stops the parse on an exception from the handler: it must not pass through the C library.
    template <typename F> void guarded(F &&step)
    {
        if (failure) {
            return;
        }
        try {
            step();
        } catch (...) {
            failure = std::current_exception();
            XML_StopParser(parser, XML_FALSE);
        }
    }
};

bool isNamespaceDeclaration(const char *name)
{
    return qstrncmp(name, "xmlns", 5) == 0 && (name[5] == '\0' || name[5] == ':');
}

QString localPart(const QString &qName)
{
    const qsizetype colon = qName.lastIndexOf(QLatin1Char(':'));
    return colon < 0 ? qName : qName.mid(colon + 1);
}

void XMLCALL onStart(void *data, const XML_Char *name, const XML_Char **atts)
{
    Run &run = *static_cast<Run *>(data);
    run.guarded([&] {
        run.flush();
        run.attributes.clear();
        for (int i = 0; atts[i]; i += 2) {
            if (!isNamespaceDeclaration(atts[i])) {
                run.attributes.append(run.name(atts[i]), QString::fromUtf8(atts[i + 1]));
            }
        }
        const QString &qName = run.name(name);
        run.handler.startElement(QString(), localPart(qName), qName, run.attributes);
    });
}

void XMLCALL onEnd(void *data, const XML_Char *name)
{
    Run &run = *static_cast<Run *>(data);
    run.guarded([&] {
        run.flush();
        const QString &qName = run.name(name);
        run.handler.endElement(QString(), localPart(qName), qName);
    });
}

void XMLCALL onText(void *data, const XML_Char *text, int length)
{
    Run &run = *static_cast<Run *>(data);
    run.guarded([&] {
        const QString piece = QString::fromUtf8(text, length);
        if (run.atReference()) {
            run.flush();
            run.handler.characters(piece);
        } else {
            run.pending += piece;
        }
    });
}

void XMLCALL onComment(void *data, const XML_Char *)
{
    Run &run = *static_cast<Run *>(data);
    run.guarded([&] { run.flush(); });
}

void XMLCALL onInstruction(void *data, const XML_Char *, const XML_Char *)
{
    Run &run = *static_cast<Run *>(data);
    run.guarded([&] { run.flush(); });
}

// The game's tools and editors also write files declared as windows-1252.
int XMLCALL onUnknownEncoding(void *, const XML_Char *name, XML_Encoding *info)
{
    const QByteArray declared = QByteArray(name).toLower();
    if (declared != "windows-1252" && declared != "cp1252") {
        return XML_STATUS_ERROR;
    }
    for (int byte = 0; byte < 256; ++byte) {
        const char c = char(byte);
        info->map[byte] = platform::Cp1252::decode(QByteArrayView(&c, 1)).at(0).unicode();
    }
    info->data = nullptr;
    info->convert = nullptr;
    info->release = nullptr;
    return XML_STATUS_OK;
}

} // namespace

void SaxReader::parse(const QByteArray &document)
{
    XML_Parser parser = XML_ParserCreate(nullptr);
    Run run{m_handler, parser, document, {}, {}, {}, {}};
    XML_SetUserData(parser, &run);
    XML_SetElementHandler(parser, onStart, onEnd);
    XML_SetCharacterDataHandler(parser, onText);
    XML_SetCommentHandler(parser, onComment);
    XML_SetProcessingInstructionHandler(parser, onInstruction);
    XML_SetUnknownEncodingHandler(parser, onUnknownEncoding, nullptr);

    m_handler.startDocument();
    constexpr qsizetype chunk = std::numeric_limits<int>::max() / 2;
    qsizetype done = 0;
    XML_Status status = XML_STATUS_OK;
    do {
        const qsizetype length = std::min(chunk, document.size() - done);
        const bool last = done + length >= document.size();
        status = XML_Parse(
            parser, document.constData() + done, int(length), last ? XML_TRUE : XML_FALSE);
        done += length;
    } while (status == XML_STATUS_OK && done < document.size());

    QString message;
    if (status != XML_STATUS_OK && !run.failure) {
        message = QString::fromUtf8(XML_ErrorString(XML_GetErrorCode(parser)))
            + QStringLiteral(" at line ") + QString::number(XML_GetCurrentLineNumber(parser));
    }
    XML_ParserFree(parser);
    if (run.failure) {
        std::rethrow_exception(run.failure);
    }
    if (status != XML_STATUS_OK) {
        throw platform::Failure(ParseFailure, message);
    }
    m_handler.endDocument();
}

} // namespace xml
