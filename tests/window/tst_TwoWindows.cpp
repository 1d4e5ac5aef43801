#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QComboBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QProcess>
#include <QSpinBox>
#include <QTextStream>

#include <memory>
#include <random>

using namespace MtConf;

namespace {

constexpr int sChanges = 5000; // of each of the two programs
constexpr int sChangesForEachSave = 100;

/// A program with an open window on the shared file. It changes settings at random, in the editors
/// and in the store, and then answers each line of its input with what it has.
class EditingProgram
{
public:
    EditingProgram(const QString &path, unsigned seed) : mRandom(seed)
    {
        mManager.windowFeatures = LivePagesFeature;
        mManager.addConfInt32("Delay", &mNumber, "General", "Delay");
        mManager.addConfText("Name", &mName, "General", "Name");
        mManager.addConfInt32WithCombobox("Choice", {"A", "B", "C"}, &mChoice, "General", "Choice");
        mManager.addConfMouseAction("Mouse", &mMouse, 1, "General", "Mouse");
        mManager.addConfBool("Sound", &mSound, "General", "Sound");
        store()->mFileOptions = ConfStorage::SharedFile | ConfStorage::WatchFile
                                | ConfStorage::ResolveTies;
        store()->mLocalSaveFile = path;
        store()->loadLocalConfFile();
    }
    ~EditingProgram() { mManager.closeConfigWindow(); }
    Q_DISABLE_COPY(EditingProgram)

    int run()
    {
        mManager.ShowWindow();
        for (int i = 1; i <= sChanges; ++i) {
            change();
            if (i % sChangesForEachSave == 0)
                store()->saveToLocalConfFile();
            QCoreApplication::processEvents();
        }
        store()->saveToLocalConfFile();
        store()->addObserver([this](const ConfChange &change) {
            if (change.cause != ConfChange::Cause::Loaded)
                ++mAnswers;
        });
        QTextStream input(stdin);
        QTextStream output(stdout);
        for (;;) {
            output << QJsonDocument(report()).toJson(QJsonDocument::Compact) << Qt::endl;
            if (input.readLine() != QLatin1String("again"))
                return 0;
            // Without waiting for the file watcher.
            store()->loadLocalConfFile();
            store()->saveToLocalConfFile();
            QCoreApplication::processEvents();
        }
    }

private:
    static ConfStorage *store() { return ConfStorage::instance(); }
    int random(int count) { return std::uniform_int_distribution<int>(0, count - 1)(mRandom); }
    template<class Control> Control *control(const char *name)
    {
        ConfItem *item = mManager.getItemByName("General", name, QString());
        return item->editor->findChild<Control *>();
    }

    void change()
    {
        switch (random(6)) {
        case 0: control<QSpinBox>("Delay")->setValue(random(100)); break;
        case 1:
            control<QLineEdit>("Name")->setText(QString::number(random(1000)));
            store()->set("General.Name", control<QLineEdit>("Name")->text());
            break;
        case 2: control<QComboBox>("Choice")->setCurrentIndex(random(3)); break;
        case 3: store()->set("General.Mouse", (random(3) + 1) | int(Qt::ShiftModifier)); break;
        case 4: store()->set("General.Sound", random(2) == 0); break;
        default: store()->setToDefault("General.Delay", true);
        }
    }

    QJsonObject report() const
    {
        const QJsonArray values{mNumber, mName, mChoice, mMouse, mSound};
        return {{"values", values}, {"answers", mAnswers}};
    }

    std::mt19937 mRandom;
    int mNumber = 0;
    QString mName;
    int mChoice = 0;
    int mMouse = 1;
    bool mSound = true;
    int mAnswers = 0; // what the window has stored since the program stopped changing
    MtConfManage mManager;
};

} // namespace

/// Two programs with a window each on one file.
class tst_TwoWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theyAgreeAndDoNotAnswerEachOther()
    {
        QProcess programs[2];
        int seed = 1;
        for (QProcess &program : programs) {
            program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
            program.start(
                QCoreApplication::applicationFilePath(),
                {"--edit", QDir::current().filePath("shared.json"), QString::number(seed++)});
        }
        QJsonObject first = report(programs[0]);
        QJsonObject second = report(programs[1]);
        for (int i = 0; i < 5 && first.value("values") != second.value("values"); ++i) {
            first = ask(programs[0]);
            second = ask(programs[1]);
        }
        QCOMPARE(first.value("values"), second.value("values"));
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(ask(programs[0]).value("answers").toInt(-1), 0);
            QCOMPARE(ask(programs[1]).value("answers").toInt(-1), 0);
        }
        for (QProcess &program : programs) {
            program.write("end\n");
            QVERIFY(program.waitForFinished(-1));
            QCOMPARE(program.exitCode(), 0);
        }
    }

private:
    static QJsonObject report(QProcess &program)
    {
        while (!program.canReadLine() && program.waitForReadyRead(-1)) {}
        return QJsonDocument::fromJson(program.readLine()).object();
    }
    static QJsonObject ask(QProcess &program)
    {
        program.write("again\n");
        return report(program);
    }
};

int main(int argc, char **argv)
{
    if (argc == 4 && QByteArray(argv[1]) == "--edit") {
        QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
        QApplication application(argc, argv);
        return EditingProgram(QString::fromLocal8Bit(argv[2]), QByteArray(argv[3]).toUInt()).run();
    }
    return runTest<tst_TwoWindows>(argc, argv);
}

#include "tst_TwoWindows.moc"
