// Any JSON as the value of a setting of each type with a supplied form. The first byte of the input
// chooses the type; the rest is the JSON, or else a text.
#include "FuzzTarget.h"
#include "support/Entries.h"
#include "support/FormValues.h"

#include "MaltoConfiguration/store/JsonText_p.h"

#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <iterator>

namespace {

/// A host with one setting, which has a value other than the default.
template<class T> struct Host
{
    Host() { store.reserveConf("key", &variable); }
    Q_DISABLE_COPY(Host)

    /// Returns the text of the local file.
    QByteArray dump() const
    {
        QByteArray text;
        appendJsonValue(text, store.dumpConf(ConfStorage::DumpLocal));
        return text;
    }

    T variable = T();
    ConfStorage store;
};

QByteArray text(const QJsonValue &json)
{
    QByteArray text;
    appendJsonValue(text, json);
    return text;
}

/// Returns whether both values are equal. A `QVariant` is compared by its JSON, because it is read
/// back with another type of number.
template<class T> bool isSame(const T &value, const T &other)
{
    if constexpr (std::is_same_v<T, QVariantMap>)
        return text(MtConf::toJsonForm(value)) == text(MtConf::toJsonForm(other));
    else
        return isSameForm(value, other);
}

template<class T> void expectRefused(const Host<T> &host)
{
    expect(isSame(host.variable, T()), "a refused value leaves the variable as it was");
    expect(host.dump() == "{}", "a refused value is no change", host.dump());
}

template<class T> void check(const QJsonValue &json)
{
    Host<T> host;
    host.store.loadConf({{"key", entry(1700000000, json)}}, ConfStorage::LoadLocal);
    if (json.isNull() || json.isUndefined()) {
        expect(isSame(host.variable, T()), "null leaves the variable as it was");
        return;
    }
    const std::optional<T> value = MtConf::fromJsonForm<T>(json);
    expect(host.store.lastLoad().refusedCount == (value ? 0 : 1), "the form refuses values");
    if (!value) {
        expectRefused(host);
        return;
    }
    expect(isSame(host.variable, *value), "an accepted value is stored");
    const QJsonValue written = MtConf::JsonForm<T>::toJson(*value);
    expect(!written.isNull() && !written.isUndefined(), "a form is never null");

    const QByteArray file = host.dump();
    Host<T> other;
    expect(other.store.loadConf(QString::fromUtf8(file), ConfStorage::LoadLocal), "a file is JSON");
    expect(other.dump() == file, "a value is the same after writing and reading", other.dump(),
           file);
    expect(isSame(other.variable, *value), "a value is read back", file);
    const std::optional<T> again = MtConf::fromJsonForm<T>(written);
    expect(again && isSame(*again, *value), "a form reads what it has written", text(written));
}

using Check = void (*)(const QJsonValue &json);

/// New types are added at the end, so that the inputs of the corpus keep their types.
constexpr Check sChecks[] = {
    check<float>,
    check<qint64>,
    check<quint32>,
    check<quint64>,
    check<Settings::Small>,
    check<Settings::WrapMode>,
    check<Settings::Edges>,
    check<Qt::Alignment>,
    check<QByteArray>,
    check<std::string>,
    check<QUrl>,
    check<QUuid>,
    check<QDate>,
    check<QTime>,
    check<QDateTime>,
    check<QSize>,
    check<QPoint>,
    check<QRect>,
    check<std::chrono::milliseconds>,
    check<std::chrono::duration<double>>,
    check<QStringList>,
    check<std::vector<double>>,
    check<QVector<QColor>>,
    check<QList<QList<QDateTime>>>,
    check<std::optional<QUrl>>,
    check<std::optional<std::optional<int>>>,
    check<QMap<QString, bool>>,
    check<QMap<QString, std::vector<QRect>>>,
    check<QVariantMap>,
    check<Settings::Margins>,
    check<QVector<QFont>>,
    check<QList<QJsonObject>>,
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    qputenv("TZ", "EST5EDT,M3.2.0,M11.1.0"); // a place with daylight-saving time
    startFuzzing();
    if (size == 0)
        return 0;
    const QByteArray json = bytesOf(data + 1, size - 1);
    const QJsonDocument document = QJsonDocument::fromJson('[' + json + ']');
    // Most inputs are not JSON. They are then loaded as texts, like dates and URLs.
    const QJsonValue value = document.array().size() == 1 ? document.array().at(0)
                                                          : QJsonValue(textOf(data + 1, size - 1));
    sChecks[data[0] % std::size(sChecks)](value);
    return 0;
}
