#pragma once

#include <QByteArray>

/// A value whose digits occur nowhere else in a file, to find it in every format.
constexpr int sFindableNumber = 424242;

/// Returns the content of a file with other text in place of the digits. Ends the process if they
/// do not occur exactly once.
inline QByteArray withNumberReplaced(QByteArray content, const QByteArray &text)
{
    const QByteArray number = QByteArray::number(sFindableNumber);
    if (content.count(number) != 1)
        qFatal("%s is not in the file once: %s", number.constData(), content.constData());
    return content.replace(number, text);
}
