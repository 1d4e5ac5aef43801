#include "InputFixture.h"

#include "support/TestMain.h"

#include <QMainWindow>

#include <algorithm>
#include <random>
#include <vector>

namespace {

/// What a model of the registry knows of one input.
struct Input
{
    QString name;
    bool isGlobal = false;
    int window = -1; // -1: all windows
    QStringList chords;
};

/// The rule, written independently of the registry: by the texts of the chords.
bool isConflict(const Input &a, const Input &b)
{
    const auto cannotBeRegistered = [](const Input &input) {
        return input.isGlobal && input.chords.size() != 1;
    };
    if (a.chords.isEmpty() || b.chords.isEmpty() || cannotBeRegistered(a) || cannotBeRegistered(b))
        return false;
    if (a.isGlobal || b.isGlobal) {
        return std::any_of(a.chords.cbegin(), a.chords.cend(),
                           [&](const QString &chord) { return b.chords.contains(chord); });
    }
    if (a.window >= 0 && b.window >= 0 && a.window != b.window)
        return false;
    const QString first = a.chords.join(", ") + ", ";
    const QString second = b.chords.join(", ") + ", ";
    return first.startsWith(second) || second.startsWith(first);
}

} // namespace

/// Random inputs of all kinds change in random order. The registry must always say what a simple
/// model says.
class tst_InputRegistryModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void registryEqualsTheModel_data();
    void registryEqualsTheModel();
};

void tst_InputRegistryModel::registryEqualsTheModel_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 40; ++seed)
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

void tst_InputRegistryModel::registryEqualsTheModel()
{
    constexpr int sInputs = 12;
    constexpr int sSteps = 60;
    QFETCH(const uint, seed);
    std::mt19937 random(seed);
    const auto below = [&random](int end) { return static_cast<int>(random() % uint(end)); };
    const QStringList chords{"Ctrl+K", "Ctrl+L", "A", "F5"};
    const auto randomChords = [&] {
        QStringList some;
        const int count = below(8) < 5 ? 1 : below(3);
        for (int i = 0; i < count; ++i)
            some.append(chords.at(below(static_cast<int>(chords.size()))));
        return some;
    };

    InputFixture fixture;
    const std::vector<std::unique_ptr<QMainWindow>> windows = [] {
        std::vector<std::unique_ptr<QMainWindow>> created;
        for (int i = 0; i < 2; ++i)
            created.push_back(std::make_unique<QMainWindow>());
        return created;
    }();
    std::vector<Input> settings;
    std::vector<Input> actions;
    std::vector<QByteArray> names; // of the declarations, which keep pointers
    names.reserve(sInputs);
    const auto addSetting = [&] {
        const int kind = below(4); // a hotkey, or a shortcut in one or in all windows
        names.push_back("S" + QByteArray::number(static_cast<int>(names.size())));
        Input input{QString::fromLatin1(names.back()), kind == 0, -1, randomChords()};
        if (kind == 0) {
            fixture.addHotkey(names.back().constData(), input.chords.join(", "));
        } else {
            QAction *action = nullptr;
            if (kind > 1) {
                input.window = kind - 2;
                auto *const window = windows.at(static_cast<size_t>(input.window)).get();
                action = new QAction(window);
                window->addAction(action);
            }
            fixture.addShortcut(names.back().constData(), input.chords.join(", "), action);
        }
        settings.push_back(input);
    };
    const auto addAction = [&] {
        Input input{"A" + QString::number(actions.size()), false, below(2), randomChords()};
        auto *const window = windows.at(static_cast<size_t>(input.window)).get();
        auto *const action = new QAction(input.name, window);
        action->setObjectName(input.name);
        action->setShortcut(QKeySequence(input.chords.join(", ")));
        if (below(3) == 0) {
            action->setShortcutContext(Qt::ApplicationShortcut);
            input.window = -1;
        }
        window->addAction(action);
        actions.push_back(input);
    };
    const auto find = [&](const QString &name) {
        for (const auto &window : windows) {
            if (auto *const action = window->findChild<QAction *>(name))
                return action;
        }
        return static_cast<QAction *>(nullptr);
    };
    for (const auto &window : windows)
        fixture.registry->addActions(window.get());
    addSetting();

    for (int step = 0; step < sSteps; ++step) {
        const int what = below(10);
        if (what == 0 && settings.size() < sInputs) {
            addSetting();
        } else if (what == 1 && actions.size() < sInputs) {
            addAction();
        } else if (what == 2 && !actions.empty()) {
            delete find(actions.back().name);
            actions.pop_back();
        } else if (what < 5 && !actions.empty()) {
            Input &input = actions.at(static_cast<size_t>(below(static_cast<int>(actions.size()))));
            input.chords = randomChords();
            find(input.name)->setShortcut(QKeySequence(input.chords.join(", ")));
        } else {
            Input &input = settings.at(
                static_cast<size_t>(below(static_cast<int>(settings.size()))));
            input.chords = randomChords();
            InputFixture::setKeys(input.name, input.chords.join(", "));
        }
        if (below(3) == 0)
            QCoreApplication::processEvents();
        for (const Input &input : settings) {
            QStringList expected;
            for (const Input &other : settings) {
                if (other.name != input.name && isConflict(input, other))
                    expected.append(other.name);
            }
            QStringList expectedActions;
            for (const Input &other : actions) {
                if (isConflict(input, other))
                    expectedActions.append(other.name);
            }
            QStringList found = fixture.conflicts("Keys." + input.name);
            QStringList foundActions = found.mid(static_cast<int>(expected.size()));
            found = found.mid(0, static_cast<int>(expected.size()));
            foundActions.sort();
            expectedActions.sort();
            QCOMPARE(found, expected); // in the order of the declarations
            QCOMPARE(foundActions, expectedActions);
        }
    }
    fixture.manager.reset();
}

int main(int argc, char **argv)
{
    return runTest<tst_InputRegistryModel>(argc, argv);
}

#include "tst_InputRegistryModel.moc"
