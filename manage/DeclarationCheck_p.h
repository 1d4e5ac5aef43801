#pragma once

#include <MaltoConfiguration/manage/ConfItem.h>

#include <QHash>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

namespace MtConf {

class MtConfManage;

/// The managers that exist. GUI thread only.
QList<const MtConfManage *> &liveManagers();

/// Looks for mistakes in the declarations of one manager.
class DeclarationCheck
{
public:
    explicit DeclarationCheck(const MtConfManage &manager);

    /// Returns a sentence for each problem, in the order of the declarations.
    QStringList problems();

private:
    using Variable = QPair<const void *, quint32>; // the address and the type

    void collect(const ConfItem &item, bool isSubItem);
    void checkItem(const ConfItem &item);
    void checkNames(const ConfItem &item);
    void checkVariable(const QString &key);
    void checkDefault(const ConfItem &item);
    void checkChoices(const ConfItem &item);
    void checkIsShown(const ConfItem &item);
    void checkInput(const ConfItem &item);
    void checkDependencies(const ConfItem &item);
    void checkFormerNames(const ConfItem &item);
    void checkOtherManagers();
    void report(const QString &key, const QString &problem);

    const MtConfManage &mManager;
    QList<const ConfItem *> mItems; // and their sub-items
    QList<const ConfItem *> mSubItems;
    QHash<QString, int> mKeys;        // how often each is declared; 0 if it was checked
    QHash<Variable, QString> mOwners; // keys by variable
    QHash<QString, QString> mInputs;  // keys by hotkey or gesture
    QStringList mProblems;
};

} // namespace MtConf
