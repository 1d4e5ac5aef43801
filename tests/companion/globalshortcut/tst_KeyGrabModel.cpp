#include <QxtGlobalShortcut>

#include "FakeKeyboard.h"
#include "support/TestMain.h"

#include <rapidcheck.h>

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <utility>
#include <vector>

// The test runs 3,000 random histories. A failure prints the shortest failing history found
// and a value of the environment variable RC_PARAMS that reproduces it.

namespace {

using Failure = QxtGlobalShortcut::Failure;

constexpr int sUsers = 5;
constexpr int sChords = 5;
constexpr int sKeys = 5;
constexpr int sNoChord = sChords;
constexpr size_t sLayouts = 4;

/// Keys by layout and chord. Chords 0 and 1 share a key in the first two layouts, and all layouts
/// lack a key of some chord.
const std::array<std::array<std::vector<int>, sChords>, sLayouts> sKeysOf{{
    {{{0}, {0, 1}, {2}, {3}, {}}},
    {{{0}, {0, 1}, {3}, {2}, {4}}},
    {{{1}, {}, {2}, {3, 4}, {0}}},
    {{{}, {2}, {2}, {2, 1}, {4}}},
}};

int chordCode(int chord)
{
    return Qt::Key_F1 + chord;
}

KeyCombination combination(int key)
{
    return {static_cast<quint32>(key), 0, 0};
}

FakeKeyboard::Layout layoutOf(size_t index)
{
    FakeKeyboard::Layout layout;
    for (int chord = 0; chord < sChords; ++chord) {
        for (const int key : sKeysOf[index][static_cast<size_t>(chord)])
            layout[chordCode(chord)].append(combination(key));
    }
    return layout;
}

struct Action
{
    enum Kind {
        Set,
        SetId,
        Enable,
        Disable,
        Replace,
        OtherTakes,
        OtherReleases,
        Layout,
        Record,
        Stop
    };
    Kind kind;
    int user;
    int chord; // sNoChord: empty
    int key;
    size_t layout;
};

std::ostream &operator<<(std::ostream &out, const Action &action)
{
    constexpr const char *names[] = {"set",     "set id",      "enable",         "disable",
                                     "replace", "other takes", "other releases", "layout",
                                     "record",  "stop"};
    return out << names[action.kind] << " user " << action.user << " chord " << action.chord
               << " key " << action.key << " layout " << action.layout;
}

rc::Gen<std::vector<Action>> anyActions()
{
    const auto kind = rc::gen::weightedElement<Action::Kind>({{8, Action::Set},
                                                              {1, Action::SetId},
                                                              {2, Action::Enable},
                                                              {2, Action::Disable},
                                                              {1, Action::Replace},
                                                              {4, Action::OtherTakes},
                                                              {3, Action::OtherReleases},
                                                              {3, Action::Layout},
                                                              {3, Action::Record},
                                                              {3, Action::Stop}});
    const auto action = rc::gen::build<Action>(
        rc::gen::set(&Action::kind, kind), rc::gen::set(&Action::user, rc::gen::inRange(0, sUsers)),
        rc::gen::set(&Action::chord, rc::gen::inRange(0, sChords + 1)),
        rc::gen::set(&Action::key, rc::gen::inRange(0, sKeys)),
        rc::gen::set(&Action::layout, rc::gen::inRange<size_t>(0, sLayouts)));
    return rc::gen::container<std::vector<Action>>(action);
}

/// Who holds which key, written down without any code of the library.
class Model
{
public:
    struct User
    {
        int chord = sNoChord;
        bool isEnabled = true;
    };

    std::set<int> heldKeys() const
    {
        std::set<int> held;
        for (int chord = 0; chord < sChords && !isRecording; ++chord) {
            if (isUsed(chord) && failures[chord] == Failure::NoFailure)
                held.insert(keys(chord).begin(), keys(chord).end());
        }
        return held;
    }

    Failure failureOf(const User &user) const
    {
        if (!user.isEnabled)
            return Failure::NoFailure;
        return user.chord == sNoChord ? Failure::Empty : failures[user.chord];
    }

