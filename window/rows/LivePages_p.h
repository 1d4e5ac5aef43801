#pragma once

#include "MaltoConfiguration/store/StoreObserver_p.h"
#include "MaltoConfiguration/window/WindowFeature_p.h"

#include <QHash>
#include <QPointer>
#include <QSet>
#include <QString>

class QLabel;

namespace MtConf {

/// Lets the shown page follow the store. A changed row is refreshed as soon as control is back in
/// the event loop, which stores nothing. The field that the user is typing in is not overwritten:
/// a notice under the row says what has changed, and the row is refreshed when the user leaves it.
class LivePages : public WindowFeature
{
    Q_OBJECT
public:
    explicit LivePages(ConfigurationWindow *window);

    void pageCleared() override;
    void retranslate() override;

private:
    void onChange(const ConfChange &change);
    void refreshChanged();
    void refreshLeft();
    void refresh(const PageRow &row);
    void showNotice(const PageRow &row);
    static QString noticeText();

    QSet<QString> mChanged; // keys whose rows are not refreshed yet
    bool mIsQueued = false;
    QHash<QString, QPointer<QLabel>> mNotices; // of fields that are being edited, by key
    const StoreObserver mObserver;
};

} // namespace MtConf
