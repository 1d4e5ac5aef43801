#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <QApplication>
#include <QComboBox>
#include <QJsonObject>
#include <QLineEdit>
#include <QSpinBox>

using namespace MtConf;

/// Pages that follow the store.
class tst_LivePages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<WindowFixture>();
        mFixture->manager->windowFeatures = LivePagesFeature;
        mFlag = mFixture->addBool("Sound");
        mDelay = 0;
        mName.clear();
        mNumber = mFixture->manager->addConfInt32("Delay", &mDelay, "General", "Delay");
        mText = mFixture->manager->addConfText("Name", &mName, "General", "Name");
    }
    void cleanup() { mFixture.reset(); }

    void rowsShowWhatTheProgramSets()
    {
        QVERIFY(mFixture->open());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        WindowFixture::store()->set<QString>(mText->getFullName(), "x");
        WindowFixture::store()->set(mFlag->getFullName(), false);
        QTRY_COMPARE(spinBox()->value(), 7);
        QCOMPARE(field()->text(), QString("x"));
        QVERIFY(!WindowFixture::checkBox(mFlag)->isChecked());
        QCOMPARE(mNumber->editor->label()->property("changed").toString(), QString("1"));
    }

    void rowsShowWhatIsMergedAndRestored()
    {
        QVERIFY(mFixture->open());
        const QString key = mNumber->getFullName();
        WindowFixture::store()->loadConf(QJsonObject{{key, QJsonObject{{"t", 5}, {"v", 9}}}},
                                         ConfStorage::LoadShared);
        QTRY_COMPARE(spinBox()->value(), 9);
        WindowFixture::store()->setToDefault(key, true);
        QTRY_COMPARE(spinBox()->value(), 0);
        QCOMPARE(mNumber->editor->label()->property("changed").toString(), QString("0"));
    }

    void withoutTheFeatureRowsKeepWhatTheyShow()
    {
        mFixture->manager->windowFeatures = 0;
        QVERIFY(mFixture->open());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        QCoreApplication::processEvents();
        QCOMPARE(spinBox()->value(), 0);
    }

    void refreshingStoresNothing()
    {
        mAction = 1;
        mFixture->manager->addConfMouseAction("Mouse", &mAction, 1, "General", "Mouse");
        QVERIFY(mFixture->open());
        ConfStorage *const store = WindowFixture::store();
        int stores = 0;
        const int observer = store->addObserver([&](const ConfChange &) { ++stores; });
        store->set("General.Mouse", 2 | int(Qt::ShiftModifier));
        store->set(mNumber->getFullName(), 500); // beyond the range of the spin box
        QTRY_COMPARE(spinBox()->value(), 99);
        QCOMPARE(store->get<int>(mNumber->getFullName()), 500);
        QCOMPARE(store->get<int>("General.Mouse"), 2 | int(Qt::ShiftModifier));
        QCOMPARE(stores, 2);
        store->removeObserver(observer);
    }

    void theFieldThatIsBeingTypedInIsToldAndNotOverwritten()
    {
        QVERIFY(mFixture->openActive());
        field()->setFocus();
        QTest::keyClicks(field(), "mine");
        WindowFixture::store()->set<QString>(mText->getFullName(), "theirs");
        QTRY_VERIFY(notice());
        QCOMPARE(field()->text(), QString("mine"));
        QVERIFY(notice()->isVisible());
        spinBox()->setFocus(); // the newest change wins
        QTRY_VERIFY(!notice());
        QCOMPARE(mName, QString("mine"));
        QCOMPARE(field()->text(), QString("mine"));
    }

    void aFieldWhoseTextIsStoredShowsTheOtherOneWhenItIsLeft()
    {
        QVERIFY(mFixture->openActive());
        spinBox()->setFocus();
        spinBox()->selectAll();
        QTest::keyClicks(spinBox(), "12");
        QCOMPARE(mDelay, 12);
        WindowFixture::store()->set(mNumber->getFullName(), 50);
        QTRY_VERIFY(notice());
        QCOMPARE(spinBox()->value(), 12);
        field()->setFocus();
        QTRY_COMPARE(spinBox()->value(), 50);
        QCOMPARE(mDelay, 50);
        QVERIFY(!notice());
    }

    void whatACallbackChangesIsShown()
    {
        mNumber->setConfChangedCallback([&](const QString &key, const ConfValue *) {
            if (mDelay % 2)
                WindowFixture::store()->set(key, mDelay + 1);
        });
        QVERIFY(mFixture->open());
        spinBox()->stepUp();
        QTRY_COMPARE(spinBox()->value(), 2);
        QCOMPARE(mDelay, 2);
    }

    void aKeyThatIsReleasedIsNotShown()
    {
        QVERIFY(mFixture->open());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        WindowFixture::store()->releaseConf(mNumber->getFullName());
        QTest::ignoreMessage(QtCriticalMsg, "ConfStorage::get key not found:  \"General.Delay\"");
        QCoreApplication::processEvents();
        QVERIFY(WindowFixture::window()->isVisible());
    }

    void theWindowMayBeClosedBeforeTheRefresh()
    {
        QVERIFY(mFixture->open());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        mFixture->manager.reset();
        QCoreApplication::processEvents();
        QVERIFY(!WindowFixture::window());
    }

private:
    QSpinBox *spinBox() const { return mNumber->editor->findChild<QSpinBox *>(); }
    QLineEdit *field() const { return mText->editor->findChild<QLineEdit *>(); }
    static QLabel *notice()
    {
        const QList<QLabel *> labels = WindowFixture::window()->findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->property("class") == "RowNotice")
                return label;
        }
        return nullptr;
    }

    std::unique_ptr<WindowFixture> mFixture;
    ConfItem *mFlag = nullptr;
    ConfItem *mNumber = nullptr;
    ConfItem *mText = nullptr;
    int mDelay = 0;
    QString mName;
    int mAction = 1;
};

int main(int argc, char **argv)
{
    return runTest<tst_LivePages>(argc, argv);
}

#include "tst_LivePages.moc"
