#pragma once

#include "MaltoConfiguration/store/StoreObserver_p.h"

#include <QHash>
#include <QString>

#include <memory>
#include <optional>

namespace MtConf {

/// Where the values of the store come from, as far as the store itself does not keep it. Observes
/// the store from its construction on.
class ValueOrigins
{
public:
    enum class Origin {
        Default,           ///< the default value
        Changed,           ///< changed on this computer
        ConfigurationFile, ///< loaded from a configuration file of the host
        Elsewhere,         ///< merged from another process or another copy of the configuration
        Locked             ///< fixed by an administrator
    };

    ValueOrigins();
    Q_DISABLE_COPY(ValueOrigins)

    /// Returns where the present value of `key` comes from. What was changed in an earlier run of
    /// the program counts as changed here.
    Origin originOf(const QString &key) const;

    /// While it exists, changes come from `ConfigurationFile`, or count as `Changed`, such as those
    /// of a file that the user imports.
    class Scope
    {
    public:
        /// `origins` may be null, and may be destroyed before this object.
        Scope(const ValueOrigins *origins, Origin origin);
        ~Scope();
        Q_DISABLE_COPY(Scope)

    private:
        const std::shared_ptr<std::optional<Origin>> mCurrent;
        const std::optional<Origin> mFormer;
    };

private:
    void onChange(const ConfChange &change);

    QHash<QString, Origin> mOrigins;                    // of keys that are not simply changed here
    const std::shared_ptr<std::optional<Origin>> mScope // of the innermost Scope
        = std::make_shared<std::optional<Origin>>();
    const StoreObserver mObserver;
};

} // namespace MtConf
