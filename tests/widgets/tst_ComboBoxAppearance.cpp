#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>
#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>
#include <OrvUtils/QThemeCtrl.h>

#include <QGroupBox>
#include <QListView>
#include <QSpinBox>
#include <QStyleOptionComboBox>
#include <QVBoxLayout>

#include <memory>

namespace {

const QString sText = QStringLiteral("HHH");

} // namespace

/// How combo boxes look with the built-in style sheets, next to the other fields of a page.
class tst_ComboBoxAppearance : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup()
    {
        mWindow.reset();
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void textsBeginAtTheSamePlace_data();
    void textsBeginAtTheSamePlace();
    void textOfCheckBoxesHasTheSizeOfTheClosedText_data() { textsBeginAtTheSamePlace_data(); }
    void textOfCheckBoxesHasTheSizeOfTheClosedText();
    void rowsHaveTheColoursOfThePanel_data() { textsBeginAtTheSamePlace_data(); }
    void rowsHaveTheColoursOfThePanel();
    void listThatIsCreatedBeforeTheSheetHasOneFrame();
    void longestTextFitsIntoTheMinimumWidth_data() { textsBeginAtTheSamePlace_data(); }
    void longestTextFitsIntoTheMinimumWidth();
    void multiSelectBoxHasTheFillOfOthers();
    void placeholderIsFainterThanText_data();
    void placeholderIsFainterThanText();
    void placeholderColourOfTheHostIsKept();

private:
    static void applySheets(QWidget *widget, QThemeCtrl::Theme theme, double scale)
    {
        QThemeCtrl::instance()->setTheme(theme);
        MtConf::setQssForWidget(widget, scale);
    }
    void applyRow();
    int textEdge(QWidget *field) const;
    static bool openList(QComboBox *box);

    std::unique_ptr<QWidget> mWindow;
    QSpinBox *mSpin = nullptr;
    QLineEdit *mLine = nullptr;
    ComboboxDisableWheel *mPlain = nullptr;
    MultiSelectComboBox *mMulti = nullptr;
};

void tst_ComboBoxAppearance::init()
{
    mWindow = std::make_unique<QWidget>();
    mWindow->setObjectName("centralwidget");
    mWindow->setAttribute(Qt::WA_StyledBackground);
    mSpin = new QSpinBox;
    mSpin->setPrefix(sText);
    mLine = new QLineEdit(sText);
    mPlain = new ComboboxDisableWheel;
    mPlain->setView(new QListView(mPlain));
    mPlain->addItems({sText, "H"});
    mMulti = new MultiSelectComboBox;
    mMulti->addItems({sText, "H"});
    mMulti->setItemChecked(0, true);
    auto *layout = new QVBoxLayout(mWindow.get());
    for (QWidget *field : {static_cast<QWidget *>(mSpin), static_cast<QWidget *>(mLine),
                           static_cast<QWidget *>(mPlain), static_cast<QWidget *>(mMulti)})
        layout->addWidget(field);
}

/// Applies the theme, scale and layout direction of the current row, and shows the window.
void tst_ComboBoxAppearance::applyRow()
{
    QFETCH(bool, dark);
    QFETCH(double, scale);
    QFETCH(bool, rightToLeft);
    QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    applySheets(mWindow.get(), dark ? QThemeCtrl::Theme::Dark : QThemeCtrl::Theme::Light, scale);
    mWindow->resize(qRound(300 * scale), qRound(200 * scale));
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(mWindow.get()));
}

/// Returns the distance in pixels between the first painted letter of `field` and the edge where
/// lines begin: the left edge, or the right edge in a right-to-left layout.
int tst_ComboBoxAppearance::textEdge(QWidget *field) const
{
    const QImage image = mWindow->grab(field->geometry()).toImage();
    const QColor ink = field->palette().color(QPalette::Text);
    const bool fromRight = field->isRightToLeft();
    const int row = image.height() / 2; // through the bars of every H
    for (int i = 0; i < image.width(); ++i) {
        const QColor color = image.pixelColor(fromRight ? image.width() - 1 - i : i, row);
        if (qAbs(color.lightness() - ink.lightness()) < 60)
            return i;
    }
    return -1;
}

bool tst_ComboBoxAppearance::openList(QComboBox *box)
{
    box->showPopup();
    return QTest::qWaitForWindowExposed(box->view()->window());
}

void tst_ComboBoxAppearance::textsBeginAtTheSamePlace_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<double>("scale"); // pixels per point
    QTest::addColumn<bool>("rightToLeft");
    for (const bool dark : {false, true}) {
        for (const bool doubled : {false, true}) {
            for (const bool rightToLeft : {false, true}) {
                QTest::addRow("%s, %s, %s", dark ? "dark" : "light", doubled ? "200%" : "100%",
                              rightToLeft ? "right to left" : "left to right")
                    << dark << (doubled ? 192 : 96) / 72.0 << rightToLeft;
            }
        }
    }
}

void tst_ComboBoxAppearance::textsBeginAtTheSamePlace()
{
    applyRow();
    const int edge = textEdge(mPlain);
    QVERIFY(edge > 8);
    const auto besideEdge = [edge, this](QWidget *field, int slack) {
        const int other = textEdge(field);
        if (qAbs(other - edge) > slack)
            qWarning("%s begins at %d, not %d", field->metaObject()->className(), other, edge);
        return qAbs(other - edge) <= slack;
    };
    if (mWindow->isRightToLeft()) {
        // A line edit reserves room for the cursor after its text; the other fields do not.
        QVERIFY(besideEdge(mMulti, 2));
        // No room on the right for the buttons, which are on the left.
        const QRect text = mSpin->findChild<QLineEdit *>()->geometry();
        QVERIFY(mSpin->rect().right() - text.right() <= edge);
        return;
    }
    for (QWidget *field : {static_cast<QWidget *>(mMulti), static_cast<QWidget *>(mSpin),
                           static_cast<QWidget *>(mLine)})
        QVERIFY(besideEdge(field, 1));
}

