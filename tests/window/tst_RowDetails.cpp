#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <QApplication>
#include <QHelpEvent>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSpinBox>
#include <QToolTip>

using namespace MtConf;

/// Help under the captions, and where values come from.
class tst_RowDetails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<WindowFixture>();
        mFixture->manager->windowFeatures = DetailsFeature;
        mDelay = 5;
        mNumber = mFixture->manager->addConfInt32("Delay", &mDelay, "General", "Delay");
        mNumber->setRange(1, 60)->setSuffix(" s")->setHelp("Time to open a menu");
        mFlag = mFixture->addBool("Sound");
    }
    void cleanup()
    {
        QToolTip::hideText();
        mFixture.reset();
    }

    void helpIsUnderTheCaption()
    {
        QVERIFY(mFixture->open());
        const QList<QLabel *> help = texts("RowHelp");
        QCOMPARE(help.size(), 1);
        QCOMPARE(help.first()->text(), QString("Time to open a menu"));
        QVERIFY(help.first()->isVisible());
        const auto bottomOf = [](const QWidget *widget) {
            return widget->mapTo(widget->window(), QPoint(0, widget->height())).y();
        };
        QVERIFY(bottomOf(help.first()) > bottomOf(mNumber->editor->label()));
    }

    void withoutTheFeatureNothingIsAdded()
    {
        mFixture->manager->windowFeatures = 0;
        QVERIFY(mFixture->open());
        QVERIFY(texts("RowHelp").isEmpty());
    }

    void theToolTipTellsTheOrigin_data()
    {
        QTest::addColumn<QString>("origin");
        QTest::addColumn<QString>("line");
        QTest::newRow("default") << "default"
                                 << "Not changed";
        QTest::newRow("set") << "set"
                             << "Changed on ";
        QTest::newRow("loaded at the start") << "start"
                                             << "Changed on ";
        QTest::newRow("configuration file") << "file"
                                            << "From the file host.json";
        QTest::newRow("merged later") << "merged"
                                      << "Changed by another program or computer on ";
        QTest::newRow("locked") << "locked"
                                << "Locked by the administrator";
    }

    void theToolTipTellsTheOrigin()
    {
        QFETCH(QString, origin);
        QFETCH(QString, line);
        ConfStorage *store = WindowFixture::store();
        const QString key = mNumber->getFullName();
        const QJsonObject dump{{key, QJsonObject{{"t", 1700000000}, {"v", 9}}}};
        if (origin == "set")
            store->set(key, 9);
        if (origin == "start")
            store->loadConf(dump, ConfStorage::LoadLocal);
        if (origin == "file") {
            QFile file("host.json");
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(QJsonDocument(QJsonObject{{key, 9}}).toJson());
            file.close();
            mFixture->manager->loadFromFile("host.json");
            file.remove();
        }
        if (origin == "merged") {
            store->loadLocalConfFile();
            store->loadConf(dump, ConfStorage::LoadShared);
        }
        if (origin == "locked")
            store->lockConf(key, 9);
        QCOMPARE(mDelay, origin == "default" ? 5 : 9);
        QVERIFY(mFixture->open());
        const QString text = toolTip(mNumber->editor);
        QVERIFY2(text.contains("From 1 to 60 s"), qPrintable(text));
        QVERIFY2(text.contains("Default: 5 s"), qPrintable(text));
        QVERIFY2(text.contains(line), qPrintable(text));
        QCOMPARE(toolTip(mNumber->editor->label()), text);
    }

    void aChangeHereReplacesTheOrigin()
    {
        ConfStorage *store = WindowFixture::store();
        const QString key = mNumber->getFullName();
        store->loadLocalConfFile();
        store->loadConf(QJsonObject{{key, QJsonObject{{"t", 1700000000}, {"v", 9}}}},
                        ConfStorage::LoadShared);
        QVERIFY(mFixture->open());
        mNumber->editor->findChild<QSpinBox *>()->setValue(11);
        QVERIFY(toolTip(mNumber->editor).contains("Changed on "));
    }

    void timesKeepTheirDirectionInALayoutFromRightToLeft()
    {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QVERIFY(mFixture->open());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        QTRY_VERIFY(toolTip(mNumber->editor).contains("Changed on \u2068"));
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void lockedRowsAreDisabledAndSaySo()
    {
        WindowFixture::store()->lockConf(mNumber->getFullName(), 9);
        QVERIFY(mFixture->open());
        QCOMPARE(texts("RowLocked").size(), 1);
        QVERIFY(!mNumber->editor->isEnabled());
        QVERIFY(mFlag->editor->isEnabled());
    }

    void rowsThatAreLockedLaterSaySo()
    {
        QVERIFY(mFixture->open());
        QVERIFY(mNumber->editor->isEnabled());
        WindowFixture::store()->lockConf(mNumber->getFullName(), 9);
        QVERIFY(!mNumber->editor->isEnabled());
        QCOMPARE(texts("RowLocked").size(), 1);
        WindowFixture::store()->lockConf(mNumber->getFullName(), 8);
        QCOMPARE(texts("RowLocked").size(), 1);
    }

    void lockedRowsStayDisabledWhenADependencyChanges()
    {
        mFixture->manager->getItemByName("General", "Delay", QString())->dependsOn(mFlag, true);
        WindowFixture::store()->lockConf(mNumber->getFullName(), 9);
        QVERIFY(mFixture->open());
        WindowFixture::store()->set(mFlag->getFullName(), false);
        WindowFixture::store()->set(mFlag->getFullName(), true);
        QVERIFY(!mNumber->editor->isEnabled());
        QVERIFY(!mNumber->editor->label()->isEnabled());
    }

    void secretsAreNotInTheToolTip()
    {
        mToken = "old";
        ConfItem *secret = mFixture->manager->addConfPassword("Token", &mToken, "General", "Token");
        QVERIFY(mFixture->open());
        QVERIFY(!toolTip(secret->editor).contains("old"));
        QVERIFY(toolTip(secret->editor).contains("Not changed"));
    }

private:
    static QList<QLabel *> texts(const char *styleClass)
    {
        QList<QLabel *> found;
        const QList<QLabel *> labels = WindowFixture::window()->findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->property("class") == QLatin1String(styleClass))
                found.append(label);
        }
        return found;
    }
    static QString toolTip(QWidget *widget)
    {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), widget->mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(widget, &event);
        return QToolTip::text();
    }

    std::unique_ptr<WindowFixture> mFixture;
    ConfItem *mNumber = nullptr;
    ConfItem *mFlag = nullptr;
    int mDelay = 5;
    QString mToken;
};

int main(int argc, char **argv)
{
    return runTest<tst_RowDetails>(argc, argv);
}

#include "tst_RowDetails.moc"
