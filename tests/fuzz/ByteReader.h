#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QStringList>

/// Converts the bytes of an input into choices. After the end of the input every byte is 0.
class ByteReader
{
public:
    explicit ByteReader(const QByteArray &bytes) : mBytes(bytes) {}

    bool atEnd() const { return mPosition >= size(); }
    int byte() { return atEnd() ? 0 : static_cast<uchar>(mBytes.at(mPosition++)); }
    int below(int count) { return byte() % count; }
    bool flag() { return byte() & 1; }
    QString oneOf(const QStringList &choices)
    {
        return choices.at(below(static_cast<int>(choices.size())));
    }
    /// Returns up to `most` bytes as UTF-8, including invalid sequences.
    QString text(int most);
    /// Returns any JSON value, nested at most `depth` deep.
    QJsonValue json(int depth);
    QByteArray rest();

private:
    int size() const { return static_cast<int>(mBytes.size()); }

    const QByteArray mBytes;
    int mPosition = 0;
};
