#include "MaltoConfiguration/widgets/Captions_p.h"
#include "support/TestMain.h"

using MtConf::CaptionCheckBox;
using MtConf::CaptionLabel;
using MtConf::WrappedLabel;

/// The captions of rows, whose texts may have several lines.
class tst_Captions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void heightIsThatOfALabel_data();
    void heightIsThatOfALabel();
    void heightFollowsTheLabel();
    void sizeHintFollowsTheText();
    void sizeHintHasRoomForBoldText();
    void leastWidthIsThatOfTheLongestWord();
    void checkBoxOfAFixedSizeHasOneHeight();

private:
    /// Returns the widths at which `label` is not as high as a plain label with the same look.
    static QList<int> differingWidths(const WrappedLabel &label)
    {
        QLabel plain(label.text());
        plain.setFont(label.font());
        plain.setContentsMargins(label.contentsMargins());
        plain.setWordWrap(true);
        QList<int> differing;
        // From both ends, because the label remembers what it has measured.
        for (int i = 0; i < 300; ++i) {
            for (const int width : {2 * i, 600 - 2 * i}) {
                if (label.heightForWidth(width) != plain.heightForWidth(width))
                    differing.append(width);
            }
        }
        return differing;
    }
    static QString text()
    {
        return QStringLiteral("The longest of all captions of this page by far");
    }
};

void tst_Captions::heightIsThatOfALabel_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("one word") << "Word";
    QTest::newRow("words") << text();
    QTest::newRow("lines of its own") << "First line\nSecond line, which is longer\n";
    QTest::newRow("rich text") << "<b>Bold</b> and <i>italic</i> words of a caption";
    QTest::newRow("without spaces") << QString::fromUtf8("窗口边框的宽度窗口边框的宽度");
    QTest::newRow("from right to left") << QString::fromUtf8("عرض حدود النافذة الملتقطة");
}

void tst_Captions::heightIsThatOfALabel()
{
    QFETCH(const QString, text);
    const WrappedLabel label(text, nullptr);
    QCOMPARE(differingWidths(label), QList<int>());
}

void tst_Captions::heightFollowsTheLabel()
{
    WrappedLabel label(text(), nullptr);
    QCOMPARE(differingWidths(label), QList<int>());
    label.setText(text() + text());
    QCOMPARE(differingWidths(label), QList<int>());
    QFont font = label.font();
    font.setPointSize(2 * font.pointSize());
    label.setFont(font);
    QCOMPARE(differingWidths(label), QList<int>());
    label.setText(QStringLiteral("Short"));
    QCOMPARE(differingWidths(label), QList<int>());
    label.setContentsMargins(20, 30, 40, 50);
    QCOMPARE(differingWidths(label), QList<int>());
}

void tst_Captions::sizeHintFollowsTheText()
{
    CaptionLabel label(text(), nullptr);
    CaptionCheckBox box(text(), nullptr);
    const QSize ofLabel = label.sizeHint();
    const QSize ofBox = box.sizeHint();
    label.setText(text() + text());
    box.setText(text() + text());
    QVERIFY(label.sizeHint().width() > ofLabel.width());
    QVERIFY(box.sizeHint().width() > ofBox.width());
    QCOMPARE(label.sizeHint().height(), ofLabel.height());
    label.setText(text());
    box.setText(text());
    QCOMPARE(label.sizeHint(), ofLabel);
    QCOMPARE(box.sizeHint(), ofBox);
}

void tst_Captions::sizeHintHasRoomForBoldText()
{
    CaptionLabel label(text(), nullptr);
    CaptionCheckBox box(text(), nullptr);
    const QSize ofLabel = label.sizeHint();
    const QSize ofBox = box.sizeHint();
    QFont bold = label.font();
    bold.setBold(true);
    QVERIFY(ofLabel.width() >= QFontMetrics(bold).horizontalAdvance(text()));
    label.setFont(bold);
    bold = box.font();
    bold.setBold(true);
    box.setFont(bold);
    QCOMPARE(label.sizeHint(), ofLabel);
    QCOMPARE(box.sizeHint(), ofBox);
}

void tst_Captions::leastWidthIsThatOfTheLongestWord()
{
    CaptionLabel label(QStringLiteral("a longest b"), nullptr);
    CaptionCheckBox box(QStringLiteral("a longest b"), nullptr);
    const int ofLabel = label.minimumSizeHint().width();
    const int ofBox = box.minimumSizeHint().width();
    QVERIFY(ofLabel < label.sizeHint().width());
    QVERIFY(ofBox < box.sizeHint().width());
    label.setText(QStringLiteral("a longest b c d e"));
    box.setText(QStringLiteral("a longest b c d e"));
    QCOMPARE(label.minimumSizeHint().width(), ofLabel);
    QCOMPARE(box.minimumSizeHint().width(), ofBox);
    QFont bold = label.font();
    bold.setBold(true);
    QVERIFY(ofLabel >= QFontMetrics(bold).horizontalAdvance(QStringLiteral("longest")));
}

void tst_Captions::checkBoxOfAFixedSizeHasOneHeight()
{
    CaptionCheckBox box(text(), nullptr);
    QVERIFY(box.hasHeightForWidth());
    QVERIFY(box.heightForWidth(100) > box.heightForWidth(1000));
    box.setFixedSize(38, 22);
    QVERIFY(!box.hasHeightForWidth());
}

int main(int argc, char **argv)
{
    return runTest<tst_Captions>(argc, argv);
}

#include "tst_Captions.moc"
