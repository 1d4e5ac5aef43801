#pragma once

#include "support/EditorFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QTranslator>
#include <QWheelEvent>

/// An editor on a page with its message, in an empty store that is watched.
class TypedEditorFixture : public EditorFixture
{
public:
    TypedEditorFixture()
        : observer(store()->addObserver([this](const ConfChange &change) {
              ++changes;
              lastChange = change;
          }))
    {
        store()->mChanged = false;
    }
    ~TypedEditorFixture()
    {
        parent.hide(); // the focus leaves the editor while the store still has its key
        store()->removeObserver(observer);
    }
    Q_DISABLE_COPY(TypedEditorFixture)

    /// Creates the editor of `item` with its caption and its message.
    template<class Editor> Editor *open(MtConf::ConfItem *item)
    {
        auto *editor = edit<Editor>(item);
        message = editor->messageLabel();
        if (message)
            layout->addWidget(message);
        return editor;
    }
    /// Moves the focus to another control.
    void leaveEditor()
    {
        auto *other = new QLineEdit(&parent);
        other->show();
        other->setFocus();
    }
    /// Returns the message that is shown under the row; empty if there is none.
    QString shownMessage() const
    {
        return message && !message->isHidden() ? message->text() : QString();
    }
    /// Returns whether nothing has changed in the store.
    bool isUntouched() const { return changes == 0 && !store()->mChanged; }

    QPointer<QLabel> message;
    int changes = 0;
    ConfChange lastChange;
    int observer = 0;
};

/// Translates every text by prefixing it with "de ".
class Prefixer : public QTranslator
{
public:
    Prefixer() { QCoreApplication::installTranslator(this); }
    ~Prefixer() override { QCoreApplication::removeTranslator(this); }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString("de ") + text;
    }
    bool isEmpty() const override { return false; }
};

/// Turns the wheel over `control` and returns whether the event was left to the page.
inline bool leavesWheelToPage(QWidget *control)
{
    const QPointF position(control->rect().center());
    QWheelEvent event(position, control->mapToGlobal(position.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    event.accept();
    static_cast<QObject *>(control)->event(&event);
    return !event.isAccepted();
}
