// Prints the memory and the time of loading the largest local files that are read, for several
// kinds of JSON. Each file is loaded by a process of its own.
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Kind
{
    const char *name;
    const char *start;
    std::function<QByteArray(int index)> member; ///< with a comma
    const char *end;
    bool isDynamic = false; ///< each member is an entry that the host creates
};

QByteArray nested(const QByteArray &open, const QByteArray &content, const QByteArray &close,
                  int depth)
{
    return open.repeated(depth) + content + close.repeated(depth) + ',';
}

QList<Kind> kinds()
{
    const auto always = [](const QByteArray &member) { return [member](int) { return member; }; };
    const auto entry = [](int index) {
        return "\"E" + QByteArray::number(index, 36) + "\":{\"t\":1,\"v\":0},";
    };
    return {{"numbers", "{\"a\":[", always("0,"), "]}"},
            {"texts", "{\"a\":[", always("\"a\","), "]}"},
            {"small objects", "{\"a\":[", always("{\"\":0},"), "]}"},
            {"small arrays", "{\"a\":[", always("[0],"), "]}"},
            {"objects, 1,000 levels", "{\"a\":[", always(nested("{\"\":", "0", "}", 1000)), "]}"},
            {"arrays, 1,000 levels", "{\"a\":[", always(nested("[", "", "]", 1000)), "]}"},
            {"arrays, 3 levels", "{\"a\":[", always(nested("[", "", "]", 3)), "]}"},
            {"entries of unknown keys", "{", entry, "}"},
            {"entries that the host creates", "{", entry, "}", true}};
}

qint64 write(const Kind &kind, const QString &path, qint64 size)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return 0;
    QByteArray text = kind.start;
    for (int i = 0;; ++i) {
        const QByteArray member = kind.member(i);
        if (text.size() + member.size() > size)
            break;
        text += member;
    }
    text.chop(1);
    text += kind.end;
    return file.write(text);
}

void load(const Kind &kind, const QString &path)
{
    ConfStorage store;
    ConfStorage::DynamicConfClass entries;
    std::map<QString, int> numbers;
    entries.prefix = "E";
    entries.creator = [&](const QString &key, const QJsonValue *value) {
        numbers[key] = value->toInt();
        store.reserveConf(key, &numbers[key]);
    };
    if (kind.isDynamic)
        store.mDynamicConfClasses.append(&entries);
    store.mLocalSaveFile = path;
    QElapsedTimer timer;
    timer.start();
    store.loadLocalConfFile();
    const qint64 time = timer.elapsed();
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
#ifdef Q_OS_MACOS
    constexpr qint64 sUnit = 1; // bytes
#else
    constexpr qint64 sUnit = 1024;
#endif
    const qint64 memory = usage.ru_maxrss * sUnit;
    std::printf("%-30s %5lld MiB %5.1f times %6lld ms\n", kind.name,
                static_cast<long long>(memory >> 20),
                static_cast<double>(memory) / static_cast<double>(store.mMaxFileSize),
                static_cast<long long>(time));
    std::fflush(stdout);
}

void inOtherProcess(const std::function<void()> &function)
{
    const pid_t child = ::fork();
    if (child == 0) {
        function();
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QTemporaryDir folder;
    const QString path = folder.filePath("local.json");
    const qint64 size = ConfStorage().mMaxFileSize - 8;
    for (const Kind &kind : kinds()) {
        inOtherProcess([&] { write(kind, path, size); });
        inOtherProcess([&] { load(kind, path); });
    }
    return 0;
}
