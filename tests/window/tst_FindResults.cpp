#include "FindFixture.h"
#include "support/TestMain.h"

#include <OrvUtils/QThemeCtrl.h>

#include <QPushButton>

#include <algorithm>

using MtConf::ConfItem;

/// The results of Find: their rows, marks and order, and the way to the page of a result.
class tst_FindResults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { mFixture.reset(); }

    void typingShowsRowsOfSeveralPages();
    void enterOpensThePageOfTheFirstHit();
    void enterOpensThePageOfTheFocusedRow();
    void enterThatConfirmsAValueStays();
    void doubleClickOpensThePageOfARow();
    void doubleClickOnAFlagStays_data();
    void doubleClickOnAFlagStays();
    void openedRowIsScrolledToAndMarked_data();
    void openedRowIsScrolledToAndMarked();
    void markCoversTheNotesOfARow();
    void arrowKeysLeadToTheResults();
    void nothingFoundIsSaid();
    void hitsAreMarked_data();
    void hitsAreMarked();
    void editorsOfResultsAreLive();
    void sameResultsKeepTheirRows();
    void fewRowsAreBuiltAtATime();
    void customPageIsOpenedAtItsText();
    void changedSettingsAreListed();
    void classDeclaredLaterIsNotFound();
    void hostCodeMayDeleteTheWindow_data();
    void hostCodeMayDeleteTheWindow();
    void modernLookHasATitleAndMarksFlags();

private:
    /// Declares switches named "Switch0" and so on.
    void addSwitches(int count)
    {
        for (int i = 0; i < count; ++i) {
            mNames.push_back(QString("Switch%1").arg(i).toUtf8());
            mFixture->addBool(mNames.back().constData(), "", "Many");
        }
    }

    std::vector<QByteArray> mNames; // labels outlive their items
    std::unique_ptr<FindFixture> mFixture;
    int mNumber = 5;
    QString mText;
};

void tst_FindResults::init()
{
    mFixture = std::make_unique<FindFixture>();
    mText.clear();
}

void tst_FindResults::typingShowsRowsOfSeveralPages()
{
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("window"));
    QCOMPARE(mFixture->shownKeys(),
             (QStringList{"Capture.Capture a window.Window", "System.Hotkeys work"}));
    QCOMPARE(mFixture->captions(),
             (QStringList{QStringLiteral(u"Capture › Capture a window"), "System"}));
    QCOMPARE(mFixture->hint()->text(), QString("2 of 4"));
    QVERIFY(!mFixture->restorePageButton()->isVisible());
    QCOMPARE(mFixture->window()->currentClass(), QString("General"));
    QVERIFY(mFixture->field()->hasFocus());
}

void tst_FindResults::enterOpensThePageOfTheFirstHit()
{
    QVERIFY(mFixture->openActive());
    mFixture->field()->setFocus();
    QTest::keyClicks(mFixture->field(), "hotk");
    QTest::keyClick(mFixture->field(), Qt::Key_Return); // before the results are shown
    QCOMPARE(mFixture->window()->currentClass(), QString("System"));
    QCOMPARE(mFixture->field()->text(), QString());
    QCOMPARE(mFixture->shownClasses().size(), 3);
    const ConfItem *item = mFixture->hotkeysItem();
    QTRY_VERIFY(mFixture->checkBox(item)->hasFocus());
    // Nothing found.
    QVERIFY(mFixture->find("xyz"));
    QTest::keyClick(mFixture->field(), Qt::Key_Return);
    QCOMPARE(mFixture->field()->text(), QString("xyz"));
}

void tst_FindResults::enterOpensThePageOfTheFocusedRow()
{
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("window"));
    ConfItem *item = mFixture->hotkeysItem();
    mFixture->checkBox(item)->setFocus();
    QTest::keyClick(mFixture->checkBox(item), Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(mFixture->window()->currentClass(), QString("System"));
    QTRY_VERIFY(mFixture->checkBox(item)->hasFocus());
    QVERIFY(!mFixture->hasResults());
}

void tst_FindResults::enterThatConfirmsAValueStays()
{
    ConfItem *item = mFixture->manager->addConfText("Prefix", &mText, "System", "Prefix");
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("prefix"));
    auto *line = item->editor->findChild<QLineEdit *>();
    line->setFocus();
    QTest::keyClicks(line, "abc");
    QTest::keyClick(line, Qt::Key_Return);
    QCOMPARE(mText, QString("abc"));
    QVERIFY(mFixture->hasResults());
}