    void change(User &user, User wanted)
    {
        const bool wasUsed = isUsed(wanted.chord);
        user = wanted;
        if (!wanted.isEnabled || wanted.chord == sNoChord)
            return;
        if (!wasUsed || failures[wanted.chord] != Failure::NoFailure)
            failures[wanted.chord] = attempt(wanted.chord);
    }

    void setLayout(size_t index)
    {
        const size_t before = std::exchange(layout, index);
        for (int chord = 0; chord < sChords; ++chord) {
            const bool isOutdated = sKeysOf[before][size_t(chord)] != keys(chord);
            if (isOutdated || failures[chord] != Failure::NoFailure)
                failures[chord] = attempt(chord);
        }
    }

    void stopRecording()
    {
        if (!std::exchange(isRecording, false))
            return;
        for (int chord = 0; chord < sChords; ++chord) {
            if (failures[chord] == Failure::NoFailure)
                failures[chord] = attempt(chord);
        }
    }

    std::array<User, sUsers> users;
    std::set<int> others;
    size_t layout = 0;
    bool isRecording = false;

private:
    bool isUsed(int chord) const
    {
        return std::any_of(users.begin(), users.end(), [chord](const User &user) {
            return user.isEnabled && user.chord == chord;
        });
    }

    const std::vector<int> &keys(int chord) const { return sKeysOf[layout][size_t(chord)]; }

    Failure attempt(int chord) const
    {
        if (keys(chord).empty())
            return Failure::NotOnKeyboard;
        const bool isTaken = std::any_of(keys(chord).begin(), keys(chord).end(),
                                         [this](int key) { return others.count(key) > 0; });
        return isTaken ? Failure::Taken : Failure::NoFailure;
    }

    std::array<Failure, sChords> failures{};
};

/// The library and the model, which receive the same actions.
class Run
{
public:
    Run()
    {
        mKeyboard.reset();
        mKeyboard.layout = layoutOf(0);
        mRecorder.setProperty("recordsHotkeys", true);
        for (int user = 0; user < sUsers; ++user)
            create(user);
    }
    ~Run() { Q_EMIT qApp->focusObjectChanged(nullptr); }
    Q_DISABLE_COPY(Run)

    void perform(const Action &action)
    {
        QxtGlobalShortcut &hotkey = *mHotkeys[size_t(action.user)];
        Model::User &user = mModel.users[size_t(action.user)];
        switch (action.kind) {
        case Action::Set:
            mModel.change(user, {action.chord, user.isEnabled});
            hotkey.setShortcut(keys(action.chord));
            break;
        case Action::SetId: {
            const QString id = QString::number(action.key);
            if (hotkey.id() != id)
                mModel.change(user, user); // registers it again
            hotkey.setId(id);
            break;
        }
        case Action::Enable:
        case Action::Disable: {
            const bool isEnabled = action.kind == Action::Enable;
            if (user.isEnabled != isEnabled)
                mModel.change(user, {user.chord, isEnabled});
            hotkey.setEnabled(isEnabled);
            break;
        }
        case Action::Replace:
            mModel.change(user, {});
            create(action.user);
            break;
        case Action::OtherTakes:
            if (mModel.heldKeys().count(action.key) > 0)
                break; // the system refuses it
            mModel.others.insert(action.key);
            mKeyboard.others.insert(combination(action.key));
            break;
        case Action::OtherReleases:
            mModel.others.erase(action.key);
            mKeyboard.others.erase(combination(action.key));
            break;
        case Action::Layout:
            mModel.setLayout(action.layout);
            mKeyboard.setLayout(layoutOf(action.layout));
            break;
        case Action::Record:
            mModel.isRecording = true;
            Q_EMIT qApp->focusObjectChanged(&mRecorder);
            break;
        case Action::Stop:
            mModel.stopRecording();
            Q_EMIT qApp->focusObjectChanged(nullptr);
            break;
        }
    }

