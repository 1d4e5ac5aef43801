#pragma once

#include "InputChords_p.h"

#include <QHash>
#include <QList>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QVector>
#include <QWidget>

namespace MtConf {

/// The shortcuts of actions, menus and QShortcuts in the widgets of a program. Follows the widgets:
/// what is added to them, removed from them or changed.
class ActionInputs : public QObject
{
    Q_OBJECT
public:
    /// An action or a QShortcut that has keys, or whose keys are a setting.
    struct Input
    {
        QPointer<QObject> object;       ///< the QAction or the QShortcut
        QString setting;                ///< the key of the setting; empty if it is none
        QVector<InputChords> sequences; ///< its shortcuts
        Qt::ShortcutContext context = Qt::WindowShortcut; ///< where it works
        /// The windows or widgets in which it works, unless it works in all of the program.
        QVector<QPointer<QWidget>> places;
        QPointer<QMenu> menu; ///< of an action
    };

    /// Follows `root` and all widgets in it.
    void watch(QWidget *root);

    /// Lets `inputs()` read the widgets again. To be called when actions may have become settings.
    void readAgain() { mIsStale = true; }

    /// Returns the inputs, in the order in which they are found.
    const QVector<Input> &inputs();

    /// Returns whether a shortcut that works in one of `a` can meet one that works in one of `b`:
    /// whether a widget is in both, or one contains the other in the same window.
    static bool doOverlap(const QVector<QPointer<QWidget>> &a, const QVector<QPointer<QWidget>> &b);

Q_SIGNALS:
    /// Emitted when control is back in the event loop after the inputs may have changed.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void markStale();
    void onActionChanged();
    bool hasChangedShortcut() const;
    void read();
    void readWidget(QWidget *widget, QWidget *place);
    void add(QObject *object, const QVector<InputChords> &sequences, Qt::ShortcutContext context,
             QWidget *place);

    QVector<QPointer<QWidget>> mRoots;
    QVector<Input> mInputs;
    QHash<const QObject *, int> mIndexes; // of the inputs, by object
    QSet<const QWidget *> mRead;          // while the widgets are being read
    bool mIsStale = false;
};

bool operator==(const ActionInputs::Input &a, const ActionInputs::Input &b);

} // namespace MtConf
