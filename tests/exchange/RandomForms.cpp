#include "RandomForms.h"

#include "RandomValues.h"

#include "MaltoConfiguration/store/JsonText_p.h"
#include "support/FileText.h"
#include "support/LogCapture.h"
#include "support/SettingTypes.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDateTime>
#include <QRect>
#include <QUrl>
#include <QUuid>

#include <chrono>
#include <tuple>

namespace {

const char sLocal[] = "forms.json";
const char sInput[] = "formsInput.json";
const char sRead[] = "formsRead.json";
const char sLog[] = "formsLog.txt";
constexpr qint64 sTime = 1700000000;

// Random values of each type

template<class T, std::enable_if_t<std::is_integral_v<T> || std::is_enum_v<T>, int> = 0>
void fill(T *value, Random &random)
{
    *value = static_cast<T>(random.next() >> random.below(64));
}
void fill(bool *value, Random &random)
{
    *value = random.oneIn(2);
}
void fill(double *value, Random &random)
{
    *value = randomValue<qreal>(random);
}
void fill(float *value, Random &random)
{
    *value = random.oneIn(2) ? static_cast<float>(random.between(-9999, 9999)) / 100
                             : static_cast<float>(randomValue<qreal>(random));
}
void fill(QString *value, Random &random)
{
    *value = randomValue<QString>(random);
}
/// Without single surrogates, which UTF-8 cannot hold.
void fill(std::string *value, Random &random)
{
    *value = randomName(random).toStdString();
}
void fill(QByteArray *value, Random &random)
{
    for (int length = random.below(9); length > 0; --length)
        value->append(static_cast<char>(random.below(256)));
}
void fill(QUrl *value, Random &random)
{
    if (random.oneIn(6))
        return;
    if (random.oneIn(3)) {
        value->setScheme(random.oneOf<QString>({"https", "file", "x"}));
        value->setHost(random.oneOf<QString>({"example.org", "::1", "127.0.0.1"}));
        value->setPort(random.oneIn(2) ? random.below(65536) : -1);
    }
    value->setPath('/' + randomName(random));
    if (random.oneIn(3))
        value->setQuery(randomName(random));
    if (random.oneIn(3))
        value->setFragment(randomName(random));
}
void fill(QUuid *value, Random &random)
{
    QByteArray bytes;
    while (bytes.size() < 16)
        bytes.append(static_cast<char>(random.below(256)));
    *value = random.oneIn(5) ? QUuid() : QUuid::fromRfc4122(bytes);
}
void fill(QDate *value, Random &random)
{
    const int year = random.oneIn(2) ? random.between(1, 9999) : random.between(1970, 2100);
    const int month = random.between(1, 12);
    *value = random.oneIn(5) ? QDate() : QDate(year, month, random.between(1, 28));
}
void fill(QTime *value, Random &random)
{
    const int milliseconds = random.below(24 * 60 * 60 * 1000);
    *value = random.oneIn(5) ? QTime() : QTime::fromMSecsSinceStartOfDay(milliseconds);
}
void fill(QDateTime *value, Random &random)
{
    QDate date;
    fill(&date, random);
    const QTime time = QTime::fromMSecsSinceStartOfDay(random.below(24 * 60 * 60 * 1000));
    const int offset = random.between(-14 * 60, 14 * 60) * 60;
    *value = random.oneIn(3) ? QDateTime(date, time, Qt::UTC)
                             : QDateTime(date, time, Qt::OffsetFromUTC, offset);
}
void fill(QSize *value, Random &random)
{
    fill(&value->rwidth(), random);
    fill(&value->rheight(), random);
}
void fill(QPoint *value, Random &random)
{
    fill(&value->rx(), random);
    fill(&value->ry(), random);
}
void fill(QRect *value, Random &random)
{
    constexpr int sMost = 1000000;
    const int x = random.between(-sMost, sMost), y = random.between(-sMost, sMost);
    const int width = random.between(-sMost, sMost);
    *value = QRect(x, y, width, random.between(-sMost, sMost));
}
void fill(QVariantMap *value, Random &random)
{
    *value = randomValue<QJsonObject>(random).toVariantMap();
}
void fill(Settings::Edges *value, Random &random)
{
    *value = Settings::Edges(QFlag(random.below(6)));
}
void fill(Settings::WrapMode *value, Random &random)
{
    *value = static_cast<Settings::WrapMode>(random.below(9));
}
template<class Count, class Unit>
void fill(std::chrono::duration<Count, Unit> *value, Random &random)
{
    Count count{};
    fill(&count, random);
    *value = std::chrono::duration<Count, Unit>(count);
}

template<class T> void fill(std::optional<T> *value, Random &random);
template<class T> void fill(QMap<QString, T> *value, Random &random);
template<class T, std::enable_if_t<MtConf::isJsonList<T>, int> = 0>
void fill(T *value, Random &random)
{
    for (int length = random.below(4); length > 0; --length) {
        typename T::value_type element{};
        fill(&element, random);
        value->push_back(element);
    }
}
template<class T> void fill(std::optional<T> *value, Random &random)
{
    if (random.oneIn(3))
        return;
    value->emplace();
    fill(&**value, random);
}
template<class T> void fill(QMap<QString, T> *value, Random &random)
{
    for (int length = random.below(4); length > 0; --length) {
        T element{};
        fill(&element, random);
        value->insert(randomName(random), element);
    }
}

// A host

/// New types are added at the end, so that the others keep their random values.
using Variables = std::tuple<
    float, qint64, quint32, quint64, short, Settings::Small, Settings::Large, Settings::WrapMode,
    Settings::Edges, QByteArray, std::string, QUrl, QUuid, QDate, QTime, QDateTime, QSize, QPoint,
    QRect, std::chrono::milliseconds, std::chrono::duration<double>, QStringList, QList<qint64>,
    QVector<QDateTime>, std::vector<double>, std::vector<bool>, QList<QList<float>>,
    std::optional<QUrl>, std::optional<std::optional<double>>, QMap<QString, double>,
    QMap<QString, QStringList>, QMap<QString, std::optional<QTime>>, QVariantMap>;

class Host
{
public:
    Host()
    {
        std::apply([this](auto &...variable) { (reserve(&variable), ...); }, mVariables);
    }
    Q_DISABLE_COPY(Host)

