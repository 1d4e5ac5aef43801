#pragma once

#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QWidget>
#include <QWindow>
#include <QtTest>

#include <memory>

/// A MultiSelectComboBox and another field in a window. A click moves the cursor first and then
/// goes to the window under it, so that the open list receives it as it receives real clicks.
class MultiSelectFixture
{
protected:
    /// Shows the window; returns false if it does not become the active window.
    bool open()
    {
        mWindow = std::make_unique<QWidget>();
        mWindow->setGeometry(200, 200, 400, 400);
        mBox = new MultiSelectComboBox(mWindow.get());
        mBox->setGeometry(20, 20, 240, 30);
        mText = mBox->lineEdit();
        mOther = new QLineEdit(mWindow.get());
        mOther->setGeometry(20, 340, 100, 30);
        mWindow->show();
        mWindow->activateWindow();
        if (!QTest::qWaitForWindowActive(mWindow.get()))
            return false;
        mOther->setFocus();
        placeCursor(outsidePoint());
        return true;
    }
    void close() { mWindow.reset(); }

    QCheckBox *checkBox(int index) const
    {
        return qobject_cast<QCheckBox *>(mBox->view()->indexWidget(mBox->model()->index(index, 0)));
    }
    bool isChecked(int index) const
    {
        bool checked = true;
        QVariant userData;
        mBox->getItemData(index, checked, userData);
        return checked;
    }
    bool isOpen() const { return mBox->view()->isVisible(); }

    QPoint textPoint() const { return mText->mapToGlobal(mText->rect().center()); }
    QPoint outsidePoint() const { return mWindow->mapToGlobal(QPoint(380, 380)); }
    QPoint indicatorPoint(int index) const
    {
        return checkBox(index)->mapToGlobal(QPoint(8, checkBox(index)->height() / 2));
    }
    QPoint rowEndPoint(int index) const
    {
        const QRect row = mBox->view()->visualRect(mBox->model()->index(index, 0));
        return mBox->view()->viewport()->mapToGlobal(QPoint(row.right() - 6, row.center().y()));
    }
    QWindow *windowAt(const QPoint &global) const
    {
        QWidget *list = mBox->view()->window();
        const bool onList = list->isVisible() && list->geometry().contains(global);
        return (onList ? list : mWindow.get())->windowHandle();
    }

    void placeCursor(const QPoint &global) const
    {
        QCursor::setPos(global);
        QTRY_COMPARE(QCursor::pos(), global);
        QWindow *window = windowAt(global);
        QTest::mouseMove(window, window->mapFromGlobal(global));
        // A real X server reports the new position a little later.
        QCoreApplication::processEvents();
    }
    void press(const QPoint &global) const
    {
        placeCursor(global);
        QWindow *window = windowAt(global);
        QTest::mousePress(window, Qt::LeftButton, {}, window->mapFromGlobal(global));
    }
    void release(const QPoint &global) const
    {
        QWindow *window = windowAt(global);
        QTest::mouseRelease(window, Qt::LeftButton, {}, window->mapFromGlobal(global));
    }
    void click(const QPoint &global) const
    {
        press(global);
        release(global);
    }
    void openByClick() const
    {
        click(textPoint());
        QTRY_VERIFY(isOpen());
        QVERIFY(QTest::qWaitForWindowExposed(mBox->view()->window()));
    }

    /// Waits until the time of hiding differs from the current time: within the same millisecond
    /// the box cannot distinguish a list that was just hidden from one that was never hidden.
    static void awaitNextMillisecond()
    {
        const QDateTime now = QDateTime::currentDateTimeUtc();
        QTRY_VERIFY(now.msecsTo(QDateTime::currentDateTimeUtc()) >= 2);
    }

    std::unique_ptr<QWidget> mWindow;
    MultiSelectComboBox *mBox = nullptr;
    QLineEdit *mText = nullptr;
    QLineEdit *mOther = nullptr;
};
