#pragma once

#include "InputOffer_p.h"
#include "InputValue_p.h"
#include "MaltoConfiguration/window/WindowFeature_p.h"

#include <MaltoConfiguration/inputs/InputRegistry.h>

#include <QHash>
#include <QLabel>
#include <QPointer>
#include <QString>
#include <QStringList>

class KeySequenceEdit;

namespace MtConf {

class ConfWidgetMouseAction;

/// Keys and gestures that are used twice: each row says with whom, and choosing something that is
/// used already asks what to do before it is stored.
class InputConflicts : public WindowFeature
{
    Q_OBJECT
public:
    explicit InputConflicts(ConfigurationWindow *window);

    void rowAdded(const PageRow &row) override;
    void pageCleared() override;
    void retranslate() override;

private:
    /// What the user has chosen and what is asked.
    struct Question
    {
        QString key;
        InputValue wanted;
        InputValue former;
        QList<InputUse> uses; ///< who uses it
    };

    void watchKeys(KeySequenceEdit *edit, const QString &key);
    void watchGestures(ConfWidgetMouseAction *editor, const QString &key);
    QString conflictName(const QString &key, int gesture) const;
    bool mayTake(const QString &key, const InputValue &wanted);
    void ask(const PageRow &row);
    void showQuestion();
    bool isWorthASwap() const;
    bool canChangeOthers(const InputValue &value) const;
    void closeOffer();
    void withdrawOffer();

    void onAnswered(InputOffer::Answer answer);
    bool take(const PageRow &row);
    void refreshRows(const QStringList &keys);

    void onUsesChanged(const QStringList &keys);
    void reconsider();
    void dress(QLabel *text) const;
    void showNote(const PageRow &row);
    QString noteText(const QString &key) const;
    PageRow rowWith(const QString &key) const;

    const QPointer<InputRegistry> mRegistry;
    QHash<QString, QPointer<QLabel>> mNotes; // by key
    QPointer<InputOffer> mOffer;
    Question mQuestion; // of the offer
    bool mIsTaking = false;
};

} // namespace MtConf
