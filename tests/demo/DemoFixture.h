#pragma once

#include "demo/DemoSession.h"
#include "support/CleanStore.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

#include <memory>

/// Runs the demo several times one after the other, with real files in the working directory.
class DemoFixture
{
public:
    enum class Files { Remove, Keep };

    explicit DemoFixture(Files files = Files::Remove)
    {
        clearStore();
        const QStringList left = files == Files::Remove ? QDir().entryList(QDir::Files)
                                                        : QStringList();
        for (const QString &file : left)
            QFile::remove(file);
    }
    ~DemoFixture()
    {
        session.reset();
        clearStore();
    }
    Q_DISABLE_COPY(DemoFixture)

    /// Ends the running session, if any, and starts a new one.
    void start(const QString &configFile = QString(),
               DemoSession::Look look = DemoSession::Look::Classic)
    {
        session.reset();
        QVERIFY(!MtConf::ConfigurationWindow::instance());
        clearStore();
        session = std::make_unique<DemoSession>(localFile(), look);
        session->load(configFile);
    }

    static QString localFile() { return QDir::current().filePath(QStringLiteral("settings.json")); }
    const Settings &settings() const { return session->settings(); }
    static MtConf::ConfigurationWindow *window() { return MtConf::ConfigurationWindow::instance(); }

    /// Shows the page in the settings window, and opens the window if necessary.
    bool open(const QString &page) const
    {
        return QTest::qWaitForWindowExposed(session->manager().ShowWindow(page));
    }
    /// Closes the window as a user does, which saves.
    static bool close()
    {
        window()->close();
        return QTest::qWaitFor([] { return !window(); });
    }

    /// Clicks the class of that name in the list.
    static void clickClass(const QString &name)
    {
        auto *list = child<QListView>("configList");
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, 0);
            if (index.data().toString() == name)
                QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                                  list->visualRect(index).center());
        }
    }

    MtConf::ConfigItemWidget *editor(const char *page, const char *name, const char *sub = "") const
    {
        const auto *item = session->manager().getItemByName(
            QLatin1String(page), QLatin1String(name), QLatin1String(sub));
        return item ? item->editor : nullptr;
    }
    QCheckBox *checkBox(const char *page, const char *name, const char *sub = "") const
    {
        return qobject_cast<QCheckBox *>(editor(page, name, sub)->label());
    }
    template<class Control> static Control *control(QWidget *editor)
    {
        return editor->findChild<Control *>();
    }
    template<class Widget> static Widget *child(const char *name)
    {
        return window()->findChild<Widget *>(QLatin1String(name));
    }

    static void click(QCheckBox *box)
    {
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(10, box->height() / 2));
    }
    /// Replaces the text of the control by typing.
    template<class Control> static void type(Control *control, const QString &text)
    {
        control->setFocus();
        control->selectAll();
        QTest::keyClicks(control, text);
        QTest::keyClick(control, Qt::Key_Tab);
    }

    std::unique_ptr<DemoSession> session;
};
