#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <QGridLayout>

/// Sizes at 95 dots per inch, a scale of 1.3194, where rounding and truncating differ for every
/// size.
class tst_WindowScale : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<WindowFixture>();
        mFixture->manager->addConfBool("Flag", &mFlag, "General", "Flag");
    }
    void cleanup() { mFixture.reset(); }

    void widthOfTheClassListIsRounded();
    void sizeReservedForClassIconsIsTruncated();
    void classIconsAreTruncated();
    void spacingOfAGroupIsTruncated();

private:
    std::unique_ptr<WindowFixture> mFixture;
    bool mFlag = true;
};

void tst_WindowScale::widthOfTheClassListIsRounded()
{
    mFixture->open();
    QCOMPARE(mFixture->classList()->minimumWidth(), 264); // 200 * 95 / 72 = 263.9
}

void tst_WindowScale::sizeReservedForClassIconsIsTruncated()
{
    mFixture->open();
    QCOMPARE(mFixture->classList()->iconSize(), QSize(36, 36)); // 28 * 95 / 72 = 36.9
}

void tst_WindowScale::classIconsAreTruncated()
{
    QMap<QString, QChar> icons{{"General", QChar(0xe800)}};
    mFixture->manager->setIconMap(icons);
    mFixture->open();
    const QIcon icon =
        mFixture->classList()->model()->index(0, 0).data(Qt::DecorationRole).value<QIcon>();
    // 24 * 95 / 72 = 31.7
    QVERIFY(icon.availableSizes(QIcon::Normal).contains(QSize(31, 31)));
    QVERIFY(!icon.availableSizes(QIcon::Normal).contains(QSize(32, 32)));
    QVERIFY(icon.availableSizes(QIcon::Selected).contains(QSize(31, 31)));
    QVERIFY(!icon.availableSizes(QIcon::Selected).contains(QSize(32, 32)));
}

void tst_WindowScale::spacingOfAGroupIsTruncated()
{
    mFixture->open();
    const auto *grid = qobject_cast<QGridLayout *>(mFixture->groups().first()->layout());
    QCOMPARE(grid->contentsMargins(), QMargins(15, 15, 15, 15)); // 12 * 95 / 72 = 15.8
    QCOMPARE(grid->spacing(), 15);
}

int main(int argc, char **argv)
{
    qputenv("QT_FONT_DPI", "95");
    return runTest<tst_WindowScale>(argc, argv);
}

#include "tst_WindowScale.moc"
