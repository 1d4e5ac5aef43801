#include "DemoFixture.h"
#include "support/TestMain.h"

#include <QListWidget>

/// The page of the profiles on a screen with a device pixel ratio of 2.
class tst_ProfilesPageScaled : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void coloursOfTheProfilesAreSharp();
};

void tst_ProfilesPageScaled::coloursOfTheProfilesAreSharp()
{
    DemoFixture demo;
    demo.start();
    QVERIFY(demo.open(QStringLiteral("Profiles")));
    const auto *list = demo.child<QListWidget>("profileList");
    QCOMPARE(list->devicePixelRatioF(), 2.0);
    const QIcon icon = list->item(0)->icon();
    QCOMPARE(icon.availableSizes(), QList<QSize>{list->iconSize() * 2});
    QCOMPARE(icon.actualSize(list->iconSize()), list->iconSize());
}

int main(int argc, char **argv)
{
    qputenv("QT_SCALE_FACTOR", "2");
    return runTest<tst_ProfilesPageScaled>(argc, argv);
}

#include "tst_ProfilesPageScaled.moc"
