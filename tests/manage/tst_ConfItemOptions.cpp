#include "support/CleanStore.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <chrono>
#include <memory>

using MtConf::ConfItem;
using MtConf::MtConfManage;
using namespace std::chrono_literals;

namespace {

enum class Mode { Off, On };

} // namespace

/// The options that a host sets when it declares an item.
class tst_ConfItemOptions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void optionsReturnTheItem();
    void optionsAreRecordedAndCopied();
    void rangeOfTheEditorBindsNothingElse();
    void enforcedRangeRefusesWhatIsOutside();
    void clampedRangeTakesTheNearestValue();
    void rangeOfATime();
    void clampedWholeNumbersStayWhole();
    void rangeOfADurationIsInItsUnit();
    void dependencyTakesAnyType();
    void secretIsLocalOnlyAndMasked();
    void anyTypeIsDeclaredInOneLine();

private:
    std::unique_ptr<MtConfManage> mManager;
    ConfStorage *mStore = ConfStorage::instance();
};

void tst_ConfItemOptions::init()
{
    clearStore();
    mManager = std::make_unique<MtConfManage>();
}

void tst_ConfItemOptions::cleanup()
{
    mManager.reset();
    clearStore();
}

void tst_ConfItemOptions::optionsReturnTheItem()
{
    double value = 1;
    ConfItem *item = mManager->addConfValue(&value, "Page", "A");
    ConfItem *other = mManager->addConfValue(&value, "Page", "B");
    QCOMPARE(item->setRange(0, 9)
                 ->setRange(QDateTime(), QDateTime())
                 ->setRange(1s, 1min)
                 ->setStep(0.5)
                 ->setDecimals(1)
                 ->setSuffix(" px")
                 ->setPlaceholder("none")
                 ->setHelp("Help.")
                 ->setExpert()
                 ->setMultiSelect()
                 ->dependsOn(other, 1)
                 ->dependsOn(other, Mode::On)
                 ->setValidator([](const QJsonValue &) { return QString(); })
                 ->setSecret(),
             item);
}

void tst_ConfItemOptions::optionsAreRecordedAndCopied()
{
    double value = 1;
    ConfItem item = *mManager->addConfValue(&value, "Page", "A")
                         ->setSuffix(" px")
                         ->setPlaceholder("none")
                         ->setHelp("Help.");
    item.choices = {{"One", 1}, {"Zwei", 2, false}};
    item.setValidator([](const QJsonValue &) { return QStringLiteral("why"); });
    const ConfItem copy(item);
    QCOMPARE(copy.suffixText(), QStringLiteral(" px"));
    QCOMPARE(copy.placeholderText(), QStringLiteral("none"));
    QCOMPARE(copy.helpText(), QStringLiteral("Help."));
    QCOMPARE(copy.choices.size(), 2);
    QCOMPARE(copy.choices.last().text(), QStringLiteral("Zwei"));
    QCOMPARE(copy.validator(0), QStringLiteral("why"));
    QCOMPARE(ConfItem(*mManager->addConfValue(&value, "Page", "B")).helpText(), QString());
}

void tst_ConfItemOptions::rangeOfTheEditorBindsNothingElse()
{
    int value = 5;
    mManager->addConfValue(&value, "Page", "A")->setRange(1, 9);
    mStore->set("Page.A", 100);
    QCOMPARE(value, 100);
}

void tst_ConfItemOptions::enforcedRangeRefusesWhatIsOutside()
{
    int value = 5;
    double number = 5;
    qint64 large = 5;
    mManager->addConfValue(&value, "Page", "A")->setRange(1, 9, MtConf::Enforced);
    mManager->addConfValue(&number, "Page", "B")->setRange(1, 9.5, MtConf::Enforced);
    mManager->addConfValue(&large, "Page", "C")->setRange(1, 9, MtConf::Enforced);
    const LogCapture log;
    mStore->set("Page.A", 10);
    mStore->set("Page.B", qQNaN());
    mStore->set("Page.B", 9.6);
    mStore->set("Page.C", qint64(9007199254740993)); // a text in JSON
    QCOMPARE(value, 5);
    QCOMPARE(number, 5.0);
    QCOMPARE(large, qint64(5));
    QCOMPARE(LogCapture::texts(QtWarningMsg).size(), 4);
    mStore->set("Page.A", 9);
    mStore->set("Page.B", 9.5);
    QCOMPARE(value, 9);
    QCOMPARE(number, 9.5);
}

void tst_ConfItemOptions::clampedRangeTakesTheNearestValue()
{
    int value = 5;
    mManager->addConfValue(&value, "Page", "A")->setRange(1, 9, MtConf::Clamped);
    const LogCapture log;
    mStore->set("Page.A", 10);
    QCOMPARE(value, 9);
    mManager->getItemByName("Page", "A", "")->loadFromJsonValue(-3);
    QCOMPARE(value, 1);
    const QString changed("ConfStorage::setConfConstraint() value changed:  \"Page.A\"");
    QCOMPARE(LogCapture::texts(QtWarningMsg), (QStringList{changed, changed}));
}

