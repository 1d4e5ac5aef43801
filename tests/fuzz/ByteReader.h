#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QStringList>

/// Turns the bytes of an input into decisions. At the end of the input every decision is the first.
class ByteReader
{
public:
    explicit ByteReader(const QByteArray &bytes) : mBytes(bytes) {}

    bool atEnd() const { return mPosition >= mBytes.size(); }
    int byte() { return atEnd() ? 0 : static_cast<uchar>(mBytes.at(mPosition++)); }
    int below(int count) { return byte() % count; }
    bool flag() { return byte() & 1; }
    QString oneOf(const QStringList &choices) { return choices.at(below(choices.size())); }
    /// Up to `most` bytes as UTF-8, broken sequences and all.
    QString text(int most);
    /// Any JSON, nested at most `depth` deep.
    QJsonValue json(int depth);
    QByteArray rest();

private:
    const QByteArray mBytes;
    int mPosition = 0;
};
