#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QToolButton>

#include <array>

using namespace MtConf;

/// Resetting one row, and the marks of what has changed.
class tst_RowReset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<WindowFixture>();
        mFixture->manager->windowFeatures = ResetFeature;
        mFlag = mFixture->addBool("Sound");
        mDelay = 0;
        mNumber = mFixture->manager->addConfInt32("Delay", &mDelay, "General", "Delay");
        mOther = mFixture->addBool("Light", "", "Other");
    }
    void cleanup() { mFixture.reset(); }

    void thereIsNoButtonWithoutTheFeature()
    {
        mFixture->manager->windowFeatures = 0;
        QVERIFY(mFixture->openActive());
        QVERIFY(mFixture->window()->findChildren<QToolButton *>().isEmpty());
        QVERIFY(!showChanges());
    }

    void theButtonIsShownWhileTheRowDiffers()
    {
        QVERIFY(mFixture->openActive());
        QVERIFY(!button(mFlag));
        const int end = mNumber->editor->geometry().right();
        QTest::mouseClick(WindowFixture::checkBox(mFlag), Qt::LeftButton, {}, QPoint(10, 8));
        QTRY_VERIFY(button(mFlag));
        QVERIFY(!button(mNumber));
        QCOMPARE(mNumber->editor->geometry().right(), end);
        QTest::mouseClick(button(mFlag), Qt::LeftButton);
        QVERIFY(mFlag->isDefaultValue());
        QVERIFY(WindowFixture::checkBox(mFlag)->isChecked());
        QVERIFY(!button(mFlag));
    }

    void theButtonIsUsedByKeyboardAndPassesTheFocusOn()
    {
        QVERIFY(mFixture->openActive());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        QTRY_VERIFY(button(mNumber));
        mNumber->editor->findChild<QSpinBox *>()->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), button(mNumber));
        QTest::keyClick(button(mNumber), Qt::Key_Space);
        QVERIFY(mNumber->isDefaultValue());
        QVERIFY(mNumber->editor->isAncestorOf(QApplication::focusWidget()));
    }

    void aKeyResetsTheFocusedRow()
    {
        QVERIFY(mFixture->openActive());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        WindowFixture::store()->set(mFlag->getFullName(), false);
        mNumber->editor->findChild<QSpinBox *>()->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_R, Qt::ControlModifier);
        QVERIFY(mNumber->isDefaultValue());
        QCOMPARE(mNumber->editor->findChild<QSpinBox *>()->value(), 0);
        QVERIFY(!mFlag->isDefaultValue());
    }

    void theMenuResetsAndCopies()
    {
        QVERIFY(mFixture->openActive());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        QTRY_VERIFY(button(mNumber));
        QMenu *menu = openMenu(mNumber->editor);
        QVERIFY(menu);
        menu->actions().at(1)->trigger();
        QCOMPARE(QApplication::clipboard()->text(), mNumber->getFullName());
        menu->actions().at(2)->trigger();
        QCOMPARE(QApplication::clipboard()->text(), QString("7"));
        QCOMPARE(menu->actions().at(4)->text(), QString("Default: 0"));
        QVERIFY(menu->actions().at(5)->text().startsWith("Changed on "));
        menu->actions().at(0)->trigger();
        QVERIFY(mNumber->isDefaultValue());
        menu->close();
    }

    void theMenuDoesNotShowSecrets()
    {
        mToken = "old";
        ConfItem *secret = mFixture->manager->addConfPassword("Token", &mToken, "General", "Token");
        QVERIFY(mFixture->openActive());
        WindowFixture::store()->set<QString>(secret->getFullName(), "new");
        QMenu *menu = openMenu(secret->editor);
        QVERIFY(menu);
        for (const QAction *action : menu->actions())
            QVERIFY2(!action->text().contains("old"), qPrintable(action->text()));
        QCOMPARE(menu->actions().at(2)->isSeparator(), true); // no "Copy value"
        menu->close();
    }

    void theModernPageCountsItsChanges()
    {
        mFixture->manager->windowLook = ModernLook;
        QVERIFY(mFixture->openActive());
        const auto *state = WindowFixture::child<QLabel>("ModernPageState");
        QVERIFY(!state->isVisible());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        WindowFixture::store()->set(mOther->getFullName(), false); // on another page
        QTRY_COMPARE(state->text(), QString("1 changed"));
        QVERIFY(state->isVisible());
        WindowFixture::clickClass(1);
        QCOMPARE(state->text(), QString("1 changed"));
        QTRY_VERIFY(button(mOther));
        QTest::mouseClick(button(mOther), Qt::LeftButton);
        QVERIFY(!state->isVisible());
    }

    void classesWithChangesAreMarked()
    {
        QVERIFY(mFixture->openActive());
        constexpr int sChangedRole = Qt::UserRole + 2;
        const QAbstractItemModel *model = WindowFixture::classList()->model();
        QCOMPARE(model->index(1, 0).data(sChangedRole).toBool(), false);
        const QImage before = WindowFixture::classList()->grab().toImage();
        WindowFixture::store()->set(mOther->getFullName(), false);
        QTRY_COMPARE(model->index(1, 0).data(sChangedRole).toBool(), true);
        QCOMPARE(model->index(0, 0).data(sChangedRole).toBool(), false);
        QVERIFY(WindowFixture::classList()->grab().toImage() != before);
    }

    void marksOfClassesFollowEachChange()
    {
        mOther->flags |= ItemIsFiltered;
        mFixture->manager->itemFilter = [this](const ConfItem &) { return mDelay < 9; };
        QVERIFY(mFixture->openActive());
        const auto marks = [] {
            constexpr int sChangedRole = Qt::UserRole + 2;
            const QAbstractItemModel *model = WindowFixture::classList()->model();
            return QList<bool>{model->index(0, 0).data(sChangedRole).toBool(),
                               model->index(1, 0).data(sChangedRole).toBool()};
        };
        WindowFixture::store()->set(mOther->getFullName(), false);
        QTRY_COMPARE(marks(), (QList<bool>{false, true}));
        WindowFixture::store()->set(mFlag->getFullName(), false);
        QTRY_COMPARE(marks(), (QList<bool>{true, true}));
        WindowFixture::store()->set(mNumber->getFullName(), 9); // the filter hides the other item
        QTRY_COMPARE(marks(), (QList<bool>{true, false}));
        mFlag->restoreDefault();
        QCoreApplication::processEvents();
        QCOMPARE(marks(), (QList<bool>{true, false})); // the number
        mNumber->restoreDefault();
        QTRY_COMPARE(marks(), (QList<bool>{false, true}));
        mOther->restoreDefault();
        QTRY_COMPARE(marks(), (QList<bool>{false, false}));
    }

    void marksOfClassesFollowManyChanges()
    {
        constexpr int sCount = 250;
        std::array<bool, sCount> values{};
        for (int i = 0; i < sCount; ++i)
            mFixture->manager->addConfBool("Many", &values.at(i), "Many", QString::number(i));
        QVERIFY(mFixture->openActive());
        constexpr int sChangedRole = Qt::UserRole + 2;
        const QModelIndex index = WindowFixture::classList()->model()->index(2, 0);
        const QModelIndex other = index.siblingAtRow(1);
        for (int i = sCount; i > 0; --i)
            WindowFixture::store()->set(QStringLiteral("Many.%1").arg(i - 1), true);
        WindowFixture::store()->set(mOther->getFullName(), false);
        QTRY_VERIFY(index.data(sChangedRole).toBool());
        QVERIFY(other.data(sChangedRole).toBool());
        for (int i = 0; i < sCount; ++i)
            WindowFixture::store()->setToDefault(QStringLiteral("Many.%1").arg(i), true);
        QTRY_VERIFY(!index.data(sChangedRole).toBool());
        mFixture.reset(); // before the values
    }

    void customPagesSayWhetherTheyHaveChanged()
    {
        bool isChanged = false;
        mFixture->manager->setMajorWidget(
            "Custom", [](QWidget *parent) { return new QLabel("page", parent); });
        mFixture->manager->getMajorConfItemByName("Custom")->isChanged = [&] { return isChanged; };
        QVERIFY(mFixture->openActive());
        constexpr int sChangedRole = Qt::UserRole + 2;
        const QModelIndex index = WindowFixture::classList()->model()->index(2, 0);
        QVERIFY(!index.data(sChangedRole).toBool());
        isChanged = true;
        WindowFixture::store()->set(mFlag->getFullName(), false);
        QTRY_VERIFY(index.data(sChangedRole).toBool());
    }

    void showChangedListsTheChangedRowsOfAllPages()
    {
        QVERIFY(mFixture->openActive());
        QVERIFY(!showChanges()->isEnabled());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        WindowFixture::store()->set(mOther->getFullName(), false);
        QTRY_VERIFY(showChanges()->isEnabled());
        QTest::mouseClick(showChanges(), Qt::LeftButton);
        QCOMPARE(WindowFixture::captions(), (QStringList{"General", "Other"}));
        QVERIFY(mNumber->editor && mOther->editor && !mFlag->editor);
        QVERIFY(showChanges()->isChecked());
        // A class leads back to its page.
        WindowFixture::clickClass(1);
        QVERIFY(!showChanges()->isChecked());
        QCOMPARE(WindowFixture::captions(), QStringList{"Other"});
    }

    void theMarkOfANarrowClassIsBesideItsIcon()
    {
        mFixture->manager->windowLook = ModernLook;
        QMap<QString, QChar> icons{{"General", QChar(0xe800)}, {"Other", QChar(0xe800)}};
        mFixture->manager->setIconMap(icons);
        QVERIFY(mFixture->openActive());
        WindowFixture::window()->resize(690, 500);
        auto *list = WindowFixture::classList();
        QTRY_COMPARE(list->property("narrow").toString(), QString("1"));
        const auto row = [list] {
            const QRect place = list->visualRect(list->model()->index(1, 0));
            return list->viewport()->grab(place).toImage();
        };
        const QImage before = row();
        WindowFixture::store()->set(mOther->getFullName(), false);
        QTRY_VERIFY(row() != before);
        // The pixels of the icon are as before.
        const QImage after = row();
        const QColor ground = before.pixelColor(0, 0);
        int count = 0;
        for (int y = 0; y < before.height(); ++y) {
            for (int x = 0; x < before.width(); ++x) {
                if (before.pixelColor(x, y) == ground)
                    continue;
                ++count;
                QCOMPARE(after.pixelColor(x, y), before.pixelColor(x, y));
            }
        }
        QVERIFY(count > 20);
    }

    void aNarrowModernWindowOffersItsButtonsInAMenu()
    {
        mFixture->manager->windowLook = ModernLook;
        QVERIFY(mFixture->openActive());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        WindowFixture::window()->resize(900, 500);
        auto *more = WindowFixture::child<QToolButton>("ModernMore");
        QTRY_VERIFY(showChanges()->isVisible() && !more->isVisible());
        QTRY_VERIFY(showChanges()->isEnabled());
        WindowFixture::window()->resize(690, 500);
        QTRY_VERIFY(!showChanges()->isVisible() && more->isVisible());
        QTest::mouseClick(more, Qt::LeftButton);
        auto *menu = WindowFixture::window()->findChild<QMenu *>();
        QVERIFY(menu);
        QStringList texts;
        for (QAction *action : menu->actions())
            texts << action->text();
        QCOMPARE(texts, (QStringList{QString::fromUtf8("Reset all settings…"), "Show changed"}));
        menu->actions().last()->trigger();
        menu->close();
        QTRY_VERIFY(mNumber->editor && !mFlag->editor);
    }

    void showChangedUsesFindIfTheHostHasIt()
    {
        mFixture->manager->windowFeatures = ResetFeature | FindFeature;
        QVERIFY(mFixture->openActive());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        QTRY_VERIFY(showChanges()->isEnabled());
        QTest::mouseClick(showChanges(), Qt::LeftButton);
        QCOMPARE(WindowFixture::child<QLineEdit>("FindField")->text(), QString("@changed"));
        QTRY_VERIFY(mNumber->editor && !mFlag->editor);
        QVERIFY(showChanges()->isChecked());
        QTest::mouseClick(showChanges(), Qt::LeftButton);
        QTRY_VERIFY(mFlag->editor);
        QCOMPARE(WindowFixture::child<QLineEdit>("FindField")->text(), QString());
        QVERIFY(!showChanges()->isChecked());
    }

    void aButtonThatComesLaterIsInTheTabOrder()
    {
        mChoice = 1;
        ConfItem *choice = mFixture->manager->addConfInt32WithCombobox(
            "Choice", {"One", "Two"}, &mChoice, "General", "Choice");
        QVERIFY(mFixture->openActive());
        WindowFixture::store()->set(choice->getFullName(), 0);
        QTRY_VERIFY(button(choice));
        choice->editor->findChild<QComboBox *>()->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), button(choice));
    }

    void aCallbackOfTheResetMayCloseTheWindow()
    {
        QVERIFY(mFixture->openActive());
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        QTRY_VERIFY(button(mNumber));
        mNumber->setConfChangedCallback(
            [&](const QString &, const ConfValue *) { mFixture->manager->closeConfigWindow(); });
        QTest::mouseClick(button(mNumber), Qt::LeftButton);
        QTRY_VERIFY(!WindowFixture::window());
        QVERIFY(mNumber->isDefaultValue());
    }

    void hostCodeMayDeleteTheWindow_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<bool>("isModern");
        for (const char *place : {"filter", "isChanged"}) {
            for (const bool isModern : {false, true})
                QTest::addRow("%s %s", place, isModern ? "modern" : "classic") << place << isModern;
        }
    }

    void hostCodeMayDeleteTheWindow()
    {
        QFETCH(QString, place);
        QFETCH(bool, isModern);
        mFixture->manager->windowLook = isModern ? ModernLook : ClassicLook;
        bool isArmed = false;
        const auto deleteWindow = [&] {
            if (isArmed)
                delete WindowFixture::window();
            return true;
        };
        mFixture->manager->itemFilter = [&](ConfItem &) {
            return place != "filter" || deleteWindow();
        };
        mFlag->flags |= ItemIsFiltered;
        mFixture->manager->getMajorConfItemByName("Other")->isChanged = [&] {
            return place == "isChanged" && deleteWindow();
        };
        WindowFixture::store()->set(mFlag->getFullName(), false);
        QVERIFY(mFixture->openActive());
        isArmed = true;
        WindowFixture::store()->set(mNumber->getFullName(), 7);
        QTRY_VERIFY(!WindowFixture::window());
        QVERIFY(!mFixture->manager->ShowWindow()); // deleted while it is being built
        isArmed = false;
        QVERIFY(mFixture->openActive());
    }

    void theMenuShortensLongValues()
    {
        QString text = QString(5000, 'x');
        mToken = "Tom & Jerry " + text;
        ConfItem *item = mFixture->manager->addConfText("Token", &mToken, "General", "Token");
        QVERIFY(mFixture->openActive());
        QMenu *menu = openMenu(item->editor);
        QVERIFY(menu);
        QVERIFY(menu->actions().at(4)->text().startsWith("Default: Tom && Jerry xxx"));
        QVERIFY(menu->sizeHint().width() < 1000);
        menu->close();
    }

    void lockedRowsCannotBeReset()
    {
        WindowFixture::store()->lockConf(mNumber->getFullName(), 9);
        QVERIFY(mFixture->openActive());
        QVERIFY(!mNumber->isDefaultValue());
        QVERIFY(!button(mNumber));
    }

private:
    /// Returns the visible button of the row; null if there is none.
    static QToolButton *button(const ConfItem *item)
    {
        const auto name = "Reset " + QString(item->displayText);
        const QList<QToolButton *> buttons = WindowFixture::window()->findChildren<QToolButton *>(
            "ResetButton");
        for (QToolButton *button : buttons) {
            if (button->isVisible() && button->accessibleName() == name)
                return button;
        }
        return nullptr;
    }
    static QPushButton *showChanges()
    {
        return WindowFixture::child<QPushButton>("ShowChangesButton");
    }
    static QMenu *openMenu(QWidget *editor)
    {
        const QPoint position(2, 2);
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, editor->mapToGlobal(position));
        QApplication::sendEvent(editor, &event);
        return WindowFixture::window()->findChild<QMenu *>();
    }

    std::unique_ptr<WindowFixture> mFixture;
    ConfItem *mFlag = nullptr;
    ConfItem *mNumber = nullptr;
    ConfItem *mOther = nullptr;
    int mDelay = 0;
    int mChoice = 0;
    QString mToken;
};

int main(int argc, char **argv)
{
    return runTest<tst_RowReset>(argc, argv);
}

#include "tst_RowReset.moc"
