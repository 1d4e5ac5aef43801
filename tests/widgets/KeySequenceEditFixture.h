#pragma once

#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QAction>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>
#include <memory>

/// Calls a function with every message box when it is shown.
class BoxWatcher : public QObject
{
public:
    explicit BoxWatcher(std::function<void(QMessageBox *)> action) : mAction(std::move(action))
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *box = qobject_cast<QMessageBox *>(watched);
        if (box && event->type() == QEvent::Show) {
            ++count;
            QTimer::singleShot(0, box, [this, box] { mAction(box); });
        }
        return false;
    }

    int count = 0;

private:
    std::function<void(QMessageBox *)> mAction;
};

inline void clickOk(QMessageBox *box)
{
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
}

/// Releases one key while the modifiers `held` are pressed. A window system reports a modifier key
/// that is released as still held. QTest would send two release events for it.
inline void releaseKey(QWidget *widget, int key, Qt::KeyboardModifiers held = Qt::NoModifier)
{
    QKeyEvent release(QEvent::KeyRelease, key, held);
    QCoreApplication::sendEvent(widget, &release);
}

/// A test object with one KeySequenceEdit, between two other line edits in a window.
class KeySequenceEditFixture : public QObject
{
protected:
    /// Resets the fixture; there is no field yet.
    void reset()
    {
        mParent = std::make_unique<QWidget>();
        mField = nullptr;
    }

    /// Creates the field and gives it the focus.
    KeySequenceEdit *field(const QKeySequence &sequence = QKeySequence())
    {
        auto *layout = new QVBoxLayout(mParent.get());
        mBefore = new QLineEdit(mParent.get());
        mField = new KeySequenceEdit(sequence, mParent.get());
        mAfter = new QLineEdit(mParent.get());
        layout->addWidget(mBefore);
        layout->addWidget(mField);
        layout->addWidget(mAfter);
        mParent->show();
        mParent->activateWindow();
        if (!QTest::qWaitForWindowActive(mParent.get()))
            qWarning("the window is not active");
        mField->setFocus();
        return mField;
    }

    QAction *clearAction() const { return mField->actions().value(0); }
    QToolButton *clearButton() const { return mField->findChild<QToolButton *>(); }

    std::unique_ptr<QWidget> mParent;
    QLineEdit *mBefore = nullptr;
    KeySequenceEdit *mField = nullptr;
    QLineEdit *mAfter = nullptr;
};
