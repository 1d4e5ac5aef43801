#include "OneFault.h"
#include "SavedSettings.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <grp.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Faults;

namespace {

constexpr uid_t sOwner = 65001;
constexpr uid_t sColleague = 65002;
constexpr gid_t sGroup = 65010;

/// During its lifetime the test has the rights of another user, who belongs to one group.
class As
{
public:
    As(uid_t user, gid_t group)
    {
        const bool changed = ::setgroups(1, &group) == 0 && ::setegid(group) == 0
                             && ::seteuid(user) == 0;
        Q_ASSERT_X(changed, "As", "needs root");
        Q_UNUSED(changed)
    }
    ~As()
    {
        const gid_t none = 0;
        const bool changed = ::seteuid(0) == 0 && ::setegid(0) == 0 && ::setgroups(1, &none) == 0;
        Q_UNUSED(changed)
    }
    Q_DISABLE_COPY(As)
};

struct stat statusOf(const QString &path)
{
    struct stat status = {};
    ::stat(qPrintable(path), &status);
    return status;
}

/// Gives `path` an access control list with one more user. Returns false if the file system has
/// none.
bool addAccessControlList(const QString &path)
{
    struct Entry
    {
        quint16 tag;
        quint16 permissions;
        quint32 id;
    };
    struct
    {
        quint32 version = 2;
        Entry entries[5] = {{0x01, 6, 0xffffffff},  // owner
                            {0x02, 4, 65003},       // one more user
                            {0x04, 0, 0xffffffff},  // group
                            {0x10, 4, 0xffffffff},  // mask
                            {0x20, 0, 0xffffffff}}; // others
    } list;
    return ::setxattr(qPrintable(path), "system.posix_acl_access", &list, sizeof list, 0) == 0;
}

} // namespace

/// Safe saves by several users: who owns the journal, who can read it, and names in a folder where
/// every user may create files.
class tst_SafeSaveAccess : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        if (::geteuid() != 0)
            QSKIP("only root can switch to another user and back");
        QCOMPARE(::chmod(".", 0755), 0);
    }
    void init()
    {
        SavedSettings::makeFolder();
        QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
        QCOMPARE(::chown("box/local.json", sOwner, sGroup), 0);
        QCOMPARE(::chown("box", sOwner, sGroup), 0);
    }

    void journalOfRootBelongsToTheOwnerOfTheFile();
    void colleagueCannotSaveSafely();
    void journalIsPrivateIfItCannotHaveTheGroup();
    void journalIsPrivateIfTheFileHasAnAccessControlList();
    void namesOfAStrangerDoNotBlockSaves();
    void journalOfAStrangerIsIgnored();
    void linkIsFollowedByTheOperatingSystem();

private:
    /// Leaves content 1 in the file, truncated, and a journal for content 2.
    static void interruptSave()
    {
        SavedSettings settings(true);
        settings.change(2);
        const LogCapture log;
        settings.saveUnder(failing(Kind::Write, ".json", 0, EIO).hook());
    }
};

void tst_SafeSaveAccess::journalOfRootBelongsToTheOwnerOfTheFile()
{
    QCOMPARE(::chmod("box/local.json", 0640), 0);
    interruptSave();
    const struct stat journal = statusOf(SavedSettings::journalPath());
    QCOMPARE(journal.st_uid, sOwner);
    QCOMPARE(journal.st_gid, sGroup);
    QCOMPARE(int(journal.st_mode & 07777), 0640);
    const As owner(sOwner, sGroup);
    QCOMPARE(SavedSettings::nextRun(), 2);
}

void tst_SafeSaveAccess::colleagueCannotSaveSafely()
{
    QCOMPARE(::chmod("box", 0775), 0);
    QCOMPARE(::chmod("box/local.json", 0664), 0);
    SavedSettings settings(true);
    settings.change(2);
    const LogCapture log;
    {
        const As colleague(sColleague, sGroup);
        settings.store.saveToLocalConfFile();
    }
    QCOMPARE(log.messages(),
             (QList<LoggedMessage>{{QtCriticalMsg, SavedSettings::journalFailed()}}));
    QVERIFY(settings.store.mChanged);
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(1));
    QCOMPARE(QDir("box").entryList(QDir::Files), QStringList("local.json"));
}

