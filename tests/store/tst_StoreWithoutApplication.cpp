#include "support/LogCapture.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// Writes the file with this value, changed `value` minutes from now.
bool write(int value)
{
    const qint64 time = QDateTime::currentSecsSinceEpoch() + value * 60;
    const QByteArray text = "{\"size\":{\"t\":" + QByteArray::number(time)
                            + ",\"v\":" + QByteArray::number(value) + "}}";
    QFile file("local.json");
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

} // namespace

/// Stores that save automatically and watch their file, in a program whose application object is
/// created later than they are, or destroyed earlier, or replaced.
class tst_StoreWithoutApplication : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFolder = std::make_unique<QTemporaryDir>();
        QVERIFY(mFolder->isValid() && QDir::setCurrent(mFolder->path()));
        mStore = std::make_unique<ConfStorage>();
        mSize = 0;
        mStore->mFileOptions = ConfStorage::WatchFile;
        mStore->mLocalSaveFile = "local.json";
        mStore->reserveConf("size", &mSize);
    }
    void cleanup()
    {
        mStore.reset();
        QDir::setCurrent(QDir::rootPath());
    }

    void nothingIsLoggedWithoutAnApplication();
    void storeWorksWithEachApplication();
    void changesBeforeTheApplicationAreNoticed();
    void storeMayOutliveTheApplicationOrNot();

private:
    std::unique_ptr<QTemporaryDir> mFolder;
    std::unique_ptr<ConfStorage> mStore;
    int mSize = 0;
    int mCount = 1;
    char mName[5] = "test";
    char *mArguments[2] = {mName, nullptr};
};

void tst_StoreWithoutApplication::nothingIsLoggedWithoutAnApplication()
{
    QVERIFY(!QCoreApplication::instance());
    const LogCapture log;
    mStore->setAutosave(0);
    mStore->loadLocalConfFile();
    mStore->set("size", 1);
    QVERIFY(write(2));
    mStore.reset();
    QVERIFY(log.messages().isEmpty());
}

void tst_StoreWithoutApplication::storeWorksWithEachApplication()
{
    const LogCapture log;
    mStore->setAutosave(0);
    mStore->loadLocalConfFile();
    for (int i = 1; i < 4; ++i) {
        const QCoreApplication application(mCount, mArguments);
        mStore->set("size", i);
        QTRY_VERIFY(!mStore->mChanged);
        const int newer = 10 * i;
        QVERIFY(write(newer));
        QTRY_COMPARE(mSize, newer);
    }
    QVERIFY(log.texts(QtWarningMsg).isEmpty());
}

void tst_StoreWithoutApplication::changesBeforeTheApplicationAreNoticed()
{
    const LogCapture log;
    mStore->setAutosave(0);
    mStore->loadLocalConfFile();
    QVERIFY(write(5));
    {
        const QCoreApplication application(mCount, mArguments);
        QTRY_COMPARE(mSize, 5);
    }
    mStore->set("size", 6);
    const QCoreApplication application(mCount, mArguments);
    QTRY_VERIFY(!mStore->mChanged);
}

void tst_StoreWithoutApplication::storeMayOutliveTheApplicationOrNot()
{
    const LogCapture log;
    mStore->loadLocalConfFile();
    {
        const QCoreApplication application(mCount, mArguments);
        mStore->setAutosave(60 * 60 * 1000);
        mStore->set("size", 1);
    }
    mStore->set("size", 2);
    const QCoreApplication application(mCount, mArguments);
    mStore->set("size", 3);
    mStore.reset();
    QCoreApplication::processEvents();
    QVERIFY(log.messages().isEmpty());
}

QTEST_APPLESS_MAIN(tst_StoreWithoutApplication)

#include "tst_StoreWithoutApplication.moc"
