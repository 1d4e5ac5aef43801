#include "EntryTexts_p.h"

#include "JsonText_p.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace EntryTexts {

QByteArray toBytes(std::string_view text)
{
    return QByteArray(text.data(), static_cast<int>(text.size()));
}

std::string_view view(const QByteArray &text)
{
    return {text.constData(), static_cast<size_t>(text.size())};
}

QString keyOf(const QString &name)
{
    if (!name.contains(QLatin1Char('#')))
        return name;
    const QString mark = addSysMark(QString());
    return name.endsWith(mark) ? name.chopped(mark.size()) : name;
}

QJsonValue parsed(const QByteArray &value)
{
    const QJsonArray array = QJsonDocument::fromJson('[' + value + ']').array();
    return array.isEmpty() ? QJsonValue(QJsonValue::Undefined) : array.at(0);
}

qint64 timeOf(std::string_view value, TimeRange times)
{
    const ParsedMember member(parsed(toBytes(value)), times);
    const std::optional<qint64> removal = member.removalTime();
    return removal ? *removal : member.time().value_or(0);
}

void appendMember(QByteArray *text, const QString &name, std::string_view value)
{
    if (text->size() > 1)
        *text += ',';
    appendJsonString(*text, name);
    *text += ':';
    text->append(value.data(), static_cast<int>(value.size()));
}

QByteArray newestOf(const std::vector<MemberText> &known, const std::vector<MemberText> &others,
                    TimeRange times)
{
    const std::vector<NamedText> theirs = sortedByName(others);
    QByteArray text = "{";
    auto their = theirs.cbegin();
    const std::vector<NamedText> ours = sortedByName(known);
    for (const NamedText &our : ours) {
        for (; their != theirs.cend() && their->name < our.name; ++their)
            appendMember(&text, their->name, their->value);
        const bool isShared = their != theirs.cend() && their->name == our.name;
        const bool isNewer = isShared && our.value != their->value
                             && timeOf(their->value, times) > timeOf(our.value, times);
        appendMember(&text, our.name, isNewer ? their->value : our.value);
        if (isShared)
            ++their;
    }
    for (; their != theirs.cend(); ++their)
        appendMember(&text, their->name, their->value);
    text += '}';
    return text;
}

} // namespace EntryTexts
