#pragma once

#include <QRect>
#include <QString>

namespace MtConf {

/// What the settings window remembers in the store, in local keys that no host declares. Their
/// names begin with "Malto.".
class WindowMemory
{
public:
    /// Returns the memory of the process, which is never destroyed, as its variables belong to the
    /// store. Reserves the keys that are not reserved, as after `ConfStorage::clear`.
    static WindowMemory *instance();

    /// Returns the geometry of the window in pixels at 96 dots per inch; invalid if there is none.
    QRect geometry() const { return mGeometry; }
    void setGeometry(const QRect &geometry);

    /// Returns the name of the class whose page was shown last; may be empty.
    QString page() const { return mPage; }
    void setPage(const QString &className);

private:
    WindowMemory() = default;

    QRect mGeometry;
    QString mPage;
};

} // namespace MtConf