void tst_FindResults::doubleClickOpensThePageOfARow()
{
    ConfItem *item = mFixture->manager->addConfInt32("Number", &mNumber, "System", "Number");
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("number"));
    QTest::mouseDClick(item->editor->label(), Qt::LeftButton);
    QCOMPARE(mFixture->window()->currentClass(), QString("System"));
    QTRY_VERIFY(item->editor->isAncestorOf(mFixture->window()->focusWidget()));
}

void tst_FindResults::doubleClickOnAFlagStays_data()
{
    QTest::addColumn<quint32>("look");
    QTest::newRow("classic") << quint32(MtConf::ClassicLook);
    QTest::newRow("modern") << quint32(MtConf::ModernLook);
}

void tst_FindResults::doubleClickOnAFlagStays()
{
    QFETCH(const quint32, look);
    mFixture->manager->windowLook = MtConf::WindowLook(look);
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("hotkeys"));
    QWidget *caption = mFixture->hotkeysItem()->editor->label();
    if (look == MtConf::ModernLook) {
        const QList<QLabel *> labels = mFixture->window()->findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->text() == "Hotkeys work")
                caption = label;
        }
        QVERIFY(qobject_cast<QLabel *>(caption));
    }
    QTest::mouseDClick(caption, Qt::LeftButton, {}, QPoint(5, caption->height() / 2));
    QCoreApplication::processEvents();
    QVERIFY(mFixture->hasResults());
    QCOMPARE(mFixture->window()->currentClass(), QString("General"));
}

void tst_FindResults::openedRowIsScrolledToAndMarked_data()
{
    QTest::addColumn<bool>("isEnabled");
    QTest::newRow("row that takes the focus") << true;
    QTest::newRow("disabled row") << false;
}

void tst_FindResults::openedRowIsScrolledToAndMarked()
{
    QFETCH(bool, isEnabled);
    constexpr int sMany = 60;
    addSwitches(sMany);
    std::vector<int> numbers(1, 3);
    ConfItem *last = mFixture->manager->addConfInt32("The last one", &numbers[0], "Many", "Last");
    last->dependsOn(mFixture->tipsItem(), isEnabled);
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("last one"));
    QTest::keyClick(mFixture->field(), Qt::Key_Return);
    auto *area = mFixture->child<QScrollArea>("scrollArea");
    const auto isInView = [&] {
        const QRect rect(last->editor->mapTo(area->viewport(), QPoint()), last->editor->size());
        return area->viewport()->rect().contains(rect);
    };
    QTRY_VERIFY(mFixture->child<QWidget>("FindRowMark"));
    QCoreApplication::processEvents();
    QVERIFY(isInView());
    auto *mark = mFixture->child<QWidget>("FindRowMark");
    QVERIFY(mark->isVisible());
    const QRect marked(mark->mapToGlobal(QPoint()), mark->size());
    for (const QWidget *part : {static_cast<QWidget *>(last->editor), last->editor->label()})
        QVERIFY(marked.contains(QRect(part->mapToGlobal(QPoint()), part->size())));
    const QPoint edge = mark->mapTo(mFixture->window(), QPoint(mark->width() / 2, 2));
    const QColor hit = QThemeCtrl::instance()->color(QStringLiteral("ModernHit"));
    QCOMPARE(mFixture->window()->grab().toImage().pixelColor(edge).name(), hit.name());
    QTest::keyClick(mFixture->window()->focusWidget(), Qt::Key_Shift);
    QVERIFY(!mark->isVisible());
    QTRY_VERIFY(!mFixture->child<QWidget>("FindRowMark"));
    clearStore(); // before the numbers are gone
}

void tst_FindResults::markCoversTheNotesOfARow()
{
    mFixture->manager->windowLook = MtConf::ModernLook;
    mFixture->manager->windowFeatures |= MtConf::DetailsFeature;
    static const QByteArray sHelp = QByteArray("Long help ").repeated(60);
    mFixture->hotkeysItem()->setHelp(sHelp.constData());
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("hotkeys work"));
    QTest::keyClick(mFixture->field(), Qt::Key_Return);
    QTRY_VERIFY(mFixture->child<QWidget>("FindRowMark"));
    QCoreApplication::processEvents();
    const auto *mark = mFixture->child<QWidget>("FindRowMark");
    const QWidget *row = mark->parentWidget();
    const QList<QLabel *> texts = row->findChildren<QLabel *>();
    QVERIFY(texts.size() >= 2);
    for (const QLabel *text : texts) {
        const QRect rect(text->mapTo(row, QPoint()), text->size());
        QVERIFY2(!text->isVisible() || mark->geometry().contains(rect), qPrintable(text->text()));
    }
}

