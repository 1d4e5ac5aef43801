#include "support/EditorFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfDefWidgetQColor.h>

#include <OrvUtils/ColorSelectButton.h>

#include <QColorDialog>

using MtConf::ConfDefWidgetQColor;
using MtConf::ConfItem;

class tst_ConfDefWidgetQColor : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<EditorFixture>();
        mValue = Qt::red;
        mItem = mFixture->manager.addConfQColor("Frame", &mValue, "Capture", "Frame");
        mEditor = mFixture->edit<ConfDefWidgetQColor>(mItem);
        mButton = mEditor->findChild<ColorSelectButton *>();
        QVERIFY(mFixture->show());
    }
    void cleanup() { mFixture.reset(); }

    void buttonShowsTheStoredColour();
    void pickedColourIsWrittenAndMarked();
    void sameColourWritesNothing();
    void invalidColourIsShownAndStoredToo();
    void cancelledDialogWritesNothing();
    void editorMayBeDeletedWhileTheDialogIsOpen();
    void callbackMayDeleteTheEditor();

private:
    /// Clicks the button and calls `action` with the colour dialog when it is open.
    template<class Action> void clickAndThen(Action action)
    {
        QTimer::singleShot(0, this, [this, action] { whenDialogIsOpen(action); });
        QTest::mouseClick(mButton, Qt::LeftButton);
    }
    template<class Action> void whenDialogIsOpen(Action action)
    {
        QColorDialog *dialog = nullptr;
        QTRY_VERIFY((dialog = mFixture->parent.findChild<QColorDialog *>()));
        action(dialog);
    }

    std::unique_ptr<EditorFixture> mFixture;
    ConfItem *mItem = nullptr;
    ConfDefWidgetQColor *mEditor = nullptr;
    ColorSelectButton *mButton = nullptr;
    QColor mValue;
};

void tst_ConfDefWidgetQColor::buttonShowsTheStoredColour()
{
    QCOMPARE(mButton->color(), QColor(Qt::red));
    QCOMPARE(mButton->property("class"), QVariant("ColorSelectButton"));
    QCOMPARE(mEditor->layout()->alignment(), Qt::Alignment(Qt::AlignLeft));
    QCOMPARE(mEditor->layout()->contentsMargins(), QMargins());
}

void tst_ConfDefWidgetQColor::pickedColourIsWrittenAndMarked()
{
    clickAndThen([](QColorDialog *dialog) {
        dialog->setCurrentColor(QColor(1, 2, 3, 128));
        dialog->accept();
    });
    QTRY_COMPARE(mValue, QColor(1, 2, 3, 128));
    QCOMPARE(mButton->color(), QColor(1, 2, 3, 128));
    QCOMPARE(changedMark(mEditor), QString("1"));
}

void tst_ConfDefWidgetQColor::sameColourWritesNothing()
{
    mEditor->setColor(Qt::red);
    QVERIFY(!mFixture->store()->mChanged);
}

void tst_ConfDefWidgetQColor::invalidColourIsShownAndStoredToo()
{
    mEditor->setColor(QColor());
    QVERIFY(!mValue.isValid());
    QVERIFY(!mButton->color().isValid());
    QCOMPARE(changedMark(mEditor), QString("1"));
}

void tst_ConfDefWidgetQColor::cancelledDialogWritesNothing()
{
    clickAndThen([](QColorDialog *dialog) {
        dialog->setCurrentColor(Qt::blue);
        dialog->reject();
    });
    QTRY_VERIFY(!mFixture->parent.findChild<QColorDialog *>());
    QCOMPARE(mValue, QColor(Qt::red));
    QVERIFY(!mFixture->store()->mChanged);
}

void tst_ConfDefWidgetQColor::editorMayBeDeletedWhileTheDialogIsOpen()
{
    clickAndThen([this](QColorDialog *) { delete mEditor; });
    QTRY_VERIFY(!mItem->editor);
    QTRY_VERIFY(!mFixture->parent.findChild<QColorDialog *>());
    QCOMPARE(mValue, QColor(Qt::red));
}

void tst_ConfDefWidgetQColor::callbackMayDeleteTheEditor()
{
    mItem->setConfChangedCallback([this](const QString &, const ConfValue *) { delete mEditor; });
    mEditor->setColor(Qt::green);
    QVERIFY(!mItem->editor);
    QCOMPARE(mValue, QColor(Qt::green));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfDefWidgetQColor>(argc, argv);
}

#include "tst_ConfDefWidgetQColor.moc"
