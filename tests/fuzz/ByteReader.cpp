#include "ByteReader.h"

#include <QJsonArray>
#include <QJsonObject>

QString ByteReader::text(int most)
{
    const int length = below(most + 1);
    const QString result = QString::fromUtf8(mBytes.mid(mPosition, length));
    mPosition = qMin(mPosition + length, size());
    return result;
}

QJsonValue ByteReader::json(int depth)
{
    switch (below(depth > 0 ? 9 : 7)) {
    case 0: return byte() - 128;
    case 1: return QJsonValue();
    case 2: return flag();
    case 3: return text(24);
    case 4: return (byte() - 128) / 16.0;
    case 5: return qint64(1) << below(63);
    case 6:
        return oneOf({QStringLiteral("None"), QStringLiteral("80ff0000"), QStringLiteral("Ctrl+A"),
                      QStringLiteral("Sans,12,-1,5,50,0,0,0,0,0"), QStringLiteral("Sans,inf")});
    case 7: {
        QJsonArray array;
        for (int i = below(4); i > 0; --i)
            array.append(json(depth - 1));
        return array;
    }
    default: {
        QJsonObject object;
        for (int i = below(4); i > 0; --i) {
            const QString name = text(3);
            object.insert(name, json(depth - 1));
        }
        return object;
    }
    }
}

QByteArray ByteReader::rest()
{
    const QByteArray result = mBytes.mid(mPosition);
    mPosition = size();
    return result;
}
