#pragma once
// A large scenario file for the benchmarks: a sample scenario's record repeated until the text
// reaches the size asked for.

#include <QByteArray>
#include <QFile>

inline QByteArray scenarioText(qsizetype size)
{
    QFile file(QStringLiteral(BV_SAMPLES_DIR "/serz/JoelCrosby+Railworks-Forge/Scenario.bin.xml"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray sample = file.readAll();
    const qsizetype open = sample.indexOf("<Record>") + qsizetype(sizeof("<Record>") - 1);
    const qsizetype close = sample.lastIndexOf("</Record>");
    const QByteArray record = sample.mid(open, close - open);
    QByteArray out = sample.left(open);
    out.reserve(size + sample.size());
    while (out.size() < size) {
        out += record;
    }
    return out + sample.mid(close);
}
