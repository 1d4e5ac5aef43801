#include "HistoryHost.h"

#include "MaltoConfiguration/window/history/SettingsHistory_p.h"

#include "support/TestMain.h"

#include <rapidcheck.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

// Each test runs a thousand random histories. A failure prints the shortest failing history found
// and a value of the environment variable RC_PARAMS that reproduces it.

namespace {

using MtConf::SettingsHistory;

/// The keys: a setting with the default value 7, a preset with the default value 1, two entries.
constexpr std::array<const char *, 4> sKeys{"Size", "Entry.preset", "Entry.a", "Entry.b"};
constexpr std::array<int, 4> sDefaults{7, 1, 0, 0};
constexpr std::array<bool, 4> sHasDefault{true, true, false, false};

struct Cell
{
    bool isPresent = false;
    int value = 0;
    bool isDefault = false;

    bool operator==(const Cell &other) const
    {
        return isPresent == other.isPresent && value == other.value && isDefault == other.isDefault;
    }
    bool hasSameValue(const Cell &other) const
    {
        return isPresent == other.isPresent && value == other.value;
    }
};

std::ostream &operator<<(std::ostream &out, const Cell &cell)
{
    if (!cell.isPresent)
        return out << "absent";
    return out << cell.value << (cell.isDefault ? " default" : "");
}

using Cells = std::array<Cell, sKeys.size()>;

struct Action
{
    enum Kind { Edit, Restore, Create, Remove, SetByProgram, Undo, Redo, MoveFocus, TwoEdits };
    Kind kind;
    size_t key;
    size_t otherKey;
    int value;
};

std::ostream &operator<<(std::ostream &out, const Action &action)
{
    const std::array<const char *, 9> names{"edit", "restore", "create",     "remove",  "set",
                                            "undo", "redo",    "move focus", "edit two"};
    return out << names[action.kind] << ' ' << sKeys[action.key] << ' ' << action.value << ", "
               << sKeys[action.otherKey];
}

rc::Gen<Action> anyAction()
{
    const auto kind = rc::gen::weightedElement<Action::Kind>({{8, Action::Edit},
                                                              {3, Action::Restore},
                                                              {4, Action::Create},
                                                              {3, Action::Remove},
                                                              {1, Action::SetByProgram},
                                                              {8, Action::Undo},
                                                              {5, Action::Redo},
                                                              {3, Action::MoveFocus},
                                                              {2, Action::TwoEdits}});
    return rc::gen::build<Action>(rc::gen::set(&Action::kind, kind),
                                  rc::gen::set(&Action::key, rc::gen::inRange<size_t>(0, 4)),
                                  rc::gen::set(&Action::otherKey, rc::gen::inRange<size_t>(0, 4)),
                                  rc::gen::set(&Action::value, rc::gen::inRange(0, 9)));
}

rc::Gen<std::vector<Action>> anyActions()
{
    return rc::gen::container<std::vector<Action>>(anyAction());
}

/// A second implementation of the history, on plain cells.
class HistoryModel
{
public:
    Cells cells{{{true, 7, true}, {true, 1, true}, {}, {}}};

    void run(const Action &action)
    {
        const Cells before = cells;
        switch (action.kind) {
        case Action::Undo: apply(mDone, mUndone, &Step::before, &Step::after); return;
        case Action::Redo: apply(mUndone, mDone, &Step::after, &Step::before); return;
        case Action::MoveFocus: ++mFocus; return;
        case Action::SetByProgram: set(action.key, action.value); return;
        case Action::Edit: set(action.key, action.value); break;
        case Action::TwoEdits:
            set(action.key, action.value);
            set(action.otherKey, action.value);
            break;
        case Action::Restore:
            if (sHasDefault[action.key])
                cells[action.key] = {true, sDefaults[action.key], true};
            break;
        case Action::Create: create(action.key, action.value); break;
        case Action::Remove:
            if (action.key != 0)
                cells[action.key] = Cell();
            break;
        }
        record(before, action.kind == Action::Edit || action.kind == Action::TwoEdits);
    }

private:
    struct Step
    {
        Cells before;
        Cells after;
        std::optional<std::pair<size_t, int>> typed; // the key, and where the focus was
    };

