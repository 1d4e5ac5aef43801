#pragma once

#include "support/CleanStore.h"

#include <MaltoConfiguration/inputs/InputRegistry.h>
#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QAction>
#include <QStringList>

#include <deque>
#include <memory>

/// A manager with a registry, and functions that declare inputs.
class InputFixture
{
public:
    InputFixture()
    {
        clearStore();
        manager = std::make_unique<MtConf::MtConfManage>();
        registry = new MtConf::InputRegistry(manager.get());
    }
    ~InputFixture()
    {
        manager.reset();
        clearStore();
    }
    Q_DISABLE_COPY(InputFixture)

    static ConfStorage *store() { return ConfStorage::instance(); }

    MtConf::ConfItem *addHotkey(const char *name, const QString &keys = QString())
    {
        sequences.push_back(std::make_unique<QKeySequence>(keys));
        return manager->addConfQKeySequence(name, sequences.back().get(), "Keys", name);
    }
    MtConf::ConfItem *addShortcut(const char *name, const QString &keys = QString(),
                                  QAction *action = nullptr)
    {
        sequences.push_back(std::make_unique<QKeySequence>(keys));
        return manager->addConfShortcut(name, sequences.back().get(), action, "Keys", name);
    }
    void addGesture(const char *name, int gesture = 0, int kind = 1)
    {
        gestures.push_back(std::make_unique<int>(gesture));
        manager->addConfMouseAction(name, gestures.back().get(), kind, "Mouse", name);
    }
    static void setKeys(const QString &name, const QString &keys)
    {
        store()->set("Keys." + name, QKeySequence(keys));
    }

    static QStringList names(const QList<MtConf::InputUse> &uses)
    {
        QStringList names;
        for (const MtConf::InputUse &use : uses)
            names.append(use.name);
        return names;
    }
    /// Returns the names of what is in conflict with the setting `key`.
    QStringList conflicts(const QString &key) const { return names(registry->conflictsOf(key)); }

    std::deque<std::unique_ptr<QKeySequence>> sequences;
    std::deque<std::unique_ptr<int>> gestures;
    std::unique_ptr<MtConf::MtConfManage> manager;
    MtConf::InputRegistry *registry = nullptr;
};