void tst_SafeSaveAccess::journalIsPrivateIfItCannotHaveTheGroup()
{
    QCOMPARE(::chmod("box/local.json", 0640), 0);
    {
        const As owner(sOwner, sGroup + 1);
        interruptSave();
    }
    QCOMPARE(int(statusOf(SavedSettings::journalPath()).st_mode & 07777), 0600);
    const As owner(sOwner, sGroup + 1);
    QCOMPARE(SavedSettings::nextRun(), 2);
}

void tst_SafeSaveAccess::journalIsPrivateIfTheFileHasAnAccessControlList()
{
    if (!addAccessControlList(SavedSettings::path()))
        QSKIP("the file system has no access control lists");
    QCOMPARE(int(statusOf(SavedSettings::path()).st_mode & 07777), 0640); // shows the mask
    interruptSave();
    QCOMPARE(int(statusOf(SavedSettings::journalPath()).st_mode & 07777), 0600);
}

void tst_SafeSaveAccess::namesOfAStrangerDoNotBlockSaves()
{
    QCOMPARE(::chown("box", 0, 0), 0);
    QCOMPARE(::chmod("box", 01777), 0);
    {
        const As stranger(sColleague, sGroup + 1);
        QVERIFY(SavedSettings::write("taken", SavedSettings::journalPath()));
        QVERIFY(SavedSettings::write("taken", SavedSettings::journalPath() + ".new"));
    }
    const As owner(sOwner, sGroup);
    SavedSettings settings(true);
    settings.change(2);
    const LogCapture log;
    settings.store.saveToLocalConfFile();
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtDebugMsg, SavedSettings::saved()}}));
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(2));

    QVERIFY(SavedSettings::write(SavedSettings::fileText(1)));
    interruptSave();
    QCOMPARE(SavedSettings::content(), QByteArray());
    QCOMPARE(SavedSettings::nextRun(), 2);
    QCOMPARE(SavedSettings::content(), SavedSettings::fileText(2));
    QCOMPARE(QDir("box").entryList(QDir::Files, QDir::Name),
             (QStringList{"local.json", "local.json.save-journal", "local.json.save-journal.new"}));
}

void tst_SafeSaveAccess::journalOfAStrangerIsIgnored()
{
    interruptSave();
    for (const int mode : {0644, 0600}) {
        QCOMPARE(::chown(qPrintable(SavedSettings::journalPath()), sColleague, sGroup), 0);
        QCOMPARE(::chmod(qPrintable(SavedSettings::journalPath()), mode_t(mode)), 0);
        const As owner(sOwner, sGroup);
        SavedSettings settings(true);
        const LogCapture log;
        settings.store.loadLocalConfFile();
        QVERIFY(log.messages().isEmpty());
        QCOMPARE(settings.number(), 0);
    }
}

void tst_SafeSaveAccess::linkIsFollowedByTheOperatingSystem()
{
    QVERIFY(QDir("box").mkdir("far"));
    QVERIFY(QFile::rename(SavedSettings::path(), "box/far/target.json"));
    QCOMPARE(::symlink("far/target.json", qPrintable(SavedSettings::path())), 0);
    QList<QByteArray> opened;
    SavedSettings settings(true);
    const LogCapture log;
    {
        const Scope faults(SavedSettings::folder(), [&opened](const Call &call) {
            if (call.kind == Kind::Open)
                opened.append(call.path.mid(SavedSettings::folder().size() + 1));
            return proceed();
        });
        settings.store.loadLocalConfFile();
        settings.change(2);
        settings.store.saveToLocalConfFile();
    }
    QCOMPARE(settings.store.mChanged, false);
    QVERIFY(opened.contains("local.json"));
    QVERIFY(!opened.contains("far/target.json"));
    QVERIFY(opened.contains("far/target.json.save-journal.new"));
    QCOMPARE(SavedSettings::content("box/far/target.json"), SavedSettings::fileText(2));
}

int main(int argc, char **argv)
{
    return runTest<tst_SafeSaveAccess>(argc, argv);
}

#include "tst_SafeSaveAccess.moc"
