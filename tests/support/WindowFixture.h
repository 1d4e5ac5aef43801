#pragma once

#include "support/CleanStore.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QCheckBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>
#include <vector>

/// A manager with an empty store, and the settings window that a test opens with it.
class WindowFixture
{
public:
    WindowFixture()
    {
        clearStore();
        QFile::remove(geometryFile());
        MtConf::ConfigurationWindow::mIconMap.clear();
        manager = std::make_unique<MtConf::MtConfManage>();
        store()->mLocalSaveFile = localFile();
    }
    ~WindowFixture()
    {
        manager.reset(); // also deletes the window
        QFile::remove(geometryFile());
        QFile::remove(localFile());
        clearStore();
    }
    Q_DISABLE_COPY(WindowFixture)

    static QString geometryFile() { return QStringLiteral("ConfigurationWindowConfig.ini"); }
    static QString localFile() { return QStringLiteral("local.json"); }
    static ConfStorage *store() { return ConfStorage::instance(); }
    static MtConf::ConfigurationWindow *window() { return MtConf::ConfigurationWindow::instance(); }

    /// Opens the window and waits until it is shown.
    MtConf::ConfigurationWindow *open(const QString &page = QString())
    {
        MtConf::ConfigurationWindow *opened = manager->ShowWindow(page);
        return QTest::qWaitForWindowExposed(opened) ? opened : nullptr;
    }
    /// Opens the window and waits until it is active, so that widgets get the keyboard focus.
    bool openActive()
    {
        MtConf::ConfigurationWindow *opened = open();
        if (opened)
            opened->activateWindow();
        return opened && QTest::qWaitForWindowActive(opened);
    }
    /// Closes the window and waits until it is deleted.
    bool close()
    {
        manager->closeConfigWindow();
        return QTest::qWaitFor([] { return !window(); });
    }

    template<class Widget> static Widget *child(const char *name)
    {
        return window()->findChild<Widget *>(QLatin1String(name));
    }
    static QListView *classList() { return child<QListView>("configList"); }
    static QPushButton *restorePageButton() { return child<QPushButton>("btnRestoreDefault"); }
    static QPushButton *restoreAllButton() { return child<QPushButton>("btnRestoreAllDefault"); }
    static QVBoxLayout *page() { return child<QVBoxLayout>("layoutConfigItem"); }
    static QList<QGroupBox *> groups()
    {
        return window()->findChildren<QGroupBox *>(QStringLiteral("ConfigGroupBox"));
    }
    /// Returns the texts of the group captions on the shown page.
    static QStringList captions()
    {
        QStringList texts;
        for (int i = 0; i < page()->count(); ++i) {
            auto *label = qobject_cast<QLabel *>(page()->itemAt(i)->widget());
            if (label)
                texts << label->text();
        }
        return texts;
    }
    /// Clicks the row of the class list.
    static void clickClass(int row)
    {
        QListView *list = classList();
        const QRect rect = list->visualRect(list->model()->index(row, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rect.center());
    }
    /// Clicks the indicator of a check box.
    static void clickBox(QCheckBox *box)
    {
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(10, box->height() / 2));
    }
    static QCheckBox *checkBox(const MtConf::ConfItem *item)
    {
        return qobject_cast<QCheckBox *>(item->editor->label());
    }

    /// Clicks `button` and calls `action` with the message box that it opens. Returns whether one
    /// was opened.
    template<class Action> static bool clickAndAnswer(QPushButton *button, Action action)
    {
        bool asked = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, button, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || !box->isVisible() || asked)
                return;
            asked = true;
            timer.stop();
            action(box);
        });
        timer.start(5);
        QTest::mouseClick(button, Qt::LeftButton);
        return asked;
    }
    static bool clickAndAnswer(QPushButton *button, QMessageBox::StandardButton answer)
    {
        return clickAndAnswer(button, [answer](QMessageBox *box) {
            QAbstractButton *choice = box->button(answer);
            if (!choice && answer == QMessageBox::Yes) // the modern look has a button of its own
                choice = box->findChild<QPushButton *>(QStringLiteral("ModernReset"));
            QTest::mouseClick(choice, Qt::LeftButton);
        });
    }

    /// Declares a switch that is on, with a variable of its own in `flags`.
    MtConf::ConfItem *addBool(const char *name, const char *subName = "",
                              const char *major = "General")
    {
        flags.push_back(std::make_unique<bool>(true));
        return manager->addConfBool(name, flags.back().get(), major, name, subName);
    }

    std::vector<std::unique_ptr<bool>> flags;
    std::unique_ptr<MtConf::MtConfManage> manager;
};