void tst_ComboBoxAppearance::textOfCheckBoxesHasTheSizeOfTheClosedText()
{
    auto *group = new QGroupBox(mWindow.get());
    group->setObjectName("ConfigGroupBox");
    auto *groupLayout = new QVBoxLayout(group);
    auto *inGroup = new MultiSelectComboBox;
    inGroup->addItems({sText, "H"});
    groupLayout->addWidget(inGroup);
    group->setProperty("NoGroupBox", "1");
    mWindow->layout()->addWidget(group);
    applyRow();
    int height = 0;
    for (MultiSelectComboBox *box : {mMulti, inGroup}) {
        QVERIFY(openList(box));
        const QWidget *row = box->view()->indexWidget(box->model()->index(0, 0));
        QCOMPARE(row->font().pointSize(), 14);
        QCOMPARE(box->lineEdit()->font().pointSize(), 14);
        if (height == 0)
            height = row->height();
        // The sheet makes check boxes of a page without panels higher, but not those of a list.
        QCOMPARE(row->height(), height);
        box->view()->window()->hide();
    }
}

void tst_ComboBoxAppearance::rowsHaveTheColoursOfThePanel()
{
    applyRow();
    const QThemeCtrl *theme = QThemeCtrl::instance();
    const QColor panel = theme->color("ColorBg1");
    for (QComboBox *box : {static_cast<QComboBox *>(mPlain), static_cast<QComboBox *>(mMulti)}) {
        QVERIFY(openList(box));
        box->view()->setCurrentIndex(box->model()->index(0, 0));
        const QImage list = box->view()->window()->grab().toImage();
        // The middle column has only the colours of the frame, the current row and the other row.
        const QColor chosen = theme->color(box == mPlain ? "ColorMain" : "ColorBg2");
        const QList<QColor> allowed{theme->color("ColorBg3Border"), chosen, panel};
        for (int y = 0; y < list.height(); ++y) {
            const QColor color = list.pixelColor(list.width() / 2, y);
            QVERIFY2(allowed.contains(color),
                     qPrintable(QString("%1 at %2").arg(color.name()).arg(y)));
        }
        box->view()->window()->hide();
    }
}

void tst_ComboBoxAppearance::listThatIsCreatedBeforeTheSheetHasOneFrame()
{
    applySheets(mWindow.get(), QThemeCtrl::Theme::Light, 1);
    mWindow->show();
    auto *box = new MultiSelectComboBox(mWindow.get());
    box->addItems({sText, "H"});
    box->show();
    QVERIFY(openList(box));
    const QWidget *popup = box->view()->window();
    QCOMPARE(box->view()->geometry(), popup->rect());
}

void tst_ComboBoxAppearance::longestTextFitsIntoTheMinimumWidth()
{
    applyRow();
    const auto room = [](QComboBox *box) {
        QStyleOptionComboBox option;
        option.initFrom(box);
        option.rect.setSize(box->minimumSizeHint());
        option.editable = box->isEditable();
        return box->style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box)
            .width();
    };
    QVERIFY(room(mPlain) >= mPlain->fontMetrics().horizontalAdvance(sText));
    QVERIFY(room(mMulti) >= mMulti->fontMetrics().horizontalAdvance(sText));
}

void tst_ComboBoxAppearance::multiSelectBoxHasTheFillOfOthers()
{
    for (const auto theme : {QThemeCtrl::Theme::Light, QThemeCtrl::Theme::Dark}) {
        applySheets(mWindow.get(), theme, 1);
        const QPoint beforeTheText(4, 12);
        QCOMPARE(mMulti->grab().toImage().pixelColor(beforeTheText),
                 mPlain->grab().toImage().pixelColor(beforeTheText));
    }
}

void tst_ComboBoxAppearance::placeholderIsFainterThanText_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::newRow("enabled") << true;
    QTest::newRow("disabled") << false;
}

void tst_ComboBoxAppearance::placeholderIsFainterThanText()
{
    QFETCH(bool, enabled);
    auto *keys = new KeySequenceEdit(QKeySequence(), mWindow.get());
    mWindow->setEnabled(enabled);
    // Each theme replaces the colours of the one before.
    for (const auto theme :
         {QThemeCtrl::Theme::Light, QThemeCtrl::Theme::Dark, QThemeCtrl::Theme::Light}) {
        applySheets(mWindow.get(), theme, 1);
        mWindow->show();
        const QThemeCtrl *controller = QThemeCtrl::instance();
        const QColor text = controller->color(enabled ? "ColorFg0" : "ColorDisable");
        for (const QLineEdit *edit : {static_cast<QLineEdit *>(keys), mMulti->lineEdit()}) {
            QCOMPARE(edit->palette().color(QPalette::Text), text);
            const QColor placeholder = edit->palette().color(QPalette::PlaceholderText);
            QCOMPARE(placeholder.rgb(), text.rgb());
            QCOMPARE(placeholder.alpha(), 128);
        }
    }
}

void tst_ComboBoxAppearance::placeholderColourOfTheHostIsKept()
{
    QPalette palette = mMulti->lineEdit()->palette();
    palette.setColor(QPalette::PlaceholderText, Qt::red);
    mMulti->lineEdit()->setPalette(palette);
    QCOMPARE(mMulti->lineEdit()->palette().color(QPalette::PlaceholderText), QColor(Qt::red));
}

int main(int argc, char **argv)
{
    return runTest<tst_ComboBoxAppearance>(argc, argv);
}

#include "tst_ComboBoxAppearance.moc"
