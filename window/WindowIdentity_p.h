#pragma once

#include "WindowFeature_p.h"

namespace MtConf {

/// Shows the window under the host's name: the title, the icon, and the geometry in the store.
///
/// The size is kept in pixels at 96 dots per inch, so that it fits after a change of scale. The
/// window is kept inside of the screen.
class WindowIdentity : public WindowFeature
{
    Q_OBJECT
public:
    explicit WindowIdentity(ConfigurationWindow *window);

    void retranslate() override;
    void windowClosed() override;

private:
    void restoreGeometry();
};

} // namespace MtConf
