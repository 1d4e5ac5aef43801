#include "FakeKeyboard.h"

#include "KeyGrabBackend_p.h"

namespace {

class FakeKeyGrabber : public KeyGrabber
{
public:
    explicit FakeKeyGrabber(Listener &listener) { mKeyboard.listener = &listener; }
    ~FakeKeyGrabber() override { mKeyboard.listener = nullptr; }
    Q_DISABLE_COPY(FakeKeyGrabber)

    bool isSupported() const override { return mKeyboard.isConnected; }
    QVector<KeyCombination> combinations(int chord) const override
    {
        ++mKeyboard.lookups;
        const auto found = mKeyboard.layout.find(chord);
        const bool isKnown = mKeyboard.isConnected && found != mKeyboard.layout.end();
        return isKnown ? found->second : QVector<KeyCombination>();
    }
    bool grab(const KeyCombination &combination) override
    {
        ++mKeyboard.grabs;
        mKeyboard.isConnected = mKeyboard.isConnected && !mKeyboard.endsInGrab;
        if (!mKeyboard.isConnected || mKeyboard.others.count(combination) > 0)
            return false;
        if (!mKeyboard.grabbed.insert(combination).second)
            qFatal("a combination is registered twice");
        return true;
    }
    void ungrab(const KeyCombination &combination) override
    {
        if (mKeyboard.grabbed.erase(combination) == 0)
            qFatal("a combination is released that is not registered");
    }

private:
    FakeKeyboard &mKeyboard = FakeKeyboard::instance();
};

} // namespace

FakeKeyboard &FakeKeyboard::instance()
{
    static FakeKeyboard sInstance;
    return sInstance;
}

void FakeKeyboard::reset()
{
    layout.clear();
    others.clear();
    grabs = 0;
    lookups = 0;
    isConnected = true;
    endsInGrab = false;
}

void FakeKeyboard::setLayout(const Layout &newLayout)
{
    layout = newLayout;
    if (listener)
        listener->keyboardChanged();
}

void FakeKeyboard::disconnect()
{
    isConnected = false;
    if (listener)
        listener->keyboardChanged();
}

void FakeKeyboard::press(const KeyCombination &combination)
{
    if (grabbed.count(combination) > 0)
        listener->keyPressed(combination.key, combination.modifiers);
}

std::unique_ptr<GlobalShortcutBackend> GlobalShortcutBackend::create(Listener &listener)
{
    return std::make_unique<KeyGrabBackend>(listener, [](KeyGrabber::Listener &keys) {
        return std::make_unique<FakeKeyGrabber>(keys);
    });
}
