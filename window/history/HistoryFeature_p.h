#pragma once

#include "MaltoConfiguration/window/WindowFeature_p.h"

#include <MaltoConfiguration/store/ConfChange.h>

#include <QKeySequence>
#include <QPointer>
#include <QStringList>

namespace MtConf {

class SettingsHistory;
class UndoBar;
class UndoKeys;

/// Undo and redo in the settings window: the history since the window was opened, the keys, and the
/// bar that offers to undo after many settings were changed at once.
class HistoryFeature : public WindowFeature
{
    Q_OBJECT
public:
    explicit HistoryFeature(ConfigurationWindow *window);

    void sheetApplied() override;
    void retranslate() override;

private:
    void apply(void (SettingsHistory::*direction)());
    void undoShown();
    void addAction(const char *name, QKeySequence::StandardKey key,
                   void (SettingsHistory::*direction)());
    void onRecorded(ConfChange::Cause cause, const QStringList &keys);
    void onApplied(const QStringList &keys);
    bool refreshRows(const QStringList &keys);
    QWidget *editorOf(const QStringList &keys) const;
    void openPageOf(const QStringList &keys);
    QString pageOf(const QString &key) const;
    static QString textOf(ConfChange::Cause cause, int count);

    SettingsHistory *const mHistory;
    const QPointer<UndoBar> mBar; // the window deletes it before the features
    UndoKeys *const mKeys;
    int mRecordedCount = 0;
};

} // namespace MtConf