void tst_FindResults::arrowKeysLeadToTheResults()
{
    QVERIFY(mFixture->openActive());
    mFixture->field()->setFocus();
    QTest::keyClick(mFixture->field(), Qt::Key_Down); // no results
    QVERIFY(mFixture->field()->hasFocus());
    QTest::keyClicks(mFixture->field(), "window");
    QTest::keyClick(mFixture->field(), Qt::Key_Down); // before they are shown
    QTRY_VERIFY(mFixture->hasResults());
    const auto box = [this](const char *major, const char *name, const char *sub) {
        return mFixture->checkBox(mFixture->manager->getItemByName(major, name, sub));
    };
    QTRY_VERIFY(box("Capture", "Capture a window", "Window")->hasFocus());
    mFixture->field()->setFocus();
    QTest::keyClick(mFixture->field(), Qt::Key_Up);
    QVERIFY(box("System", "Hotkeys work", "")->hasFocus());
}

void tst_FindResults::nothingFoundIsSaid()
{
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("<b>xyz"));
    auto *label = mFixture->child<QLabel>("FindNothing");
    QVERIFY(label && label->isVisible());
    QCOMPARE(label->text(), QStringLiteral(u"No setting matches “<b>xyz”"));
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(mFixture->shownClasses(), QStringList());
    QCOMPARE(mFixture->hint()->text(), QString("0 of 4"));
    QTest::keyClicks(mFixture->field(), "a");
    QTRY_VERIFY(mFixture->child<QLabel>("FindNothing")->text().contains("xyza"));
}

void tst_FindResults::hitsAreMarked_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<QString>("query");
    QTest::addColumn<bool>("isMarked");
    for (const bool isDark : {false, true}) {
        const QByteArray theme = isDark ? ", dark" : ", light";
        QTest::newRow("in the caption" + theme) << isDark << "numb" << true;
        QTest::newRow("only in the key" + theme) << isDark << "System.N" << false;
    }
}

void tst_FindResults::hitsAreMarked()
{
    QFETCH(bool, isDark);
    QFETCH(QString, query);
    QFETCH(bool, isMarked);
    QThemeCtrl::instance()->setTheme(isDark ? QThemeCtrl::Theme::Dark : QThemeCtrl::Theme::Light);
    ConfItem *item = mFixture->manager->addConfInt32("Number", &mNumber, "System", "N");
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find(query));
    const QColor panel = QThemeCtrl::instance()->color(QStringLiteral("ColorBg1"));
    QColor hit = QThemeCtrl::instance()->color(QStringLiteral("ModernHit"));
    if (isDark) // the brighter one of each colour
        hit = QColor(qMax(hit.red(), panel.red()), qMax(hit.green(), panel.green()),
                     qMax(hit.blue(), panel.blue()));
    QWidget *caption = item->editor->label();
    const QImage image = mFixture->window()->grab().toImage();
    const QPoint corner = caption->mapTo(mFixture->window(), QPoint());
    int first = -1;
    int last = -1;
    const int y = corner.y() + caption->height() / 2;
    for (int x = corner.x(); x < corner.x() + caption->width(); ++x) {
        if (image.pixelColor(x, y).name() != hit.name())
            continue;
        first = first < 0 ? x - corner.x() : first;
        last = x - corner.x();
    }
    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Light);
    QCOMPARE(first >= 0, isMarked);
    if (!isMarked)
        return;
    const int width = caption->fontMetrics().horizontalAdvance("Numb");
    QVERIFY2(first <= 4, qPrintable(QString::number(first)));
    QVERIFY2(qAbs(last - width) <= 6, qPrintable(QString("%1 of %2").arg(last).arg(width)));
}

void tst_FindResults::editorsOfResultsAreLive()
{
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("@changed"));
    QCOMPARE(mFixture->shownKeys(), QStringList());
    QVERIFY(mFixture->find("tips"));
    const ConfItem *item = mFixture->tipsItem();
    const QPointer<QCheckBox> box = mFixture->checkBox(item);
    mFixture->clickBox(box);
    QVERIFY(!mFixture->store()->get<bool>("General.Show tips"));
    QVERIFY(mFixture->hasResults());
    QVERIFY(mFixture->find("@changed"));
    QCOMPARE(mFixture->shownKeys(), QStringList{"General.Show tips"});
    const QPointer<QCheckBox> changed = mFixture->checkBox(item);
    mFixture->clickBox(changed);
    QVERIFY(item->isDefaultValue());
    QTest::qWait(0);
    QCOMPARE(mFixture->checkBox(item), changed.data()); // the row stays
}

