#include "ui/Transcript.h"

namespace ui
{

QString quoted(const QString &text)
{
    QString out;
    out.reserve(text.size() + 2);
    out += QLatin1Char('"');
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('\r')) {
            const bool pair = i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\n');
            out += pair ? QStringLiteral("\\n") : QStringLiteral("\\r");
            i += pair ? 1 : 0;
        } else if (c == QLatin1Char('\n')) {
            out += QStringLiteral("\\n");
        } else if (c == QLatin1Char('\t')) {
            out += QStringLiteral("\\t");
        } else if (c == QLatin1Char('"')) {
            out += QStringLiteral("\\\"");
        } else if (c == QLatin1Char('\\')) {
            out += QStringLiteral("\\\\");
        } else {
            out += c;
        }
    }
    out += QLatin1Char('"');
    return out;
}

QString iconName(Icon icon)
{
    switch (icon) {
    case Icon::Critical:
        return QStringLiteral("critical");
    case Icon::Question:
        return QStringLiteral("question");
    case Icon::Exclamation:
        return QStringLiteral("exclamation");
    case Icon::Information:
        return QStringLiteral("information");
    case Icon::None:
        break;
    }
    return QStringLiteral("none");
}

namespace
{

struct AnswerName {
    Answer answer;
    const char *name;
};

constexpr AnswerName answerNames[] = {{Answer::OK, "OK"},
                                      {Answer::Cancel, "Cancel"},
                                      {Answer::Abort, "Abort"},
                                      {Answer::Retry, "Retry"},
                                      {Answer::Ignore, "Ignore"},
                                      {Answer::Yes, "Yes"},
                                      {Answer::No, "No"}};

} // namespace

QString answerName(Answer answer)
{
    for (const AnswerName &entry : answerNames) {
        if (entry.answer == answer) {
            return QString::fromLatin1(entry.name);
        }
    }
    return QStringLiteral("OK");
}

bool parseAnswer(const QString &word, Answer &answer)
{
    for (const AnswerName &entry : answerNames) {
        if (word.compare(QLatin1String(entry.name), Qt::CaseInsensitive) == 0) {
            answer = entry.answer;
            return true;
        }
    }
    return false;
}

} // namespace ui
