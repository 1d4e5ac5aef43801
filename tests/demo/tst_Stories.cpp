#include "DemoFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>
#include <QTreeWidget>

using MtConf::ConfigItemWidget;

namespace {

/// Clicks `button`, and calls each of `answers` with one of the dialogs that open, in order.
/// Returns whether all of them were called.
bool clickAndAnswer(QPushButton *button, QList<std::function<void(QWidget *)>> answers)
{
    QTimer timer;
    QPointer<QWidget> answered;
    QObject::connect(&timer, &QTimer::timeout, button, [&] {
        QWidget *const dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible() || dialog == answered || answers.isEmpty())
            return;
        answered = dialog;
        answers.takeFirst()(dialog);
    });
    timer.start(5);
    QTest::mouseClick(button, Qt::LeftButton);
    return answers.isEmpty();
}

std::function<void(QWidget *)> choosesFile(const QString &path)
{
    return [path](QWidget *dialog) {
        auto *field = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        field->setText(path);
        QTest::keyClick(field, Qt::Key_Return);
    };
}

} // namespace

/// What a user does with the features of the settings window, with real keys and clicks in the
/// demo.
class tst_Stories : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        mDemo = std::make_unique<DemoFixture>();
        startModern();
    }
    void cleanup() { mDemo.reset(); }

    void findChangeAndReset()
    {
        QVERIFY(open("General"));
        // A setting whose page the user does not know.
        typeIntoFind("capture delay");
        QTRY_VERIFY(delayEditor());
        QTest::keyClick(findField(), Qt::Key_Return);
        QTRY_COMPARE(mDemo->window()->currentClass(), QString("Capture"));
        QTRY_VERIFY(delayEditor() && delayEditor()->isAncestorOf(QApplication::focusWidget()));
        delayBox()->selectAll();
        QTest::keyClicks(delayBox(), "7");
        QCOMPARE(mDemo->settings().delay, 7);

        typeIntoFind("@changed");
        QTRY_VERIFY(!mDemo->editor("Capture", "Countdown"));
        QVERIFY(delayEditor());
        delayBox()->setFocus();
        QTest::keyClick(delayBox(), Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(mDemo->settings().delay, 0);
    }

    void restoreAllByMistakeAndUndo()
    {
        QVERIFY(open("Capture"));
        changeDelay("7");
        DemoFixture::clickClass("Numbers");
        DemoFixture::clickClass("Capture");
        DemoFixture::click(mDemo->checkBox("Capture", "Freeze"));
        const bool isFrozen = mDemo->settings().freezeScreen;
        QVERIFY(clickAndAnswer(
            DemoFixture::child<QPushButton>("btnRestoreAllDefault"), {[](QWidget *dialog) {
                auto *box = qobject_cast<QMessageBox *>(dialog);
                QCOMPARE(box->defaultButton()->text(), QString("Cancel"));
                QTest::mouseClick(box->findChild<QPushButton *>("ModernReset"), Qt::LeftButton);
            }}));
        QCOMPARE(mDemo->settings().delay, 0);
        auto *bar = DemoFixture::child<QWidget>("UndoBar");
        QTRY_VERIFY(bar->isVisible());
        QTest::mouseClick(bar->findChild<QPushButton *>(), Qt::LeftButton);
        QTRY_COMPARE(mDemo->settings().delay, 7);
        QCOMPARE(mDemo->settings().freezeScreen, isFrozen);
        QTRY_COMPARE(delayBox()->value(), 7);
    }

    void exportAndImportOnASecondMachine()
    {
        const QString file = QDir::current().filePath("exported.json");
        QVERIFY(open("Capture"));
        changeDelay("7");
        DemoFixture::click(mDemo->checkBox("Capture", "Freeze"));
        const bool isFrozen = mDemo->settings().freezeScreen;
        QVERIFY(clickAndAnswer(DemoFixture::child<QPushButton>("btnExport"), {choosesFile(file)}));
        QVERIFY(QFile::exists(file));

        // The second machine has changes of its own.
        mDemo->session.reset();
        QVERIFY(QFile::remove(DemoFixture::localFile()));
        startModern();
        QVERIFY(open("Capture"));
        changeDelay("3");
        QVERIFY(clickAndAnswer(DemoFixture::child<QPushButton>("btnImport"),
                               {choosesFile(file), [](QWidget *dialog) {
                                    // The time of the delay is kept.
                                    uncheckRow(dialog->findChild<QTreeWidget *>(), "Delay");
                                    QTest::mouseClick(
                                        dialog->findChild<QPushButton *>("btnImportChecked"),
                                        Qt::LeftButton);
                                }}));
        QTRY_COMPARE(mDemo->settings().freezeScreen, isFrozen);
        QCOMPARE(mDemo->settings().delay, 3);
        QVERIFY(activate());
        auto *bar = DemoFixture::child<QWidget>("UndoBar");
        QTRY_VERIFY(bar->isVisible());
        DemoFixture::child<QListView>("configList")->setFocus();
        QTest::keyClick(DemoFixture::child<QListView>("configList"), Qt::Key_Z,
                        Qt::ControlModifier);
        QTRY_COMPARE(mDemo->settings().freezeScreen, !isFrozen);
        QCOMPARE(mDemo->settings().delay, 3);
    }

private:
    void startModern()
    {
        clearStore();
        mDemo->session = std::make_unique<DemoSession>(DemoFixture::localFile(),
                                                       DemoSession::Look::Modern);
        mDemo->session->load(QString());
    }
    bool open(const QString &page) { return mDemo->open(page) && activate(); }
    static bool activate()
    {
        DemoFixture::window()->activateWindow();
        return QTest::qWaitForWindowActive(DemoFixture::window());
    }
    static QLineEdit *findField() { return DemoFixture::child<QLineEdit>("FindField"); }
    static void typeIntoFind(const QString &text)
    {
        QWidget *const focused = QApplication::focusWidget();
        QTest::keyClick(focused ? focused : DemoFixture::window(), Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(findField()->hasFocus());
        QTest::keyClicks(findField(), text);
    }
    ConfigItemWidget *delayEditor() const { return mDemo->editor("Capture", "Delay"); }
    QSpinBox *delayBox() const { return DemoFixture::control<QSpinBox>(delayEditor()); }
    void changeDelay(const QString &number) const
    {
        delayBox()->setFocus();
        delayBox()->selectAll();
        QTest::keyClicks(delayBox(), number);
    }
    /// Unchecks the row whose caption begins with `caption`.
    static void uncheckRow(QTreeWidget *tree, const QString &caption)
    {
        const QList<QTreeWidgetItem *> found = tree->findItems(caption, Qt::MatchStartsWith
                                                                            | Qt::MatchRecursive);
        QCOMPARE(found.size(), 1);
        tree->setCurrentItem(found.first());
        QTest::keyClick(tree, Qt::Key_Space);
        QCOMPARE(found.first()->checkState(0), Qt::Unchecked);
    }

    std::unique_ptr<DemoFixture> mDemo;
};

int main(int argc, char **argv)
{
    return runTest<tst_Stories>(argc, argv);
}

#include "tst_Stories.moc"