void tst_FindResults::sameResultsKeepTheirRows()
{
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("tip"));
    const ConfItem *item = mFixture->tipsItem();
    const QPointer<QWidget> editor = item->editor;
    QTest::keyClicks(mFixture->field(), "s");
    QTest::keyClick(mFixture->field(), Qt::Key_Down); // the results are shown
    QCOMPARE(item->editor, editor.data());
    mFixture->field()->setFocus();
    QTest::keyClicks(mFixture->field(), " capture");
    QTest::keyClick(mFixture->field(), Qt::Key_Down);
    QVERIFY(!editor);
}

void tst_FindResults::fewRowsAreBuiltAtATime()
{
    constexpr int sMany = 120;
    addSwitches(sMany);
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("switch"));
    QCOMPARE(mFixture->hint()->text(), QString("120 of 124"));
    QCOMPARE(mFixture->shownKeys().size(), 50);
    auto *more = mFixture->child<QPushButton>("FindMore");
    QCOMPARE(more->text(), QString("Show more (70)"));
    more->click();
    QTRY_COMPARE(mFixture->shownKeys().size(), 100);
    mFixture->child<QPushButton>("FindMore")->click();
    QTRY_COMPARE(mFixture->shownKeys().size(), 120);
    QTRY_VERIFY(!mFixture->child<QPushButton>("FindMore"));
}

void tst_FindResults::customPageIsOpenedAtItsText()
{
    mFixture->manager->setMajorWidget("Profiles",
                                      [](QWidget *parent) { return new QLabel(parent); });
    MtConf::MajorConfItem *page = mFixture->manager->getMajorConfItemByName("Profiles");
    page->searchTexts = [] { return QStringList{"Home & garden", "Work"}; };
    QStringList shown;
    page->showSearchText = [&](const QString &text) {
        shown << mFixture->window()->currentClass() + '/' + text;
    };
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("profiles"));
    const auto links = mFixture->window()->findChildren<QPushButton *>("FindLink");
    QStringList texts;
    for (const QPushButton *link : links)
        texts << link->text();
    QCOMPARE(texts, (QStringList{"Profiles", "Home && garden", "Work"}));
    QCOMPARE(mFixture->captions(), QStringList{"Profiles"});
    QTest::mouseClick(links.at(1), Qt::LeftButton);
    QCOMPARE(shown, QStringList{"Profiles/Home & garden"});
    QVERIFY(!mFixture->hasResults());

    QVERIFY(mFixture->find("work"));
    QTest::keyClick(mFixture->field(), Qt::Key_Up);
    QTest::keyClick(mFixture->window()->focusWidget(), Qt::Key_Return);
    QCOMPARE(shown.last(), QString("Profiles/Work"));
    QVERIFY(mFixture->find("profiles"));
    QTest::keyClick(mFixture->field(), Qt::Key_Return); // the page itself
    QCOMPARE(shown.size(), 2);
    QCOMPARE(mFixture->window()->currentClass(), QString("Profiles"));
}

void tst_FindResults::changedSettingsAreListed()
{
    mFixture->store()->set("System.Hotkeys work", false);
    QVERIFY(mFixture->openActive());
    QVERIFY(mFixture->find("@changed"));
    QCOMPARE(mFixture->shownKeys(), QStringList{"System.Hotkeys work"});
    QCOMPARE(mFixture->shownClasses(), QStringList{"System"});
    QCOMPARE(mFixture->hint()->text(), QString("1 of 4"));
}

void tst_FindResults::classDeclaredLaterIsNotFound()
{
    QVERIFY(mFixture->openActive());
    mFixture->addBool("A window too late", "", "Later"); // the window has no page for it
    mFixture->addBool("A window in time", "", "System");
    QVERIFY(mFixture->find("window"));
    QCOMPARE(mFixture->shownKeys(),
             (QStringList{"Capture.Capture a window.Window", "System.Hotkeys work",
                          "System.A window in time"}));
    QCOMPARE(mFixture->hint()->text(), QString("3 of 5"));
    QVERIFY(mFixture->find("late"));
    QTest::keyClick(mFixture->field(), Qt::Key_Return);
    QCOMPARE(mFixture->window()->currentClass(), QString("General"));
}

