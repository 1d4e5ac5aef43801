#include <OrvUtils/QMsgeBox.h>

#include "support/TestMain.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPointer>
#include <QTimer>

class tst_QMsgeBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void blocksTheParentsWindow();
    void blocksTheApplicationWithoutAParent();
    void showsItsTextAsPlainText();
    void closesOnOk_data();
    void closesOnOk();
    void parentMayBeDeletedWhileTheBoxIsOpen();
};

void tst_QMsgeBox::blocksTheParentsWindow()
{
    QWidget window;
    const QMsgeBox box(&window);
    QCOMPARE(box.windowModality(), Qt::WindowModal);
    QCOMPARE(box.parentWidget(), &window);
}

void tst_QMsgeBox::blocksTheApplicationWithoutAParent()
{
    const QMsgeBox box(nullptr);
    QCOMPARE(box.windowModality(), Qt::ApplicationModal);
}

void tst_QMsgeBox::showsItsTextAsPlainText()
{
    QMsgeBox box(nullptr);
    box.setText(QStringLiteral("<b>5</b> is too simple"));
    const auto *const label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    QVERIFY(label);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
}

void tst_QMsgeBox::closesOnOk_data()
{
    QTest::addColumn<bool>("hasParent");
    QTest::newRow("withParent") << true;
    QTest::newRow("withoutParent") << false;
}

void tst_QMsgeBox::closesOnOk()
{
    QFETCH(bool, hasParent);
    QWidget window;
    window.show();
    auto *const box = new QMsgeBox(hasParent ? &window : nullptr);
    box->setText(QStringLiteral("Too simple"));
    box->setIcon(QMessageBox::Warning);
    QTimer::singleShot(0, box,
                       [box] { QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton); });
    QCOMPARE(box->exec(), int(QMessageBox::Ok));
    delete box;
}

void tst_QMsgeBox::parentMayBeDeletedWhileTheBoxIsOpen()
{
    auto *const window = new QWidget;
    window->show();
    const QPointer<QMsgeBox> box = new QMsgeBox(window);
    QTimer::singleShot(0, window, [window] { delete window; });
    box->exec();
    QVERIFY(!box);
}

int main(int argc, char **argv)
{
    return runTest<tst_QMsgeBox>(argc, argv);
}

#include "tst_QMsgeBox.moc"
