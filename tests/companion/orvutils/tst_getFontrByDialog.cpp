#include <OrvUtils/getFontrByDialog.h>

#include "support/TestMain.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace {

/// Calls `act` with the font dialog when it is open.
void whenOpen(const std::function<void(QFontDialog *)> &act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto *const dialog = qobject_cast<QFontDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        act(dialog);
    });
}

void press(QFontDialog *dialog, QDialogButtonBox::StandardButton button)
{
    auto *const box = dialog->findChild<QDialogButtonBox *>();
    QVERIFY(box);
    QTest::mouseClick(box->button(button), Qt::LeftButton);
}

/// Types a size into the dialog's size field, which is the line edit that contains a number.
void typeSize(QFontDialog *dialog, const QString &size)
{
    const QList<QLineEdit *> fields = dialog->findChildren<QLineEdit *>();
    for (QLineEdit *field : fields) {
        bool isNumber = false;
        field->text().toInt(&isNumber);
        if (!isNumber)
            continue;
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, size);
        return;
    }
    QFAIL("the dialog has no size field");
}

QFont someFont()
{
    QFont font(QStringLiteral("DejaVu Serif"));
    font.setPointSizeF(17);
    return font;
}

} // namespace

class tst_getFontrByDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cancelledDialogReturnsTheInitialFont();
    void unchangedFontIsReturnedExactly_data();
    void unchangedFontIsReturnedExactly();
    void chosenSizeIsReturnedInPoints();
    void regularStyleIsOfferedForARegularFont();
    void dialogHasTitleAndParent();
    void parentMayBeDeletedWhileTheDialogIsOpen();
    void dialogIsDeletedAfterwards();
};

void tst_getFontrByDialog::cancelledDialogReturnsTheInitialFont()
{
    whenOpen([](QFontDialog *dialog) {
        typeSize(dialog, QStringLiteral("40"));
        press(dialog, QDialogButtonBox::Cancel);
    });
    QCOMPARE(getFontrByDialog(someFont(), nullptr, QStringLiteral("Select font")), someFont());
}

void tst_getFontrByDialog::unchangedFontIsReturnedExactly_data()
{
    QTest::addColumn<QFont>("font");
    QFont halves = someFont();
    halves.setPointSizeF(17.5);
    QFont pixels = someFont();
    pixels.setPixelSize(31);
    QFont bold = someFont();
    bold.setBold(true);
    bold.setUnderline(true);
    QTest::newRow("wholePoints") << someFont();
    QTest::newRow("halfPoints") << halves;
    QTest::newRow("pixels") << pixels;
    QTest::newRow("boldUnderlined") << bold;
    QTest::newRow("familyThatIsNotInstalled") << QFont(QStringLiteral("No Such Family"), 14);
    QTest::newRow("defaultFont") << QFont();
}

void tst_getFontrByDialog::unchangedFontIsReturnedExactly()
{
    QFETCH(QFont, font);
    whenOpen([](QFontDialog *dialog) { press(dialog, QDialogButtonBox::Ok); });
    QCOMPARE(getFontrByDialog(font, nullptr, QString()), font);
}

void tst_getFontrByDialog::chosenSizeIsReturnedInPoints()
{
    QWidget window;
    window.setStyleSheet(QStringLiteral("* { font-size: 33px }"));
    whenOpen([](QFontDialog *dialog) {
        typeSize(dialog, QStringLiteral("21"));
        press(dialog, QDialogButtonBox::Ok);
    });
    const QFont chosen = getFontrByDialog(someFont(), &window, QStringLiteral("Select font"));
    QCOMPARE(chosen.pointSizeF(), 21.0);
    QCOMPARE(chosen.family(), someFont().family());
}

void tst_getFontrByDialog::regularStyleIsOfferedForARegularFont()
{
    if (!QFontDatabase().families().contains(QStringLiteral("DejaVu Serif")))
        QSKIP("needs DejaVu Serif, whose regular style is called Book");
    whenOpen([](QFontDialog *dialog) {
        typeSize(dialog, QStringLiteral("21"));
        press(dialog, QDialogButtonBox::Ok);
    });
    const QFont chosen = getFontrByDialog(someFont(), nullptr, QString());
    QVERIFY(!chosen.italic());
    QVERIFY(!chosen.bold());
    QCOMPARE(chosen.styleName(), QStringLiteral("Book"));
}

void tst_getFontrByDialog::dialogHasTitleAndParent()
{
    QWidget window;
    QString title;
    const QWidget *parent = nullptr;
    whenOpen([&](QFontDialog *dialog) {
        title = dialog->windowTitle();
        parent = dialog->parentWidget();
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    getFontrByDialog(someFont(), &window, QStringLiteral("Select font"));
    QCOMPARE(title, QStringLiteral("Select font"));
    QCOMPARE(parent, &window);
}

void tst_getFontrByDialog::parentMayBeDeletedWhileTheDialogIsOpen()
{
    auto *const window = new QWidget;
    window->show();
    whenOpen([window](QFontDialog *) { delete window; });
    QCOMPARE(getFontrByDialog(someFont(), window, QStringLiteral("Select font")), someFont());
}

void tst_getFontrByDialog::dialogIsDeletedAfterwards()
{
    QWidget window;
    whenOpen([](QFontDialog *dialog) { press(dialog, QDialogButtonBox::Ok); });
    getFontrByDialog(someFont(), &window, QString());
    QVERIFY(window.findChildren<QFontDialog *>().isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<tst_getFontrByDialog>(argc, argv);
}

#include "tst_getFontrByDialog.moc"
