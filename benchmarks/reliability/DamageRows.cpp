#include "FindableNumber.h"
#include "PeerRow.h"
#include "PeerRun.h"

#include "support/FileText.h"

#include <QByteArrayList>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr int sSettings = 10;

using Damage = std::function<QByteArray(const QByteArray &content)>;

QStringList settingKeys()
{
    QStringList keys;
    for (int i = 0; i < sSettings; ++i)
        keys.append(QStringLiteral("setting%1").arg(i));
    return keys;
}

/// Returns a number whose digits occur nowhere else in the files.
int firstNumber(int i)
{
    return 730101 + i;
}

int savedNumber(int i)
{
    return i == sSettings - 1 ? sFindableNumber : firstNumber(i);
}

/// Saves ten settings at once, and changes the last of them in another run.
void saveSettings(const PeerKind &kind, const QString &path)
{
    const QStringList keys = settingKeys();
    runPeer(kind, path, keys, [&](SettingsPeer &peer) {
        peer.load();
        for (int i = 0; i < sSettings; ++i)
            peer.setValue(keys.at(i), firstNumber(i));
        return peer.save();
    });
    runPeerToChange(kind, path, keys, keys.last(), sFindableNumber);
}

int savedValuesIn(const PeerRun &run)
{
    int count = 0;
    for (int i = 0; i < sSettings; ++i)
        count += run.values[i] == savedNumber(i) ? 1 : 0;
    return count;
}

/// Returns the number of values that are neither the saved ones, nor earlier ones, nor the default.
int inventedValuesIn(const PeerRun &run)
{
    int count = 0;
    for (int i = 0; i < sSettings; ++i) {
        const int value = run.values[i];
        count += value != savedNumber(i) && value != firstNumber(i) && value != sDefaultNumber ? 1
                                                                                               : 0;
    }
    return count;
}

QByteArrayList contentsOfFolder(const QString &folder)
{
    QByteArrayList contents;
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden))
        contents.append(fileText(file.filePath()));
    return contents;
}

/// Returns the number of settings that `run` has read or that the user can still find in a file.
int keptValues(const PeerRun &run, const QByteArrayList &contents)
{
    int count = 0;
    for (int i = 0; i < sSettings; ++i) {
        const QByteArray number = QByteArray::number(savedNumber(i));
        const bool isInFile = std::any_of(
            contents.begin(), contents.end(),
            [&](const auto &content) { return content.contains(number); });
        count += run.values[i] == savedNumber(i) || isInFile ? 1 : 0;
    }
    return count;
}

/// Describes the run after the damage.
QString readText(const PeerRun &run)
{
    QString text = QStringLiteral("%1 of %2 read").arg(savedValuesIn(run)).arg(sSettings);
    if (inventedValuesIn(run) > 0)
        text += QStringLiteral(", %1 wrong").arg(inventedValuesIn(run));
    if (run.warnings > 0)
        text += QStringLiteral(", reported");
    else if (savedValuesIn(run) < sSettings)
        text += QStringLiteral(", silently");
    return text;
}

PeerCell measureDamage(const PeerKind &kind, const QString &path, const Damage &damage)
{
    saveSettings(kind, path);
    const QByteArray damaged = damage(fileText(path));
    writeFile(path, damaged);

    const QString otherKey = QStringLiteral("another");
    const QStringList keys = settingKeys() << otherKey;
    const PeerRun first = runPeerToChange(kind, path, keys, otherKey, 7);
    const PeerRun second = runPeerToRead(kind, path, keys);
    const QByteArrayList contents = contentsOfFolder(QFileInfo(path).path());

    PeerCell cell;
    cell.text = readText(first);
    if (!damaged.isEmpty() && contents.contains(damaged))
        cell.text += QStringLiteral(", copy kept");
    if (savedValuesIn(second) != savedValuesIn(first))
        cell.text += QStringLiteral("; %1 after a save").arg(savedValuesIn(second));
    if (!first.result) {
        cell.text += second.values[sSettings] == 7 ? QStringLiteral("; saves report an error")
                                                   : QStringLiteral("; saves fail");
    }
    // The last change may have been in the damaged part only.
    cell.isLoss = keptValues(second, contents) < sSettings - 1;
    return cell;
}

PeerRow damageRow(const QString &title, const Damage &damage)
{
    PeerRow row;
    row.title = title;
    row.measure = [damage](const PeerKind &kind, const QString &path) {
        return measureDamage(kind, path, damage);
    };
    return row;
}

} // namespace

std::vector<PeerRow> damageRows()
{
    return {
        damageRow(QStringLiteral("the file is cut in the middle"),
                  [](const QByteArray &content) { return content.left(content.size() / 2); }),
        damageRow(QStringLiteral("it starts with a line `// comment`"),
                  [](const QByteArray &content) { return "// comment\n" + content; }),
        damageRow(QStringLiteral("it has a comma after a number"),
                  [](const QByteArray &content) {
                      return withNumberReplaced(content, QByteArray::number(sFindableNumber) + ',');
                  }),
        damageRow(QStringLiteral("it is an HTML page"),
                  [](const QByteArray &) {
                      return QByteArray("<!DOCTYPE html>\n<html><body>Sign in</body></html>\n");
                  }),
        damageRow(QStringLiteral("it is empty"), [](const QByteArray &) { return QByteArray(); }),
    };
}
