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

/// Runs an action on every message box once it is open.
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

/// Releases one key while `held` are still held. The system counts a modifier key that is released
/// among these; QTest releases it twice.
inline void releaseKey(QWidget *widget, int key, Qt::KeyboardModifiers held = Qt::NoModifier)
{
    QKeyEvent release(QEvent::KeyRelease, key, held);
    QCoreApplication::sendEvent(widget, &release);
}

/// A test object with one field, in a window between two other line edits.
class KeySequenceEditFixture : public QObject
{
protected:
    /// Starts anew, without a field.
    void reset()
    {
        mParent = std::make_unique<QWidget>();
        mField = nullptr;
    }

    /// Makes the only field of the test and gives it the focus.
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