void tst_ConfItemOptions::rangeOfATime()
{
    const QDateTime first(QDate(2026, 1, 1), QTime(), Qt::UTC);
    const QDateTime last = first.addDays(1);
    QDateTime refusing = first, clamping = first;
    mManager->addConfValue(&refusing, "Page", "A")->setRange(first, last, MtConf::Enforced);
    mManager->addConfValue(&clamping, "Page", "B")->setRange(first, last, MtConf::Clamped);
    const LogCapture log;
    for (const char *key : {"Page.A", "Page.B"})
        mStore->set(key, last.addSecs(1));
    QCOMPARE(refusing, first);
    QCOMPARE(clamping, last);
    mStore->set("Page.A", last.toOffsetFromUtc(3600)); // the same instant
    QCOMPARE(refusing, last);
    mStore->set("Page.A", QDateTime()); // not set
    QVERIFY(!refusing.isValid());
    QDateTime open = first;
    mManager->addConfValue(&open, "Page", "C")->setRange(QDateTime(), last, MtConf::Enforced);
    mStore->set("Page.C", first.addYears(-9));
    QCOMPARE(open, first.addYears(-9));
    mStore->set("Page.C", last.addSecs(1));
    QCOMPARE(open, first.addYears(-9));
}

void tst_ConfItemOptions::clampedWholeNumbersStayWhole()
{
    qint64 large = 1, small = 1;
    int none = 1;
    mManager->addConfValue(&large, "Page", "A")->setRange(0, 1e17, MtConf::Clamped);
    mManager->addConfValue(&small, "Page", "B")->setRange(2.5, 7.5, MtConf::Clamped);
    mManager->addConfValue(&none, "Page", "C")->setRange(2.5, 2.7, MtConf::Clamped); // empty
    const LogCapture log;
    mStore->set("Page.A", qint64(2e17));
    mStore->set("Page.B", qint64(100));
    mStore->set("Page.C", 100);
    QCOMPARE(large, qint64(1e17));
    QCOMPARE(small, qint64(7));
    QCOMPARE(none, 100);
}

void tst_ConfItemOptions::rangeOfADurationIsInItsUnit()
{
    std::chrono::seconds value = 30s;
    ConfItem *item = mManager->addConfDuration("Label", &value, "Page", "A");
    item->setRange(500ms, 2min, MtConf::Enforced);
    QCOMPARE(item->properties.value("MinValue").toDouble(), 1.0); // in whole seconds
    QCOMPARE(item->properties.value("MaxValue").toDouble(), 120.0);
    const LogCapture log;
    mStore->set("Page.A", 121s);
    QVERIFY(value == 30s);
    mStore->set("Page.A", 120s);
    QVERIFY(value == 120s);
}

void tst_ConfItemOptions::dependencyTakesAnyType()
{
    Mode mode = Mode::Off;
    QString text;
    int value = 0;
    ConfItem *a = mManager->addConfValue(&mode, "Page", "A");
    ConfItem *b = mManager->addConfValue(&text, "Page", "B");
    float number = 0;
    qint64 large = 0;
    ConfItem *d = mManager->addConfValue(&number, "Page", "D");
    ConfItem *e = mManager->addConfValue(&large, "Page", "E");
    const ConfItem *c = mManager->addConfValue(&value, "Page", "C")
                            ->dependsOn(a, Mode::On)
                            ->dependsOn(b, "on")
                            ->dependsOn(d, 0.1f)
                            ->dependsOn(e, qint64(9007199254740993));
    const QMap<QString, QJsonValue> expected{
        {"Page.A", 1}, {"Page.B", "on"}, {"Page.D", 0.1}, {"Page.E", "9007199254740993"}};
    QCOMPARE(c->dependencies, expected);
}

void tst_ConfItemOptions::secretIsLocalOnlyAndMasked()
{
    QString token;
    mManager->addConfValue(static_cast<QString *>(nullptr), "Page", "None")->setSecret();
    QVERIFY(!mStore->mConfMetas.contains("Page.None"));
    mManager->addConfValue(&token, "Page", "A")->setSecret();
    mStore->set("Page.A", QStringLiteral("hunter2"));
    QVERIFY(mStore->dumpConf(ConfStorage::DumpShared).isEmpty());
    QVERIFY(mStore->dumpConf(ConfStorage::DumpChangedOnly).isEmpty());
    QVERIFY(!mStore->dumpConf(ConfStorage::DumpLocal).isEmpty());
    QVERIFY(!mStore->debugTable().contains("hunter2"));
    mStore->loadConf(QJsonObject{{"Page.A", QJsonObject{{"t", 2000000000}, {"v", "stolen"}}}},
                     ConfStorage::LoadShared);
    QCOMPARE(token, QStringLiteral("hunter2"));
}

void tst_ConfItemOptions::anyTypeIsDeclaredInOneLine()
{
    Mode mode = Mode::On;
    const ConfItem *item = mManager->addConfValue(&mode, "Page", "A");
    QVERIFY(!item->widgetCreator);
    QVERIFY(item->valueType >= 10);
    QVERIFY(item->loadFromJsonValue(0));
    QCOMPARE(mode, Mode::Off);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfItemOptions>(argc, argv);
}

#include "tst_ConfItemOptions.moc"
