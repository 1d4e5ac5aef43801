#pragma once

#include "WindowFeature_p.h"

namespace MtConf {

/// Keys of the window: Escape and Ctrl+W close it (Escape leaves a search first), Ctrl+Tab and
/// Ctrl+Shift+Tab show the next and the previous page, F1 calls the host's help. The last page is
/// remembered in the store.
class WindowKeys : public WindowFeature
{
    Q_OBJECT
public:
    explicit WindowKeys(ConfigurationWindow *window);

    void windowClosed() override;

protected:
    /// Notes whether a popup is open when a key is pressed.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addKey(const QKeySequence &key, void (WindowKeys::*action)());
    void leave();
    void close();
    void showNextPage() { showPageAfter(1); }
    void showPreviousPage() { showPageAfter(-1); }
    void showPageAfter(int step);
    void showHelp();

    bool mHadPopup = false; // when the key was pressed that is down
};

} // namespace MtConf