void tst_FindResults::hostCodeMayDeleteTheWindow_data()
{
    QTest::addColumn<QString>("where");
    QTest::addColumn<QString>("how");
    for (const char *where : {"itemFilter", "searchTexts", "isChanged"}) {
        for (const char *how : {"text", "key"})
            QTest::addRow("%s, %s", where, how) << where << how;
    }
    QTest::newRow("itemFilter, focus") << "itemFilter"
                                       << "focus";
    QTest::newRow("searchTexts, focus") << "searchTexts"
                                        << "focus";
}

void tst_FindResults::hostCodeMayDeleteTheWindow()
{
    QFETCH(const QString, where);
    QFETCH(const QString, how);
    bool isArmed = false;
    const auto deleteIn = [&](const char *name) {
        if (isArmed && where == QLatin1String(name)) {
            isArmed = false;
            delete mFixture->window();
        }
        return true;
    };
    mFixture->addBool("Filtered")->flags = MtConf::ItemIsFiltered;
    mFixture->manager->itemFilter = [&](const ConfItem &) { return deleteIn("itemFilter"); };
    for (const char *name : {"First", "Second"}) {
        mFixture->manager->setMajorWidget(name, [](QWidget *parent) { return new QLabel(parent); });
        auto *page = mFixture->manager->getMajorConfItemByName(name);
        page->isChanged = [&] { return deleteIn("isChanged"); };
        page->searchTexts = [&] {
            deleteIn("searchTexts");
            return QStringList{"a", "b"};
        };
    }
    QVERIFY(mFixture->openActive());
    mFixture->addBool("Another"); // the texts are read again
    isArmed = true;
    if (how == "text") {
        mFixture->field()->setText("@changed");
    } else {
        mFixture->field()->setFocus();
        if (how == "key") {
            QTest::keyClicks(mFixture->field(), "@changed");
            QTest::keyClick(mFixture->field(), Qt::Key_Return); // searches at once
        }
    }
    QTRY_VERIFY(!mFixture->window());
}

void tst_FindResults::modernLookHasATitleAndMarksFlags()
{
    mFixture->manager->windowLook = MtConf::ModernLook;
    mFixture->manager->windowFeatures = MtConf::AllWindowFeatures;
    QVERIFY(mFixture->openActive());
    const auto *title = mFixture->child<QLabel>("ModernPageTitle");
    const auto *help = mFixture->child<QLabel>("FindHelp");
    QCOMPARE(title->text(), QString("General"));
    QVERIFY(!help->isVisible());
    const auto *state = mFixture->child<QLabel>("ModernPageState");
    mFixture->store()->set("General.Show tips", false);
    QTRY_VERIFY(state->isVisible());

    QVERIFY(mFixture->find("window"));
    QCOMPARE(title->text(), QString("Results"));
    QVERIFY(help->isVisible());
    QVERIFY(!state->isVisible()); // it is that of the page
    mFixture->store()->set("System.Hotkeys work", false);
    QCoreApplication::processEvents();
    QVERIFY(help->isVisible());
    Q_EMIT mFixture->manager->sigLanguageChange();
    QCOMPARE(title->text(), QString("Results"));
    // The help is below the caption.
    const QColor hit = QThemeCtrl::instance()->color(QStringLiteral("ModernHit"));
    for (const char *text : {"Capture a window", "Also those of a window"}) {
        const QList<QLabel *> labels = mFixture->window()->findChildren<QLabel *>();
        const auto label = std::find_if(
            labels.cbegin(), labels.cend(), [text](const QLabel *other) {
                return other->text() == QLatin1String(text) && other->isVisible();
            });
        QVERIFY2(label != labels.cend(), text);
        const int end = (*label)->fontMetrics().horizontalAdvance(QLatin1String(text));
        const QPoint inWord = (*label)->mapTo(mFixture->window(), QPoint(end - 1, 3));
        const QPoint before = (*label)->mapTo(mFixture->window(), QPoint(1, 3));
        const QImage image = mFixture->window()->grab().toImage();
        QCOMPARE(image.pixelColor(inWord).name(), hit.name());
        QVERIFY(image.pixelColor(before).name() != hit.name());
    }

    QVERIFY(mFixture->find("xyz"));
    QVERIFY(!help->isVisible());
    mFixture->field()->clear();
    QTRY_COMPARE(title->text(), QString("General"));
    QVERIFY(!help->isVisible());
}

int main(int argc, char **argv)
{
    return runTest<tst_FindResults>(argc, argv);
}

#include "tst_FindResults.moc"