    void check() const
    {
        std::set<int> held;
        for (const KeyCombination &key : mKeyboard.grabbed)
            held.insert(static_cast<int>(key.key));
        RC_ASSERT(held == mModel.heldKeys());
        QCoreApplication::processEvents();
        for (size_t i = 0; i < sUsers; ++i) {
            const Model::User &user = mModel.users[i];
            const Failure failure = mModel.failureOf(user);
            const bool isValid = user.isEnabled && failure == Failure::NoFailure;
            RC_ASSERT(mHotkeys[i]->failure() == failure);
            RC_ASSERT(mHotkeys[i]->isValid() == isValid);
            RC_ASSERT(mHeard[i].failure == failure);
            RC_ASSERT(mHeard[i].isValid == isValid);
            RC_ASSERT(mHeard[i].isEnabled == user.isEnabled);
        }
    }

    /// Presses every key, and checks who is activated.
    void pressAll()
    {
        for (int key = 0; key < sKeys; ++key) {
            for (Heard &heard : mHeard)
                heard.activations = 0;
            mKeyboard.press(combination(key));
            QCoreApplication::processEvents();
            for (size_t i = 0; i < sUsers; ++i) {
                const Model::User &user = mModel.users[i];
                const bool isHeld = mModel.heldKeys().count(key) > 0 && user.isEnabled
                                    && user.chord != sNoChord
                                    && mModel.failureOf(user) == Failure::NoFailure;
                const bool isPressed = isHeld && needs(user.chord, key);
                RC_ASSERT(mHeard[i].activations == (isPressed ? 1 : 0));
            }
        }
    }

    void destroyAll()
    {
        for (auto &hotkey : mHotkeys)
            hotkey.reset();
        RC_ASSERT(mKeyboard.grabbed.empty());
    }

private:
    // What the signals have told.
    struct Heard
    {
        Failure failure = Failure::Empty;
        bool isValid = false;
        bool isEnabled = true;
        int activations = 0;
    };

    static QKeySequence keys(int chord)
    {
        return chord == sNoChord ? QKeySequence() : QKeySequence(chordCode(chord));
    }

    bool needs(int chord, int key) const
    {
        const std::vector<int> &keys = sKeysOf[mModel.layout][size_t(chord)];
        return std::find(keys.begin(), keys.end(), key) != keys.end();
    }

    void create(int user)
    {
        const auto index = static_cast<size_t>(user);
        mHotkeys[index] = std::make_unique<QxtGlobalShortcut>();
        const QxtGlobalShortcut *hotkey = mHotkeys[index].get();
        Heard &heard = mHeard[index];
        heard = Heard();
        QObject::connect(hotkey, &QxtGlobalShortcut::enabledChanged, [&heard, hotkey] {
            heard.isValid = hotkey->isValid();
            heard.isEnabled = hotkey->isEnabled();
        });
        QObject::connect(hotkey, &QxtGlobalShortcut::failureChanged,
                         [&heard, hotkey] { heard.failure = hotkey->failure(); });
        QObject::connect(hotkey, &QxtGlobalShortcut::activated, [&heard] { ++heard.activations; });
    }

    FakeKeyboard &mKeyboard = FakeKeyboard::instance();
    // Keeps the backend: with the last hotkey it would end, and a new one would not be told of the
    // focus that the test has only announced.
    const QxtGlobalShortcut mKeepsTheBackend{QKeySequence(Qt::Key_F12)};
    QObject mRecorder;
    Model mModel;
    std::array<Heard, sUsers> mHeard;
    std::array<std::unique_ptr<QxtGlobalShortcut>, sUsers> mHotkeys;
};

} // namespace

class tst_KeyGrabModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void hotkeysHoldWhatTheModelSays();
};

void tst_KeyGrabModel::initTestCase()
{
    // A value of the environment is used in addition.
    if (qEnvironmentVariableIsEmpty("RC_PARAMS"))
        qputenv("RC_PARAMS", "max_success=3000 max_size=50");
}

void tst_KeyGrabModel::hotkeysHoldWhatTheModelSays()
{
    QVERIFY(rc::check("who holds what after each action", [] {
        const std::vector<Action> actions = *anyActions();
        Run run;
        run.check();
        for (const Action &action : actions) {
            run.perform(action);
            run.check();
        }
        run.pressAll();
        run.destroyAll();
    }));
}

int main(int argc, char **argv)
{
    return runTest<tst_KeyGrabModel>(argc, argv);
}

#include "tst_KeyGrabModel.moc"