    void set(size_t key, int value)
    {
        if (cells[key].isPresent)
            cells[key] = {true, value, false};
    }
    void create(size_t key, int value)
    {
        if (key != 0 && !cells[key].isPresent)
            cells[key] = {true, value, sHasDefault[key] && value == sDefaults[key]};
    }
    void record(const Cells &before, bool isEdit)
    {
        std::vector<size_t> changed;
        for (size_t key = 0; key < cells.size(); ++key) {
            if (!(before[key] == cells[key]))
                changed.push_back(key);
        }
        if (changed.empty())
            return;
        mUndone.clear();
        const size_t key = changed.front();
        const std::optional<std::pair<size_t, int>> typed = isEdit && changed.size() == 1
                                                                ? std::make_optional(
                                                                    std::make_pair(key, mFocus))
                                                                : std::nullopt;
        const bool continues = typed && !mDone.empty() && mDone.back().typed == typed
                               && mDone.back().after[key] == before[key];
        if (!continues) {
            mDone.push_back({before, cells, typed});
            return;
        }
        mDone.back().after[key] = cells[key];
        if (mDone.back().before == mDone.back().after)
            mDone.pop_back();
    }
    /// Moves the last step of `from` to `to`, and goes on until something has changed.
    void apply(std::vector<Step> &from, std::vector<Step> &to, Cells Step::*wanted,
               Cells Step::*expected)
    {
        ++mFocus;
        bool hasApplied = false;
        while (!from.empty() && !hasApplied) {
            const Step step = from.back();
            from.pop_back();
            bool areOthers = true;
            for (size_t key = 0; key < cells.size(); ++key) {
                const Cell &goal = (step.*wanted)[key];
                const Cell &start = (step.*expected)[key];
                if (goal == start)
                    continue;
                const bool isDone = cells[key] == goal || (goal.isDefault && cells[key].isDefault);
                const bool isOwn = cells[key].hasSameValue(start);
                areOthers = areOthers && !isDone && !isOwn;
                if (isOwn && !isDone) {
                    cells[key] = goal;
                    hasApplied = hasApplied || !goal.hasSameValue(start);
                }
            }
            if (!areOthers)
                to.push_back(step);
        }
    }

    std::vector<Step> mDone;
    std::vector<Step> mUndone;
    int mFocus = 0;
};

QJsonValue valueOf(size_t key, int value)
{
    return key == 0 ? QJsonValue(value) : QJsonValue(QJsonObject{{"n", value}});
}

/// The real history of a host, with the same actions.
class HistoryRun
{
public:
    HistoryRun() : history(&host.store) {}

    void run(const Action &action)
    {
        ConfStorage &store = host.store;
        const QString key = sKeys[action.key];
        const QJsonValue value = valueOf(action.key, action.value);
        switch (action.kind) {
        case Action::Edit: host.edit(key, value); break;
        case Action::TwoEdits: {
            const ConfOperation operation(&store, ConfChange::Cause::Edited);
            store.loadValueFromJson(key, value);
            store.loadValueFromJson(sKeys[action.otherKey], valueOf(action.otherKey, action.value));
            break;
        }
        case Action::SetByProgram: store.loadValueFromJson(key, value); break;
        case Action::Restore:
            if (sHasDefault[action.key])
                store.setToDefault(key, true);
            break;
        case Action::Create:
            if (action.key != 0 && !store.mConfValues.contains(key))
                store.createDynamicConf(key, value, nullptr);
            break;
        case Action::Remove:
            if (action.key != 0 && store.mConfValues.contains(key))
                store.removeDynamicConf(key);
            break;
        case Action::Undo: history.undo(); break;
        case Action::Redo: history.redo(); break;
        case Action::MoveFocus: history.endTyping(); break;
        }
    }

    static Cells cellsOf(const HistoryHost &host)
    {
        Cells cells;
        for (size_t key = 0; key < sKeys.size(); ++key) {
            const auto value = host.store.mConfValues.constFind(sKeys[key]);
            if (value == host.store.mConfValues.constEnd())
                continue;
            const quint32 flags = host.store.mConfMetas[sKeys[key]].flags;
            cells[key] = {true, key == 0 ? host.size : host.dynamic.at(sKeys[key])["n"].toInt(),
                          (flags & ConfStorage::FlagIsDefault) != 0};
        }
        return cells;
    }
    Cells cells() const { return cellsOf(host); }

    HistoryHost host;
    SettingsHistory history;
};

} // namespace

/// Compares random histories with a model.
class tst_SettingsHistoryModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void stateEqualsThatOfTheModel();
    void undoneStateWinsInOtherCopies();
};

void tst_SettingsHistoryModel::stateEqualsThatOfTheModel()
{
    QVERIFY(rc::check("state after each action", [] {
        HistoryRun run;
        HistoryModel model;
        const auto actions = *anyActions();
        for (const Action &action : actions) {
            run.run(action);
            model.run(action);
            RC_ASSERT(run.cells() == model.cells);
        }
    }));
}

void tst_SettingsHistoryModel::undoneStateWinsInOtherCopies()
{
    QVERIFY(rc::check("undo, then merge", [] {
        HistoryRun run;
        HistoryHost other;
        const auto exchange = [&] {
            other.store.loadConf(run.host.store.dumpConf(ConfStorage::DumpShared),
                                 ConfStorage::LoadShared);
            const Cells cells = run.cells();
            run.host.store.loadConf(other.store.dumpConf(ConfStorage::DumpShared),
                                    ConfStorage::LoadShared);
            RC_ASSERT(run.cells() == cells);
            for (size_t key = 0; key < cells.size(); ++key)
                RC_ASSERT(HistoryRun::cellsOf(other)[key].hasSameValue(cells[key]));
        };
        for (const Action &action : *anyActions())
            run.run(action);
        exchange();
        const int count = *rc::gen::inRange(1, 5);
        for (int i = 0; i < count; ++i)
            run.history.undo();
        exchange();
        run.history.redo();
        exchange();
    }));
}

int main(int argc, char **argv)
{
    const QByteArray parameters = qgetenv("RC_PARAMS");
    if (!parameters.contains("max_success"))
        qputenv("RC_PARAMS", "max_success=1000 " + parameters);
    return runTest<tst_SettingsHistoryModel>(argc, argv);
}

#include "tst_SettingsHistoryModel.moc"
