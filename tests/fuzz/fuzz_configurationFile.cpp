// The content of a configuration file, which a user may have written by hand.
#include "FuzzTarget.h"
#include "support/CleanStore.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/manage/helpers.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

namespace {

using Calls = QMap<QString, int>;

/// A host that uses the store of the process. Its items are declared once; their keys are reserved
/// again for every input.
class Host
{
public:
    Host()
    {
        manager.addConfInt32("Number", &number, "General", "Number");
        manager.addConfBool("Flag", &flag, "General", "Number", "Flag");
        manager.addConfQString("Text", &text, "General", "");
        manager.addConfQFont("Font", &font, "", "Font");
        manager.addConfQColor("Color", &color, "General", "", "Color");
        manager.addConfQKeySequence("Keys", &keys, "A B", "Keys", "#");
    }

    void reset()
    {
        clearStore();
        reserve(0, &number);
        reserve(1, &flag);
        reserve(2, &text);
        reserve(3, &font);
        reserve(4, &color);
        reserve(5, &keys);
        calls.clear();
    }

    MtConf::MtConfManage manager;
    Calls calls;

private:
    template<class T> void reserve(int item, T *variable)
    {
        *variable = T();
        const QString key = manager.items.at(item).getFullName();
        ConfStorage::instance()->reserveConf(key, variable);
        ConfStorage::instance()->setConfChangedCallback(
            key, [this](const QString &changed, const ConfValue *) { ++calls[changed]; });
    }

    int number = 0;
    bool flag = false;
    QString text;
    QFont font;
    QColor color;
    QKeySequence keys;
};

/// Returns the callbacks that a file must call, from a table of all possible keys.
Calls expectedCalls(const QJsonObject &members)
{
    static const QMap<QString, QString> sItems{
        {"General.Number", "General.Number"},
        {"General.Number.", "General.Number"},
        {"General.Number.Flag", "General.Number.Flag"},
        {"General.", "General."},
        {"General..", "General."},
        {".Font", ".Font"},
        {".Font.", ".Font"},
        {"General..Color", "General..Color"},
        {"A B.Keys.#", "A B.Keys.#"},
    };
    Calls calls;
    for (auto it = members.begin(); it != members.end(); ++it) {
        if (sItems.contains(it.key()))
            ++calls[sItems.value(it.key())];
    }
    return calls;
}

/// Returns whether decoding does not change the content: no line endings to convert, no byte order
/// mark and no invalid UTF-8.
bool isReadAsItStands(const QByteArray &content)
{
    const bool isUtf8 = QString::fromUtf8(content).toUtf8() == content;
    return isUtf8 && !content.contains('\r') && !content.startsWith("\xef\xbb\xbf")
           && !content.startsWith(QByteArray(2, '\0'));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startFuzzing();
    static Host *const sHost = new Host;
    static const QString sPath = scratchFolder() + "/conf.json";
    const QByteArray content = bytesOf(data, size);
    writeScratchFile(sPath, content);

    const QJsonDocument document = readJsonFromFile(sPath);
    if (isReadAsItStands(content))
        expect(document == QJsonDocument::fromJson(content), "a file is read as JSON",
               document.toJson());

    sHost->reset();
    sHost->manager._loadFromFile(sPath);
    expect(sHost->calls == expectedCalls(document.object()), "every known key is loaded once");
    expect(ConfStorage::instance()->mConfValues.size() == 6, "no unknown key has a value");
    expect(ConfStorage::instance()->mConfMetas.size() == 6, "no unknown key has a record");

    // When the file is loaded again, each key is changed again, to the same value.
    const QByteArray dumped =
        QJsonDocument(ConfStorage::instance()->dumpConf(ConfStorage::DumpChangedOnly)).toJson();
    sHost->manager._loadFromFile(sPath);
    const QByteArray again =
        QJsonDocument(ConfStorage::instance()->dumpConf(ConfStorage::DumpChangedOnly)).toJson();
    expect(again == dumped, "loading again changes no value", again, dumped);
    return 0;
}