    void setRandomly(Random &random)
    {
        int index = 0;
        const auto set = [&](auto value) {
            fill(&value, random);
            store.set(keyOf(index++), value);
        };
        std::apply([&](const auto &...variable) { (set(std::decay_t<decltype(variable)>()), ...); },
                   mVariables);
    }
    /// Returns the text of the local file. All changes were made in the same second.
    QByteArray localText()
    {
        for (ConfStorage::ConfMeta &meta : store.mConfMetas) {
            if (meta.lastChangeTime.isValid())
                meta.lastChangeTime = QDateTime::fromSecsSinceEpoch(sTime, Qt::UTC);
        }
        store.mLocalSaveFile = sLocal;
        store.mChanged = true;
        store.saveToLocalConfFile();
        return fileText(sLocal);
    }

    ConfStorage store;

private:
    static QString keyOf(int index)
    {
        return QStringLiteral("Form.%1").arg(index, 2, 10, QChar('0'));
    }
    template<class T> void reserve(T *variable) { store.reserveConf(keyOf(mCount++), variable); }

    Variables mVariables{};
    int mCount = 0;
};

/// Returns the local file of a host that has read a local file.
QByteArray rewritten(const QByteArray &text)
{
    writeFile(sLocal, text);
    Host host;
    host.store.mLocalSaveFile = sLocal;
    host.store.loadLocalConfFile();
    return host.localText();
}

/// Returns `text` with a random change, often one that is no form any more.
QString changed(const QString &text, Random &random)
{
    QString result = text;
    const int at = random.below(static_cast<int>(text.size()) + 1);
    const int length = random.below(3);
    const auto characters = QStringLiteral("0129-+.:TZ/%#?[] a");
    QString inserted;
    for (int i = random.below(3); i > 0; --i)
        inserted += characters.at(random.below(static_cast<int>(characters.size())));
    return result.replace(at, length, inserted);
}

/// Returns a value like `json` as a user may write it.
QJsonValue randomInput(const QJsonValue &json, Random &random)
{
    if (random.oneIn(3))
        return json;
    if (json.isString() && random.oneIn(2))
        return changed(json.toString(), random);
    if (json.isDouble() && random.oneIn(2))
        return changed(QString::number(json.toDouble()), random);
    if (!json.isArray() || random.oneIn(4))
        return randomJson(random, 2);
    QJsonArray array;
    const QJsonArray elements = json.toArray();
    for (const QJsonValue &element : elements)
        array.append(randomInput(element, random));
    return array;
}

/// Returns the text of a local file that a user has changed.
QByteArray randomInput(const QJsonObject &dump, Random &random)
{
    QJsonObject input;
    for (auto member = dump.begin(); member != dump.end(); ++member) {
        QJsonObject entry = member->toObject();
        entry["v"] = randomInput(entry["v"], random);
        input.insert(member.key(), entry);
    }
    QByteArray text;
    appendJsonValue(text, input);
    return text;
}

QByteArray logText()
{
    QByteArray text;
    for (const LoggedMessage &message : qAsConst(LogCapture::messages()))
        text += QByteArray::number(message.level) + ' ' + message.text.toUtf8() + '\n';
    return text;
}

} // namespace

Files writtenForms(quint64 seed)
{
    const LogCapture log;
    Random random(seed);
    Host host;
    host.setRandomly(random);
    Files files;
    files[sLocal] = host.localText();
    files[sInput] = randomInput(host.store.dumpConf(ConfStorage::DumpLocal), random);
    files[sRead] = rewritten(files[sInput]);
    files[sLog] = logText();
    return files;
}

Files rewrittenForms(const Files &files)
{
    const LogCapture log;
    Files result;
    result[sLocal] = rewritten(files.at(sLocal));
    result[sRead] = rewritten(files.at(sInput));
    result[sLog] = logText();
    return result;
}
