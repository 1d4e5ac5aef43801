#include "FindableNumber.h"
#include "PeerRow.h"
#include "PeerRun.h"

#include "support/FileText.h"

namespace {

QString key()
{
    return QStringLiteral("delay");
}

QString otherKey()
{
    return QStringLiteral("another");
}

PeerCell measureOtherType(const PeerKind &kind, const QString &path)
{
    runPeerToChange(kind, path, {key()}, key(), sFindableNumber);
    const QByteArray text = "\"12\"";
    writeFile(path, withNumberReplaced(fileText(path), text));
    const PeerRun run = runPeerToChange(kind, path, {key(), otherKey()}, otherKey(), 7);
    const int value = run.values[0];
    if (value == 12)
        return {QStringLiteral("read as 12"), false};
    const bool isKept = fileText(path).contains(text);

    PeerCell cell;
    cell.text = value == sDefaultNumber ? QStringLiteral("refused")
                                        : QStringLiteral("read as %1").arg(value);
    cell.text += run.warnings > 0 ? QStringLiteral(", reported") : QStringLiteral(", silently");
    cell.text += isKept ? QStringLiteral("; the file keeps it")
                        : QStringLiteral("; lost at the next save");
    cell.isLoss = !isKept;
    return cell;
}

PeerCell measureUndeclared(const PeerKind &kind, const QString &path)
{
    runPeerToChange(kind, path, {key(), otherKey()}, key(), 7);
    runPeerToChange(kind, path, {otherKey()}, otherKey(), 8);
    const PeerRun run = runPeerToRead(kind, path, {key(), otherKey()});
    const bool isKept = run.values[0] == 7;
    return {isKept ? QStringLiteral("kept") : QStringLiteral("dropped by the next save"), !isKept};
}

PeerCell measureRenamed(const PeerKind &kind, const QString &path)
{
    const QString formerKey = QStringLiteral("wait");
    runPeerToChange(kind, path, {formerKey}, formerKey, 7);
    const PeerRun converted = runPeer(kind, path, {key()}, [&](SettingsPeer &peer) {
        const bool isSupported = peer.addFormerName(key(), formerKey);
        peer.load();
        peer.setValue(key(), peer.value(key()) + 1);
        peer.save();
        return isSupported;
    });
    if (!converted.result)
        return {QStringLiteral("by hand"), false};
    const PeerRun newer = runPeerToRead(kind, path, {key()});
    const PeerRun older = runPeerToRead(kind, path, {formerKey});
    const bool isRead = newer.values[0] == 8;
    const bool isKept = older.values[0] == 7;
    return {(isRead ? QStringLiteral("read") : QStringLiteral("lost"))
                + (isKept ? QStringLiteral(", kept for the older version")
                          : QStringLiteral(", lost for the older version")),
            !isRead || !isKept};
}

PeerCell measureLoadBeforeSave(const PeerKind &kind, const QString &path)
{
    runPeerToChange(kind, path, {key()}, key(), 7);
    runPeer(kind, path, {key()}, [](SettingsPeer &peer) {
        peer.load();
        peer.setValue(key(), 8);
        peer.load();
        return peer.save();
    });
    const PeerRun run = runPeerToRead(kind, path, {key()});
    const bool isSaved = run.values[0] == 8;
    return {isSaved ? QStringLiteral("saved") : QStringLiteral("not saved"), !isSaved};
}

PeerRow entryRow(const QString &title, PeerCell (*measure)(const PeerKind &, const QString &))
{
    PeerRow row;
    row.title = title;
    row.measure = measure;
    return row;
}

} // namespace

std::vector<PeerRow> entryRows()
{
    return {
        entryRow(QStringLiteral("a number became the text `\"12\"`"), measureOtherType),
        entryRow(QStringLiteral("a key is not declared by this version"), measureUndeclared),
        entryRow(QStringLiteral("a setting is renamed, `addFormerName`"), measureRenamed),
        entryRow(QStringLiteral("a change, then a load, then a save"), measureLoadBeforeSave),
    };
}
