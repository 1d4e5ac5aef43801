#include "support/EditorFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfDefWidgetQFont.h>

#include <QFontDialog>
#include <QLayout>
#include <QPushButton>

using MtConf::ConfDefWidgetQFont;
using MtConf::ConfItem;

class tst_ConfDefWidgetQFont : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<EditorFixture>();
        mValue = QFont("Sans");
        mValue.setPixelSize(16);
        mItem = mFixture->manager.addConfQFont("Caption", &mValue, "Capture", "Caption");
    }
    void cleanup() { mFixture.reset(); }

    void buttonShowsFamilyAndSize();
    void fontInPointsShowsNoPixels();
    void dialogShowsPixelsAsPoints();
    void chosenSizeIsStoredInPixels();
    void unchangedFontWritesNothing();
    void cancelledDialogWritesNothing_data();
    void cancelledDialogWritesNothing();
    void editorMayBeDeletedWhileTheDialogIsOpen();
    void callbackMayDeleteTheEditor();

private:
    void edit()
    {
        mEditor = mFixture->edit<ConfDefWidgetQFont>(mItem);
        mButton = mEditor->findChild<QPushButton *>();
        QVERIFY(mFixture->show());
    }
    /// Clicks the button and calls `action` with the modal font dialog when it is open.
    template<class Action> void clickAndThen(Action action)
    {
        bool done = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<QFontDialog *>(QApplication::activeModalWidget());
            if (!dialog || done)
                return;
            done = true;
            timer.stop();
            action(dialog);
        });
        timer.start(5);
        QTest::mouseClick(mButton, Qt::LeftButton);
        QVERIFY(done);
    }

    std::unique_ptr<EditorFixture> mFixture;
    ConfItem *mItem = nullptr;
    ConfDefWidgetQFont *mEditor = nullptr;
    QPushButton *mButton = nullptr;
    QFont mValue;
};

void tst_ConfDefWidgetQFont::buttonShowsFamilyAndSize()
{
    edit();
    QCOMPARE(mButton->text(), QString("Sans, 16"));
    QCOMPARE(changedMark(mEditor), QString("0"));
    QCOMPARE(mEditor->layout()->contentsMargins(), QMargins());
    QCOMPARE(mEditor->layout()->alignment(), Qt::Alignment(Qt::AlignLeft));
    QCOMPARE(mEditor->layout()->indexOf(mButton), 0);
}

void tst_ConfDefWidgetQFont::fontInPointsShowsNoPixels()
{
    mValue = QFont("Sans", 12);
    edit();
    QCOMPARE(mButton->text(), QString("Sans, -1"));
}

void tst_ConfDefWidgetQFont::dialogShowsPixelsAsPoints()
{
    edit();
    QString title;
    qreal points = 0;
    clickAndThen([&](QFontDialog *dialog) {
        title = dialog->windowTitle();
        points = dialog->currentFont().pointSizeF();
        dialog->reject();
    });
    QCOMPARE(title, QString("Select font"));
    QCOMPARE(points, 16.0);
}

void tst_ConfDefWidgetQFont::chosenSizeIsStoredInPixels()
{
    edit();
    clickAndThen([](QFontDialog *dialog) {
        QFont font = dialog->currentFont();
        font.setPointSizeF(24);
        dialog->setCurrentFont(font);
        dialog->accept();
    });
    QCOMPARE(mValue.pixelSize(), 24);
    QVERIFY(mButton->text().endsWith(", 24"));
    QCOMPARE(changedMark(mEditor), QString("1"));
}

void tst_ConfDefWidgetQFont::unchangedFontWritesNothing()
{
    edit();
    mEditor->setFont(mValue);
    QVERIFY(!mFixture->store()->mChanged);
}

void tst_ConfDefWidgetQFont::cancelledDialogWritesNothing_data()
{
    QTest::addColumn<QFont>("font");
    QFont inPixels("Sans");
    inPixels.setPixelSize(16);
    QTest::newRow("size in pixels") << inPixels;
    QTest::newRow("size in points") << QFont("Sans", 12);
}

void tst_ConfDefWidgetQFont::cancelledDialogWritesNothing()
{
    QFETCH(QFont, font);
    mValue = font;
    edit();
    const LogCapture log;
    clickAndThen([](QFontDialog *dialog) { dialog->reject(); });
    QVERIFY(!mFixture->store()->mChanged);
    QCOMPARE(mValue, font);
    QCOMPARE(log.texts(QtWarningMsg).filter("QFont::"), QStringList());
}

void tst_ConfDefWidgetQFont::editorMayBeDeletedWhileTheDialogIsOpen()
{
    edit();
    clickAndThen([this](QFontDialog *) { delete mEditor; });
    QVERIFY(!mItem->editor);
    QVERIFY(!mFixture->store()->mChanged);
}

void tst_ConfDefWidgetQFont::callbackMayDeleteTheEditor()
{
    edit();
    mItem->setConfChangedCallback([this](const QString &, const ConfValue *) { delete mEditor; });
    QFont font("Serif");
    font.setPixelSize(30);
    mEditor->setFont(font);
    QVERIFY(!mItem->editor);
    QCOMPARE(mValue.pixelSize(), 30);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfDefWidgetQFont>(argc, argv);
}

#include "tst_ConfDefWidgetQFont.moc"
