#include "LifetimeFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QAbstractItemView>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QLineEdit>
#include <QSpinBox>

#include <map>

using MtConf::ConfigurationWindow;

/// Runs every host action at every place where the library calls host code: nothing crashes, and
/// the window works afterwards.
class tst_Lifetimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<LifetimeFixture>();
        mHasActed = false;
        mAsks = false;
    }
    void cleanup() { mFixture.reset(); }

    void hostMayDoAnythingAnywhere_data();
    void hostMayDoAnythingAnywhere();
    void hostDialogInACallbackMayOutliveThePage_data();
    void hostDialogInACallbackMayOutliveThePage();

private:
    using Step = std::function<void()>;

    std::map<QString, Step> actions();
    std::map<QString, Step> places();
    std::map<QString, Step> callbackPlaces();
    std::map<QString, Step> dialogPlaces();
    std::map<QString, Step> hostPlaces();

    /// Runs the action of the current row, at most once. With `mAsks` the action runs while a modal
    /// dialog of the host is open.
    void act()
    {
        if (std::exchange(mHasActed, true))
            return;
        const Step action = actions().at(mAction);
        if (!mAsks) {
            action();
            return;
        }
        QDialog question;
        QTimer::singleShot(0, &question, [&question, action] {
            action();
            // The nested event loop runs long enough for deferred deletions.
            QTimer::singleShot(50, &question, &QDialog::accept);
        });
        question.exec();
    }
    Step actor()
    {
        return [this] { act(); };
    }
    void actSoon()
    {
        QTimer::singleShot(0, this, actor());
        QTRY_VERIFY(mHasActed);
    }
    /// Returns a step that runs the action from the change callback of a setting on page "Edit";
    /// `edit` changes the setting.
    Step fromCallback(const QString &name, const Step &edit)
    {
        return [this, name, edit] {
            LifetimeFixture::store()->setConfChangedCallback(
                "Edit." + name, [this](const QString &, const ConfValue *) { act(); });
            edit();
        };
    }
    /// Runs `open`, which opens a modal dialog, runs the action while the dialog is open, and then
    /// accepts the dialog if it still exists.
    template<class Dialog> void actUnder(const Step &open)
    {
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible() || mHasActed)
                return;
            timer.stop();
            const QPointer<Dialog> guard(dialog);
            act();
            if (guard)
                QTimer::singleShot(10, guard, [guard] { accept(guard); });
        });
        timer.start(5);
        open();
    }
    static void accept(QWidget *dialog)
    {
        auto *buttons = dialog->findChild<QDialogButtonBox *>();
        for (const auto which : {QDialogButtonBox::Ok, QDialogButtonBox::Yes}) {
            if (QPushButton *button = buttons->button(which))
                QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    static void chooseNext(QComboBox *box)
    {
        QTest::mouseClick(box, Qt::LeftButton);
        QTest::keyClick(box->view(), Qt::Key_Down);
        QTest::keyPress(box->view(), Qt::Key_Return);
    }
    static void typeInto(QSpinBox *box)
    {
        box->setFocus();
        box->selectAll();
        QTest::keyPress(box, Qt::Key_7);
    }
    static void closeWhatIsOpen()
    {
        while (QWidget *popup = QApplication::activePopupWidget())
            popup->hide();
        while (QWidget *dialog = QApplication::activeModalWidget())
            delete dialog;
    }
    /// Returns the classes of all existing widgets, except the desktop and tool tips, which depend
    /// on the position of the cursor.
    static QString widgets()
    {
        QStringList classes;
        const QWidgetList all = QApplication::allWidgets();
        for (const QWidget *widget : all) {
            if (widget->windowType() != Qt::ToolTip && widget->windowType() != Qt::Desktop)
                classes << widget->metaObject()->className();
        }
        return classes.join(' ');
    }
    bool open() const
    {
        ConfigurationWindow *window = mFixture->manager->ShowWindow("Edit");
        // On an X server without a window manager the window is not activated otherwise.
        window->activateWindow();
        return QTest::qWaitForWindowActive(window);
    }
    void verifyThatTheWindowWorks();

    std::unique_ptr<LifetimeFixture> mFixture;
    QString mAction;
    bool mHasActed = false;
    bool mAsks = false;
};

std::map<QString, tst_Lifetimes::Step> tst_Lifetimes::actions()
{
    LifetimeFixture *host = mFixture.get();
    return {
        {"page switched", [] { LifetimeFixture::window()->switchToView("Other"); }},
        {"language changed",
         [host] {
             host->store()->set<QString>("Edit.Language", "en-us");
             QEvent change(QEvent::LanguageChange);
             QApplication::sendEvent(host->window(), &change);
         }},
        {"theme changed",
         [] {
             QThemeCtrl *themes = QThemeCtrl::instance();
             themes->setTheme(themes->isDark() ? QThemeCtrl::Theme::Light
                                               : QThemeCtrl::Theme::Dark);
         }},
        {"window closed", [host] { host->manager->closeConfigWindow(); }},
        {"window closed and reopened",
         [host] {
             host->manager->closeConfigWindow();
             host->manager->ShowWindow("Edit");
         }},
        {"keys removed",
         [host] {
             const LogCapture log;
             for (const char *name :
                  {"Flag", "Number", "Text", "Bits", "Colour", "Font", "Key", "Mouse", "Host"})
                 host->store()->removeDynamicConf(QLatin1String("Edit.") + name);
         }},
        {"manager destroyed", [host] { host->manager.reset(); }},
        {"all restored", [host] { host->manager->restoreAllDefault(); }},
        {"configuration loaded", [host] { host->manager->loadFromFile(host->configuration()); }},
    };
}

std::map<QString, tst_Lifetimes::Step> tst_Lifetimes::callbackPlaces()
{
    LifetimeFixture *host = mFixture.get();
    return {
        {"callback of a check box",
         fromCallback("Flag",
                      [host] {
                          WindowFixture::clickBox(WindowFixture::checkBox(
                              host->manager->getItemByName("Edit", "Flag", "")));
                      })},
        {"callback inside a callback of the same check box",
         [this, host] {
             QCheckBox *box = WindowFixture::checkBox(
                 host->manager->getItemByName("Edit", "Flag", ""));
             const auto isInner = std::make_shared<bool>(false);
             host->store()->setConfChangedCallback("Edit.Flag",
                                                   [=](const QString &, const ConfValue *) {
                                                       if (std::exchange(*isInner, true))
                                                           act();
                                                       else
                                                           box->click();
                                                   });
             WindowFixture::clickBox(box);
         }},
        {"callback of a spin box",
         fromCallback("Number", [host] { typeInto(host->control<QSpinBox>("Number")); })},
        {"callback of a combo box",
         fromCallback("Text", [host] { chooseNext(host->control<QComboBox>("Text")); })},
        {"callback of a multi-select box",
         fromCallback("Bits",
                      [host] {
                          auto *box = host->control<QComboBox>("Bits");
                          box->showPopup();
                          WindowFixture::clickBox(box->view()->findChildren<QCheckBox *>().at(1));
                      })},
        {"callback of a colour",
         fromCallback("Colour",
                      [host] {
                          QTest::mouseClick(host->control<QPushButton>("Colour"), Qt::LeftButton);
                          auto *dialog = host->control<QColorDialog>("Colour");
                          dialog->setCurrentColor(Qt::blue);
                          accept(dialog);
                      })},
        {"callback of a hotkey", fromCallback("Key",
                                              [host] {
                                                  QTest::keyPress(host->control<QLineEdit>("Key"),
                                                                  Qt::Key_F5, Qt::ControlModifier);
                                              })},
        {"callback of a mouse action",
         fromCallback(
             "Mouse",
             [host] {
                 const QList<QComboBox *> boxes = host->manager->getItemByName("Edit", "Mouse", "")
                                                      ->editor->findChildren<QComboBox *>();
                 chooseNext(boxes.last());
             })},
    };
}

std::map<QString, tst_Lifetimes::Step> tst_Lifetimes::dialogPlaces()
{
    LifetimeFixture *host = mFixture.get();
    return {
        {"question before restoring a page",
         [this] {
             actUnder<QMessageBox>(
                 [] { QTest::mouseClick(WindowFixture::restorePageButton(), Qt::LeftButton); });
         }},
        {"question before restoring all",
         [this] {
             actUnder<QMessageBox>(
                 [] { QTest::mouseClick(WindowFixture::restoreAllButton(), Qt::LeftButton); });
         }},
        {"message box for a hotkey without modifiers",
         [this, host] {
             actUnder<QMessageBox>([host] {
                 auto *edit = host->control<KeySequenceEdit>("Key");
                 edit->allowSimpleHotkey = false;
                 QTest::keyPress(edit, Qt::Key_A);
             });
         }},
        {"font dialog",
         [this, host] {
             actUnder<QFontDialog>(
                 [host] { QTest::mouseClick(host->control<QPushButton>("Font"), Qt::LeftButton); });
         }},
        {"colour dialog",
         [this, host] {
             QTest::mouseClick(host->control<QPushButton>("Colour"), Qt::LeftButton);
             const QPointer<QColorDialog> dialog = host->control<QColorDialog>("Colour");
             actSoon();
             QCoreApplication::processEvents();
             if (dialog)
                 accept(dialog);
         }},
    };
}

std::map<QString, tst_Lifetimes::Step> tst_Lifetimes::hostPlaces()
{
    LifetimeFixture *host = mFixture.get();
    const auto press = [](const QString &name) {
        LifetimeFixture::window()->switchToView(name == "Other" ? "Edit" : "Other");
        LifetimeFixture::pressClass(name);
    };
    return {
        {"open list of a combo box",
         [this, host] {
             host->control<QComboBox>("Text")->showPopup();
             actSoon();
         }},
        {"open list of a multi-select box",
         [this, host] {
             host->control<QComboBox>("Bits")->showPopup();
             actSoon();
         }},
        {"timer while a number is typed",
         [this, host] {
             auto *box = host->control<QSpinBox>("Number");
             box->setFocus();
             QTest::keyClick(box, Qt::Key_1);
             actSoon();
             if (QWidget *focus = QApplication::focusWidget())
                 QTest::keyClick(focus, Qt::Key_2);
         }},
        {"retranslateUi of an editor",
         [this, host] {
             host->onRetranslate = actor();
             host->window()->switchToView("Edit");
             Q_EMIT host->manager->sigLanguageChange();
         }},
        {"language change event of an editor",
         [this, host] {
             host->onLanguage = actor();
             host->window()->switchToView("Edit");
             QEvent change(QEvent::LanguageChange);
             QApplication::sendEvent(host->window(), &change);
         }},
        {"filter of items",
         [this, host, press] {
             host->window()->switchToView("Other");
             host->onFilter = actor();
             press("Edit");
         }},
        {"factory of a page",
         [this, host, press] {
             host->onPage = actor();
             press("Custom");
         }},
        {"factory of an editor",
         [this, host, press] {
             host->window()->switchToView("Other");
             host->onCreate = actor();
             press("Edit");
         }},
    };
}

std::map<QString, tst_Lifetimes::Step> tst_Lifetimes::places()
{
    std::map<QString, Step> all = callbackPlaces();
    for (const auto &more : {dialogPlaces(), hostPlaces()})
        all.insert(more.cbegin(), more.cend());
    return all;
}

void tst_Lifetimes::verifyThatTheWindowWorks()
{
    closeWhatIsOpen();
    QCoreApplication::processEvents();
    if (!mFixture->manager)
        mFixture->declare();
    QVERIFY(mFixture->manager->ShowWindow("Edit"));
    QVERIFY(QTest::qWaitForWindowExposed(mFixture->window()));
    LifetimeFixture::pressClass("Other");
    QTRY_VERIFY(mFixture->other->editor);
    const bool before = mFixture->otherValue;
    WindowFixture::clickBox(WindowFixture::checkBox(mFixture->other));
    QCOMPARE(mFixture->otherValue, !before);
    // After closing the window no widget of a deleted editor is left.
    mFixture->manager->closeConfigWindow();
    QTRY_COMPARE(widgets(), QString());
}

void tst_Lifetimes::hostMayDoAnythingAnywhere_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("action");
    for (const auto &place : places()) {
        for (const auto &action : actions()) {
            QTest::addRow("%s: %s", qPrintable(place.first), qPrintable(action.first))
                << place.first << action.first;
        }
    }
}

void tst_Lifetimes::hostMayDoAnythingAnywhere()
{
    QFETCH(QString, place);
    QFETCH(QString, action);
    mAction = action;
    QVERIFY(open());
    {
        const LogCapture log; // removed keys are logged
        places().at(place)();
        QVERIFY(mHasActed);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    verifyThatTheWindowWorks();
}

void tst_Lifetimes::hostDialogInACallbackMayOutliveThePage_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("action");
    for (const auto &place : callbackPlaces()) {
        for (const char *action :
             {"page switched", "window closed", "window closed and reopened", "manager destroyed"})
            QTest::addRow("%s: %s", qPrintable(place.first), action) << place.first << action;
    }
}

void tst_Lifetimes::hostDialogInACallbackMayOutliveThePage()
{
    QFETCH(QString, place);
    QFETCH(QString, action);
    QVERIFY(open());
    mAction = action;
    mAsks = true;
    {
        const LogCapture log;
        callbackPlaces().at(place)();
        QVERIFY(mHasActed);
    }
    verifyThatTheWindowWorks();
}

int main(int argc, char **argv)
{
    return runTest<tst_Lifetimes>(argc, argv);
}

#include "tst_Lifetimes.moc"
